#include "bench.h"
#include "peers.h"

#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/triangle3d.h>

#include <array>
#include <cstring>

namespace {

using vertra::AABBox3D;
using vertra::Line3D;
using vertra::Triangle3D;
using vertra::Vec4D;

constexpr int kMany = 100000;

/// A segment as AABBox3D takes it ready made.
template <class T>
struct Ready {
    Vec4D<T> middle, direction;
    T halfLength;
};

/// Our boxes as a peer's, which has the three components of each corner in a row.
template <class Peer, class T>
Peer const* Boxes(AABBox3D<T> const* ours, int count) {
    std::vector<std::array<T, 6>> bounds;
    for (auto const* box = ours; box != ours + count; ++box) {
        bounds.push_back({box->min.x, box->min.y, box->min.z, box->max.x, box->max.y, box->max.z});
    }
    std::vector<Peer> peers(bounds.size());
    std::memcpy(static_cast<void*>(peers.data()), bounds.data(), sizeof(Peer) * peers.size());
    return Keep(std::move(peers));
}
IF_CGLM(struct CglmBox { vec3 v[2]; };)

/// Boxes about the origin and segments that begin and end well outside, half of which hit. For such segments
/// the peer's ray gives the same answer: Imath has no test of a segment. It tells the point of the hit as
/// well.
template <class T>
void RegisterSegment() {
    Random<T> random;
    std::vector<AABBox3D<T>> boxes;
    std::vector<Line3D<T>> lines;
    std::vector<Ready<T>> readies;
    for (int i = 0; i < kInputs; ++i) {
        Vec4D<T> const center = random.Point();
        Vec4D<T> const half = (random.Point() + Vec4D<T>(T(1))) * T(0.65);
        boxes.emplace_back(center - half, center + half);
        Vec4D<T> const start = Normalize(random.Point()) * T(5);
        Vec4D<T> const direction = Normalize(random.Point() - start);
        lines.emplace_back(start, start + direction * T(10));
        readies.push_back({lines.back().Midpoint(), direction, T(5)});
    }
    auto const* const b = Keep(std::move(boxes));
    auto const* const l = Keep(std::move(lines));
    auto const* const r = Keep(std::move(readies));

#ifdef VERTRA_BENCH_IMATH
    using Point = Imath::Vec3<T>;
    auto const point = [](Vec4D<T> const& v) { return Point(v.x, v.y, v.z); };
    std::vector<Imath::Box<Point>> imathBoxes;
    std::vector<std::array<Point, 2>> imathEnds;
    std::vector<Imath::Line3<T>> imathLines;
    for (int i = 0; i < kInputs; ++i) {
        imathBoxes.emplace_back(point(b[i].min), point(b[i].max));
        imathEnds.push_back({point(l[i].start), point(l[i].end)});
        imathLines.emplace_back(point(l[i].start), point(l[i].end));
    }
    auto const* const ib = Keep(std::move(imathBoxes));
    auto const* const ie = Keep(std::move(imathEnds));
    auto const* const il = Keep(std::move(imathLines));
#endif

    Operation<T> ready("ready segment against box", kInputs, 1, 0);
    ready.Add("vertra", [=](int i) { return b[i].Intersects(r[i].middle, r[i].direction, r[i].halfLength); });
    IF_IMATH(ready.Add("Imath", [=](int i) { return Imath::intersects(ib[i], il[i]); });)

    // Both sides normalise the direction first.
    Operation<T> segment("segment by its ends against box", kInputs, 1, 0);
    segment.Add("vertra", [=](int i) { return b[i].Intersects(l[i]); });
    IF_IMATH(segment.Add(
        "Imath", [=](int i) { return Imath::intersects(ib[i], Imath::Line3<T>(ie[i][0], ie[i][1])); });)
}

/// Boxes of which about half overlap the next, and points of which some lie inside.
template <class T>
void RegisterBox() {
    Random<T> random;
    std::vector<AABBox3D<T>> boxes;
    std::vector<Vec4D<T>> points;
    for (int i = 0; i <= kInputs; ++i) {
        Vec4D<T> const center = random.Point();
        Vec4D<T> const half = (random.Point() + Vec4D<T>(T(2))) * T(0.3);
        boxes.emplace_back(center - half, center + half);
        points.push_back(center + random.Point() * T(0.6));
    }
    auto const* const b = Keep(std::move(boxes));
    auto const* const p = Keep(std::move(points));
    [[maybe_unused]] int const count = kInputs + 1;
    IF_EIGEN(using EigenBox = Eigen::AlignedBox<T, 3>; auto const* const eb = Boxes<EigenBox>(b, count);
             auto const* const ep = As<Eigen::Matrix<T, 3, 1>>(p, count);)
    IF_IMATH(using ImathBox = Imath::Box<Imath::Vec3<T>>; auto const* const ib = Boxes<ImathBox>(b, count);
             auto const* const ip = As<Imath::Vec3<T>>(p, count);)
    IF_CGLM(auto* const cb = Writable(Boxes<CglmBox>(b, count));
            auto* const cp = Writable(As<CglmVec3>(p, count));)

    Operation<T> overlap("box against box", kInputs, 1, 0);
    overlap.Add("vertra", [=](int i) { return b[i].Intersects(b[i + 1]); });
    IF_EIGEN(overlap.Add("Eigen", [=](int i) { return eb[i].intersects(eb[i + 1]); });)
    IF_IMATH(overlap.Add("Imath", [=](int i) { return ib[i].intersects(ib[i + 1]); });)
    IF_CGLM(if constexpr (kFloat<T>)
                overlap.Add("cglm", [=](int i) { return CGLM(aabb_aabb)(cb[i].v, cb[i + 1].v); });)

    Operation<T> inside("point in box", kInputs, 1, 0);
    inside.Add("vertra", [=](int i) { return b[i].IsInside(p[i]); });
    IF_EIGEN(inside.Add("Eigen", [=](int i) { return eb[i].contains(ep[i]); });)
    IF_IMATH(inside.Add("Imath", [=](int i) { return ib[i].intersects(ip[i]); });)
    IF_CGLM(if constexpr (kFloat<T>)
                inside.Add("cglm", [=](int i) { return CGLM(aabb_point)(cb[i].v, cp[i].v); });)
}

/// Small triangles about the origin, of which the ray hits one in a hundred. We and Imath tell the point of a
/// hit, glm its barycentric coordinates.
template <class T>
void RegisterTriangle() {
    Random<T> random;
    std::vector<Triangle3D<T>> triangles;
    for (int i = 0; i < kMany; ++i) {
        Vec4D<T> const center = random.Point();
        auto const near = [&] { return center + random.Point() * T(0.3); };
        Vec4D<T> const a = near();
        Vec4D<T> const b = near();
        triangles.emplace_back(a, b, near());
    }
    auto const* const t = Keep(std::move(triangles));
    Vec4D<T> const from(T(-2), T(-2.1), T(-1.9));
    Vec4D<T> const along(T(1), T(1.1), T(0.9));

    Operation<T> ray("ray against triangle", kMany, 1, 0);
    ray.Add("vertra", [=](int i) {
        Vec4D<T> hit;
        int const result = t[i].Intersects(from, along, hit);
        Consume(hit);
        return result;
    });
#ifdef VERTRA_BENCH_GLM
    using Vec3 = glm::vec<3, T>;
    auto const vec3 = [](Vec4D<T> const& v) { return Vec3(v.x, v.y, v.z); };
    std::vector<std::array<Vec3, 3>> glmTriangles;
    glmTriangles.reserve(kMany);
    for (int i = 0; i < kMany; ++i) glmTriangles.push_back({vec3(t[i][0]), vec3(t[i][1]), vec3(t[i][2])});
    auto const* const g = Keep(std::move(glmTriangles));
    ray.Add("glm", [=, from = vec3(from), along = vec3(along)](int i) {
        glm::vec<2, T> barycentric;
        T distance = 0;
        bool const result =
            glm::intersectRayTriangle(from, along, g[i][0], g[i][1], g[i][2], barycentric, distance);
        Consume(barycentric);
        Consume(distance);
        return result;
    });
#endif
#ifdef VERTRA_BENCH_IMATH
    using Point = Imath::Vec3<T>;
    auto const point = [](Vec4D<T> const& v) { return Point(v.x, v.y, v.z); };
    std::vector<std::array<Point, 3>> imathTriangles;
    imathTriangles.reserve(kMany);
    for (int i = 0; i < kMany; ++i) {
        imathTriangles.push_back({point(t[i][0]), point(t[i][1]), point(t[i][2])});
    }
    auto const* const m = Keep(std::move(imathTriangles));
    ray.Add("Imath", [=, line = Imath::Line3<T>(point(from), point(from + along))](int i) {
        Point hit;
        Point barycentric;
        bool front = false;
        bool const result = Imath::intersect(line, m[i][0], m[i][1], m[i][2], hit, barycentric, front);
        Consume(hit);
        Consume(barycentric);
        return result;
    });
#endif
#ifdef VERTRA_BENCH_CGLM
    if constexpr (kFloat<T>) {
        std::vector<std::array<CglmVec3, 3>> cglmTriangles;
        cglmTriangles.reserve(kMany);
        auto const corner = [](Vec4D<T> const& v) { return CglmVec3{{v.x, v.y, v.z}}; };
        for (int i = 0; i < kMany; ++i) {
            cglmTriangles.push_back({corner(t[i][0]), corner(t[i][1]), corner(t[i][2])});
        }
        auto* const c = Writable(Keep(std::move(cglmTriangles)));
        ray.Add("cglm", [=, from = corner(from), along = corner(along)](int i) mutable {
            float distance = 0;
            bool const result =
                CGLM(ray_triangle)(from.v, along.v, c[i][0].v, c[i][1].v, c[i][2].v, &distance);
            Consume(distance);
            return result;
        });
    }
#endif
}

}  // namespace

void RegisterSolid() {
    RegisterSegment<float>();
    RegisterSegment<double>();
    RegisterBox<float>();
    RegisterBox<double>();
    RegisterTriangle<float>();
    RegisterTriangle<double>();
}
