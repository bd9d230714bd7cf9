#include "render/tree.h"

#include <algorithm>
#include <numeric>

namespace example {

using vertra::AABBox3D;
using vertra::Line3D;
using vertra::Triangle3D;
using vertra::Vec4D;

namespace {

constexpr std::size_t kMostInLeaf = 4;

/// The longest axis of the box.
int LongestAxis(AABBox3D<double> const& box) {
    Vec4D<double> const extent = box.GetExtent();
    double const* const begin = extent;
    return static_cast<int>(std::max_element(begin, begin + 3) - begin);
}

}  // namespace

/// A segment in the two forms that triangles and boxes are asked in, and what it has met so far.
struct Tree::Probe {
    Line3D<double> sight;
    Vec4D<double> direction;
    Vec4D<double> middle;
    double halfLength = 0;
    std::optional<std::size_t> nearest;  // in the order of the leaves

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

Tree::Tree(std::vector<Triangle3D<double>> const& triangles) : order_(triangles.size()) {
    std::vector<Vec4D<double>> centers;
    for (auto const& triangle : triangles) {
        auto const& [a, b, c] = triangle.vertex;
        centers.emplace_back((a + b + c) / 3);
    }
    triangles_ = triangles;
    std::iota(order_.begin(), order_.end(), std::size_t(0));
    Grow(centers, 0, triangles.size());
    for (std::size_t i = 0; i < order_.size(); ++i) triangles_[i] = triangles[order_[i]];
}

/// Makes the nodes over a range of order_, which it sorts, and returns the topmost.
std::size_t Tree::Grow(std::vector<Vec4D<double>> const& centers, std::size_t first, std::size_t last) {
    auto const at = [&](std::size_t i) { return order_.begin() + static_cast<std::ptrdiff_t>(i); };
    AABBox3D<double> spread;
    Node node;
    for (std::size_t i = first; i < last; ++i) {
        for (Vec4D<double> const& vertex : triangles_[order_[i]].vertex) node.box.Add(vertex);
        spread.Add(centers[order_[i]]);
    }
    node.first = first;
    node.axis = LongestAxis(spread);
    bool const isLeaf = last - first <= kMostInLeaf;
    if (isLeaf) node.count = last - first;

    std::size_t const index = nodes_.size();
    nodes_.push_back(node);
    if (isLeaf) return index;

    std::size_t const middle = first + (last - first) / 2;
    std::nth_element(at(first), at(middle), at(last), [&](std::size_t a, std::size_t b) {
        return centers[a][node.axis] < centers[b][node.axis];
    });
    Grow(centers, first, middle);
    std::size_t const second = Grow(centers, middle, last);
    nodes_[index].second = second;
    return index;
}

std::optional<Tree::Hit> Tree::FirstHit(Line3D<double> const& sight) const {
    Probe probe(sight);
    Search(0, probe);
    if (!probe.nearest) return std::nullopt;
    return Hit{order_[*probe.nearest], probe.sight.end};
}

void Tree::Search(std::size_t index, Probe& probe) const {
    Node const& node = nodes_[index];
    if (!node.box.Intersects(probe.middle, probe.direction, probe.halfLength)) return;
    for (std::size_t i = node.first; i < node.first + node.count; ++i) {
        Vec4D<double> point;
        if (triangles_[i].Intersects(probe.sight, point)) {
            probe.nearest = i;
            probe.EndAt(point);  // from now on only a nearer triangle can be hit
        }
    }
    if (node.count > 0) return;
    bool const isBackwards = probe.direction[node.axis] < 0;
    Search(isBackwards ? node.second : index + 1, probe);
    Search(isBackwards ? index + 1 : node.second, probe);
}

}  // namespace example
