#pragma once

#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/line3d.h>
#include <vertra/solid/triangle3d.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace example {

/// A tree of boxes over triangles: a segment that misses a box misses all that lies in it.
class Tree {
public:
    struct Hit {
        std::size_t triangle;  ///< its number, from 0
        vertra::Vec4D<double> point;
    };

    explicit Tree(std::vector<vertra::Triangle3D<double>> const& triangles);

    /// Where the segment first meets a triangle, either face of it.
    std::optional<Hit> FirstHit(vertra::Line3D<double> const& sight) const;

private:
    struct Node {
        vertra::AABBox3D<double> box;
        std::size_t first;         ///< its triangles run from here
        std::size_t last;          ///< to before here
        std::size_t children = 0;  ///< the first of two that follow each other; 0 for a leaf
        int axis = 0;              ///< along which the second lies behind the first
    };

    std::vector<Node> nodes_;                            // the root first
    std::vector<std::size_t> order_;                     // the triangles' numbers, leaf by leaf
    std::vector<vertra::Triangle3D<double>> triangles_;  // in this order

    void Grow(std::size_t index, std::vector<vertra::Triangle3D<double>> const& triangles);
};

}  // namespace example
