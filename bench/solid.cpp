#include "bench.h"
#include "peers.h"

#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/triangle3d.h>

#include <array>

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

/// The six bounds of a box.
template <class T, class Low, class High>
std::array<T, 6> Bounds(Low const& low, High const& high) {
    return {low[0], low[1], low[2], high[0], high[1], high[2]};
}

template <class T>
void RegisterGrowth() {
    Random<T> random;
    std::vector<Vec4D<T>> points(kMany);
    for (auto& point : points) point = random.Point();
    auto const* const p = Keep(std::move(points));
    IF_EIGEN(auto const* const e3 = As<Eigen::Matrix<T, 3, 1>>(p, kMany);
             auto const* const e4 = As<Eigen::Matrix<T, 4, 1>>(p, kMany);)
    IF_IMATH(auto const* const ip = As<Imath::Vec3<T>>(p, kMany);)

    Operation<T> growth("box growth", 1, 6, 0);
    auto const ours = [=](int) {
        AABBox3D<T> box;
        for (int i = 0; i < kMany; ++i) box.Add(p[i]);
        return Bounds<T>(box.min, box.max);
    };
    growth.Add("vertra", ours, kMany);
#ifdef VERTRA_BENCH_EIGEN3
    auto const eigen3 = [=](int) {
        Eigen::AlignedBox<T, 3> box;
        for (int i = 0; i < kMany; ++i) box.extend(e3[i]);
        return Bounds<T>(box.min(), box.max());
    };
    growth.Add("Eigen three", eigen3, kMany);
    // Four dimensions: more work than ours, but all of it side by side.
    auto const eigen4 = [=](int) {
        Eigen::AlignedBox<T, 4> box;
        for (int i = 0; i < kMany; ++i) box.extend(e4[i]);
        return Bounds<T>(box.min(), box.max());
    };
    growth.Add("Eigen four", eigen4, kMany);
#endif
#ifdef VERTRA_BENCH_IMATH
    auto const imath = [=](int) {
        Imath::Box<Imath::Vec3<T>> box;
        for (int i = 0; i < kMany; ++i) box.extendBy(ip[i]);
        return Bounds<T>(box.min, box.max);
    };
    growth.Add("Imath", imath, kMany);
#endif
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
}

}  // namespace

void RegisterSolid() {
    RegisterSegment<float>();
    RegisterSegment<double>();
    RegisterGrowth<float>();
    RegisterGrowth<double>();
    RegisterTriangle<float>();
    RegisterTriangle<double>();
}
