#include "bench.h"
#include "peers.h"

#include <vertra/planar/rect2d.h>

#include <array>

namespace {

/// Rectangles about the origin, so that each overlaps the next, and points of which about half lie inside.
/// No peer but Eigen has an intersection; with glm it is what a caller writes.
template <class T>
void Register() {
    using vertra::Position2D;
    using vertra::Rect2D;
    Random<T> random;
    std::vector<Rect2D<T>> rectangles;
    std::vector<Position2D<T>> points;
    for (int i = 0; i <= kInputs; ++i) {
        auto const low = random.Point() - vertra::Vec4D<T>(T(1.1));
        auto const high = random.Point() + vertra::Vec4D<T>(T(1.1));
        rectangles.emplace_back(low.x, low.y, high.x, high.y);
        points.emplace_back(random.Scalar() * T(1.5), random.Scalar() * T(1.5));
    }
    auto const* const r = Keep(std::move(rectangles));
    auto const* const p = Keep(std::move(points));
    IF_GLM(using Vec2 = glm::vec<2, T>; using Corners = std::array<Vec2, 2>;
           auto const* const gr = As<Corners>(r, kInputs + 1); auto const* const gp = As<Vec2>(p, kInputs);)
    IF_EIGEN(using Box = Eigen::AlignedBox<T, 2>; auto const* const er = As<Box>(r, kInputs + 1);
             auto const* const ep = As<Eigen::Matrix<T, 2, 1>>(p, kInputs);)
    IF_IMATH(auto const* const ir = As<Imath::Box<Imath::Vec2<T>>>(r, kInputs + 1);
             auto const* const ip = As<Imath::Vec2<T>>(p, kInputs);)

    Operation<T> clip("rectangle clip", kInputs, 4, 0);
    clip.Add("vertra", [=](int i) {
        Rect2D<T> clipped = r[i];
        clipped.Clip(r[i + 1]);
        return clipped;
    });
    IF_GLM(clip.Add("glm", [=](int i) {
        return Corners{glm::max(gr[i][0], gr[i + 1][0]), glm::min(gr[i][1], gr[i + 1][1])};
    });)
    IF_EIGEN(clip.Add("Eigen", [=](int i) -> Box { return er[i].intersection(er[i + 1]); });)

    Operation<T> hit("point in rectangle", kInputs, 1, 0);
    hit.Add("vertra", [=](int i) { return r[i].IsPointInside(p[i]); });
    IF_GLM(hit.Add("glm", [=](int i) {
        return glm::all(glm::lessThanEqual(gr[i][0], gp[i])) && glm::all(glm::lessThanEqual(gp[i], gr[i][1]));
    });)
    IF_EIGEN(hit.Add("Eigen", [=](int i) { return er[i].contains(ep[i]); });)
    IF_IMATH(hit.Add("Imath", [=](int i) { return ir[i].intersects(ip[i]); });)
}

}  // namespace

void RegisterPlanar() {
    Register<float>();
    Register<double>();
}
