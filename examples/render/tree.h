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
        std::size_t first = 0;   ///< a leaf's triangles begin here,
        std::size_t count = 0;   ///< so many; none in a branch
        std::size_t second = 0;  ///< a branch's second child; the first one is the next node
        int axis = 0;            ///< along which the second child lies behind the first
    };
    struct Probe;

    std::vector<Node> nodes_;                            // each before its children
    std::vector<std::size_t> order_;                     // the triangles' numbers, leaf by leaf
    std::vector<vertra::Triangle3D<double>> triangles_;  // in this order

    std::size_t Grow(std::vector<vertra::Vec4D<double>> const& centers, std::size_t first, std::size_t last);
    void Search(std::size_t index, Probe& probe) const;
};

}  // namespace example
