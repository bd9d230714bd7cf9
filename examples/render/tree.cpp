#include "render/tree.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace example {

using vertra::AABBox3D;
using vertra::Line3D;
using vertra::Triangle3D;
using vertra::Vec4D;

namespace {

/// A segment in the two forms that triangles and boxes are asked in.
struct Probe {
    Line3D<double> sight;
    Vec4D<double> direction;
    Vec4D<double> middle;
    double halfLength = 0;

    explicit Probe(Line3D<double> const& sight_)
        : sight(sight_), direction(Normalize(sight.end - sight.start)) {
        EndAt(sight.end);
    }

    void EndAt(Vec4D<double> const& point) {
        constexpr double kSlack = 1 + 1e-6;  // ours: `Len` is of float accuracy
        sight.end = point;
        middle = sight.Midpoint();
        halfLength = Len(sight) / 2 * kSlack;
    }
};

Vec4D<double> Center(Triangle3D<double> const& triangle) {
    auto const& [a, b, c] = triangle.vertex;
    return (a + b + c) / 3;
}

int LongestAxis(AABBox3D<double> const& box) {
    Vec4D<double> const extent = box.GetExtent();
    int const axis = extent.x < extent.y ? 1 : 0;
    return extent[axis] < extent.z ? 2 : axis;
}

}  // namespace

Tree::Tree(std::vector<Triangle3D<double>> const& triangles) : order_(triangles.size()) {
    std::iota(order_.begin(), order_.end(), std::size_t(0));
    nodes_.push_back({.box = {}, .first = 0, .last = triangles.size()});
    for (std::size_t i = 0; i < nodes_.size(); ++i) Grow(i, triangles);
    for (std::size_t const number : order_) triangles_.push_back(triangles[number]);
}

/// Gives the node its box and, if it is to be no leaf, two children that share its triangles.
void Tree::Grow(std::size_t index, std::vector<Triangle3D<double>> const& triangles) {
    constexpr std::size_t kMostInLeaf = 4;  // ours
    Node& node = nodes_[index];
    auto const at = [this](std::size_t i) { return order_.begin() + static_cast<std::ptrdiff_t>(i); };
    AABBox3D<double> centers;
    for (std::size_t i = node.first; i < node.last; ++i) {
        auto const& triangle = triangles[order_[i]];
        for (Vec4D<double> const& vertex : triangle.vertex) node.box.Add(vertex);
        centers.Add(Center(triangle));
    }
    if (node.last - node.first <= kMostInLeaf) return;

    int const axis = LongestAxis(centers);
    std::size_t const first = node.first;
    std::size_t const last = node.last;
    std::size_t const middle = first + (last - first) / 2;
    std::nth_element(at(first), at(middle), at(last), [&](std::size_t a, std::size_t b) {
        return Center(triangles[a])[axis] < Center(triangles[b])[axis];
    });
    node.axis = axis;
    node.children = nodes_.size();
    nodes_.push_back({.box = {}, .first = first, .last = middle});  // moves the node
    nodes_.push_back({.box = {}, .first = middle, .last = last});
}

std::optional<Tree::Hit> Tree::FirstHit(Line3D<double> const& sight) const {
    Probe probe(sight);
    std::optional<std::size_t> nearest;
    std::array<std::size_t, 64> waiting = {0};  // a child has half of the triangles: no tree is deeper
    for (std::size_t count = 1; count > 0;) {
        Node const& node = nodes_[waiting[--count]];
        if (!node.box.Intersects(probe.middle, probe.direction, probe.halfLength)) continue;
        if (node.children != 0) {
            std::size_t const nearer = probe.direction[node.axis] < 0 ? 1 : 0;
            waiting[count++] = node.children + 1 - nearer;
            waiting[count++] = node.children + nearer;
            continue;
        }
        for (std::size_t i = node.first; i < node.last; ++i) {
            Vec4D<double> point;
            if (!triangles_[i].Intersects(probe.sight, point)) continue;
            nearest = i;
            probe.EndAt(point);  // from now on only a nearer triangle can be hit
        }
    }
    if (!nearest) return std::nullopt;
    return Hit{order_[*nearest], probe.sight.end};
}

}  // namespace example
