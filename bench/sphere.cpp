#include "bench.h"
#include "peers.h"

#include <vertra/solid/sphere3d.h>

#include <functional>

namespace {

/// The x, y and z of kInputs vectors, or of one field of so many values, in a peer's type.
template <class Peer, class Ours, class Field = std::identity>
Peer const* Made(Ours const* ours, Field field = {}) {
    std::vector<Peer> made;
    for (int i = 0; i < kInputs; ++i) {
        auto const& v = std::invoke(field, ours[i]);
        made.emplace_back(v.x, v.y, v.z);
    }
    return Keep(std::move(made));
}

/// Spheres about the origin, and rays from well outside along unit directions, about half of which hit. The
/// hit lies ahead, so the peers, which look ahead alone, give the same answer.
template <class T>
void Register() {
    using vertra::Plane3D;
    using vertra::Sphere3D;
    using vertra::Vec4D;
    Random<T> random;
    std::vector<Sphere3D<T>> spheres;
    std::vector<Plane3D<T>> planes;
    std::vector<Vec4D<T>> origins;
    std::vector<Vec4D<T>> directions;
    for (int i = 0; i < kInputs; ++i) {
        Vec4D<T> const normal = Normalize(random.Point());
        spheres.emplace_back(random.Point(), (random.Scalar() + T(1.5)) * T(0.5));
        planes.emplace_back(normal, random.Scalar());
        origins.push_back(Normalize(random.Point()) * T(5));
        directions.push_back(Normalize(random.Point() - origins.back()));
    }
    auto const* const s = Keep(std::move(spheres));
    auto const* const p = Keep(std::move(planes));
    auto const* const o = Keep(std::move(origins));
    auto const* const d = Keep(std::move(directions));
    Operation<T> ray("ray against sphere", kInputs, 1, 0);
    ray.Add("vertra", [=](int i) {
        Vec4D<T> hit;
        int const result = s[i].Intersects(o[i], d[i], hit);
        Consume(hit);
        return result;
    });
    // Of glm and Imath no function tells the relation of a sphere and a plane, of Eigen neither has one with
    // a sphere: it is what a caller writes, like the point that glm's distance leads to.
    Operation<T> plane("sphere against plane", kInputs, 1, 0);
    plane.Add("vertra", [=](int i) { return s[i].Intersects(p[i]); });

#ifdef VERTRA_BENCH_GLM
    {
        using Vec3 = glm::vec<3, T>;
        auto const* const go = Made<Vec3>(o);
        auto const* const gd = Made<Vec3>(d);
        auto const* const center = Made<Vec3>(s, &Sphere3D<T>::center);
        auto const* const normal = Made<Vec3>(p, &Plane3D<T>::normal);
        ray.Add("glm", [=](int i) {
            T distance = 0;
            bool const result =
                glm::intersectRaySphere(go[i], gd[i], center[i], s[i].radius * s[i].radius, distance);
            Consume(go[i] + gd[i] * distance);
            return result;
        });
        plane.Add("glm", [=](int i) {
            return glm::abs(glm::dot(normal[i], center[i]) + p[i].distance) < s[i].radius;
        });
    }
#endif
#ifdef VERTRA_BENCH_EIGEN3
    {
        using Vec3 = Eigen::Matrix<T, 3, 1>;
        auto const* const center = Made<Vec3>(s, &Sphere3D<T>::center);
        std::vector<Eigen::Hyperplane<T, 3>> made;
        made.reserve(kInputs);
        for (int i = 0; i < kInputs; ++i) {
            made.emplace_back(Vec3(p[i].normal.x, p[i].normal.y, p[i].normal.z), p[i].distance);
        }
        auto const* const ep = Keep(std::move(made));
        plane.Add("Eigen", [=](int i) { return ep[i].absDistance(center[i]) < s[i].radius; });
    }
#endif
#ifdef VERTRA_BENCH_IMATH
    {
        using Vec3 = Imath::Vec3<T>;
        auto const* const center = Made<Vec3>(s, &Sphere3D<T>::center);
        auto const* const normal = Made<Vec3>(p, &Plane3D<T>::normal);
        std::vector<Imath::Sphere3<T>> madeSpheres;
        std::vector<Imath::Plane3<T>> madePlanes;
        std::vector<Imath::Line3<T>> madeLines;
        for (int i = 0; i < kInputs; ++i) {
            madeSpheres.emplace_back(center[i], s[i].radius);
            madePlanes.emplace_back(normal[i], -p[i].distance);
            madeLines.emplace_back();
            madeLines.back().pos = Vec3(o[i].x, o[i].y, o[i].z);
            madeLines.back().dir = Vec3(d[i].x, d[i].y, d[i].z);
        }
        auto const* const is = Keep(std::move(madeSpheres));
        auto const* const ip = Keep(std::move(madePlanes));
        auto const* const il = Keep(std::move(madeLines));
        ray.Add("Imath", [=](int i) {
            Vec3 hit;
            bool const result = is[i].intersect(il[i], hit);
            Consume(hit);
            return result;
        });
        plane.Add("Imath", [=](int i) { return std::abs(ip[i].distanceTo(is[i].center)) < is[i].radius; });
    }
#endif
}

}  // namespace

void RegisterSphere() {
    Register<float>();
    Register<double>();
}
