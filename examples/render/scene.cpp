#include "render/scene.h"

#include <cstddef>
#include <utility>

namespace example {
namespace {

using vertra::Line3D;
using vertra::Vec4D;

/// The triangle's normal times the sine of its angle at a. The sides come to unit length first: the square of
/// a small area falls below the range of float, through which `Normalize` passes.
Vec4D<double> CornerNormal(Vec4D<double> const& a, Vec4D<double> const& b, Vec4D<double> const& c) {
    return Normalize(b - a) ^ Normalize(c - a);
}

/// Each vertex's normal is the mean of its triangles', weighed by the sines of their angles there.
std::vector<Vec4D<double>> VertexNormals(Mesh const& mesh) {
    std::vector<Vec4D<double>> normals(mesh.vertices);
    for (std::size_t i = 0; i < mesh.triangles.size(); ++i) {
        auto const& [a, b, c] = mesh.triangles[i].vertex;
        auto const& corners = mesh.corners[i];
        normals[corners[0]] += CornerNormal(a, b, c);
        normals[corners[1]] += CornerNormal(b, c, a);
        normals[corners[2]] += CornerNormal(c, a, b);
    }
    for (auto& normal : normals) normal = Normalize(normal);
    return normals;
}

}  // namespace

Scene::Scene(Mesh mesh, bool isFlat, Material const& material, std::vector<Light> lights,
             Color const& background)
    : mesh_(std::move(mesh)),
      tree_(mesh_.triangles),
      material_(material),
      lights_(std::move(lights)),
      background_(background) {
    if (!isFlat) normals_ = VertexNormals(mesh_);
}

Vec4D<double> Scene::NormalAt(Tree::Hit const& hit) const {
    auto const& [a, b, c] = mesh_.triangles[hit.triangle].vertex;
    if (normals_.empty()) return Normalize(CornerNormal(a, b, c));

    // Barycentric coordinates: each vertex weighs as much as the triangle between the point and the other
    // two.
    Vec4D<double> const& p = hit.point;
    Vec4D<double> const area = (b - a) ^ (c - a);
    auto const& corners = mesh_.corners[hit.triangle];
    Vec4D<double> const sum = normals_[corners[0]] * (((b - p) ^ (c - p)) * area) +
                              normals_[corners[1]] * (((c - p) ^ (a - p)) * area) +
                              normals_[corners[2]] * (((a - p) ^ (b - p)) * area);
    return Normalize(sum / (area * area));
}

Color Scene::See(Line3D<double> const& sight) const {
    auto const hit = tree_.FirstHit(sight);
    if (!hit) return background_;
    Vec4D<double> const direction = Normalize(sight.end - sight.start);
    auto const& [a, b, c] = mesh_.triangles[hit->triangle].vertex;
    bool const isBack = CornerNormal(a, b, c) * direction > 0;  // both sides of a triangle are alike
    Vec4D<double> const normal = NormalAt(*hit);
    return Shade({hit->point, isBack ? -normal : normal, -direction}, material_, lights_);
}

}  // namespace example
