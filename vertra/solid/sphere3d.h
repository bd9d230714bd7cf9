#pragma once

#include <vertra/export.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/solid/plane3d.h>

namespace vertra {

/// A solid sphere; its radius may be 0 or negative, no operation tests it. Touching is outside everywhere.
///
/// The geometry lives in x, y, z; the w of the center follows the rules of `Vec4D`.
template <class T>
class VERTRA_API Sphere3D {
public:
    /// @{ In memory in this order, without gaps.
    Vec4D<T> center;
    T radius;
    /// @}

    /// Radius 0 at the origin.
    constexpr Sphere3D() : Sphere3D(Vec4D<T>(), T(0)) {}
    /// Each as given.
    constexpr Sphere3D(Vec4D<T> const& c, T r) : center(c), radius(r) {}
    /// center.w becomes 0.
    constexpr Sphere3D(Sphere3D const& other);

    /// center.w stays.
    constexpr Sphere3D const& operator=(Sphere3D other);

    /// 4 pi r^2, with the float value of pi in both scalars, computed in double.
    constexpr T SurfaceArea() const { return static_cast<T>(12.566370964050293 * radius * radius); }
    /// 1.33333333 pi r^3 with the same pi: not quite 4/3.
    constexpr T Volume() const { return static_cast<T>(4.188790310878122 * radius * radius * radius); }

    /// The surface is outside.
    constexpr int IsInside(Vec4D<T> const& point) const {
        return radius * radius > GetDistanceBetween2(point, center);
    }
    /// The surface point on the line from the center through the point. The center gives itself.
    constexpr Vec4D<T> GetClosestPointOnSurface(Vec4D<T> const& point) const;
    /// 1 when they overlap; a touch is none.
    constexpr int Intersects(Sphere3D const& other) const;
    /// 1 where the plane passes through, EIR_STRADDLING of `Plane3D::ClassifySphere`.
    constexpr int Intersects(Plane3D<T> const& plane) const;
    /// The unbounded line through origin along a unit direction. hit becomes the first of its two points on
    /// the surface, which may lie behind the origin; where the line misses, 0 and hit untouched. A graze (a
    /// discriminant down to -1e-4) counts as contact at the nearest point. Another length of direction puts
    /// hit off the sphere.
    constexpr int Intersects(Vec4D<T> const& origin, Vec4D<T> const& direction, Vec4D<T>& hit) const;
};

/// @{ Exact, center.w included.
template <class T>
constexpr int operator==(Sphere3D<T> const& a, Sphere3D<T> const& b) {
    return a.radius == b.radius && a.center == b.center;
}
template <class T>
constexpr int operator!=(Sphere3D<T> const& a, Sphere3D<T> const& b) {
    return !(a == b);
}
/// @}

/// When two moving spheres first touch, for velocities whose difference has length 1: the time of contact,
/// negative where it lies in the past; 0 where they overlap now; -1 where they never meet. A graze (a
/// discriminant down to -1e-4) counts as contact. Another relative speed gives a number that is no time.
template <class T>
constexpr T Collides(Sphere3D<T> const& a, Vec4D<T> const& velocityA, Sphere3D<T> const& b,
                     Vec4D<T> const& velocityB);

namespace detail {

/// The root of a sweep's discriminant, which may be slightly negative where spheres graze: 0 there.
template <class T>
constexpr T SweepRoot(T discriminant) {
    return discriminant < 0 ? T(0) : FastSqrt(static_cast<float>(discriminant));
}

}  // namespace detail

template <class T>
constexpr Sphere3D<T>::Sphere3D(Sphere3D const&) = default;

template <class T>
constexpr Sphere3D<T> const& Sphere3D<T>::operator=(Sphere3D other) {
    center = other.center;
    radius = other.radius;
    return *this;
}

template <class T>
constexpr Vec4D<T> Sphere3D<T>::GetClosestPointOnSurface(Vec4D<T> const& point) const {
    T const d = GetDistanceBetween(point, center);
    return point + (center - point) * ((d - radius) / d);
}

template <class T>
constexpr int Sphere3D<T>::Intersects(Sphere3D const& other) const {
    T const reach = radius + other.radius;
    return reach * reach > GetDistanceBetween2(center, other.center);
}

template <class T>
constexpr int Sphere3D<T>::Intersects(Plane3D<T> const& plane) const {
    return plane.ClassifySphere(*this) == EIR_STRADDLING;
}

template <class T>
constexpr int Sphere3D<T>::Intersects(Vec4D<T> const& origin, Vec4D<T> const& direction,
                                      Vec4D<T>& hit) const {
    Vec4D<T> const q = center - origin;
    T const v = detail::Dot3(direction, q);
    T const discriminant = (radius * radius - Len2(q)) + v * v;
    if (-detail::kContactTolerance > discriminant) return 0;
    hit = origin + direction * (v - detail::SweepRoot(discriminant));
    return 1;
}

template <class T>
constexpr T Collides(Sphere3D<T> const& a, Vec4D<T> const& velocityA, Sphere3D<T> const& b,
                     Vec4D<T> const& velocityB) {
    Vec4D<T> const apart = a.center - b.center;
    T const reach = a.radius + b.radius;
    if (reach * reach > Len2(apart)) return T(0);
    T const p = detail::Dot3(velocityB - velocityA, apart);
    T const discriminant = p * p + reach * reach - Len2(apart);
    if (-detail::kContactTolerance > discriminant) return T(-1);
    return p - detail::SweepRoot(discriminant);
}

template <class T>
constexpr EINTERSECTION_RELATION Plane3D<T>::ClassifySphere(Sphere3D<T> const& sphere) const {
    T const s = Distance(sphere.center);
    if (-sphere.radius >= s) return EIR_BEHIND;
    if (s >= sphere.radius) return EIR_IN_FRONT;
    return EIR_STRADDLING;
}

#define VERTRA_SPHERE3D(INSTANTIATE, T)                                                        \
    INSTANTIATE class Sphere3D<T>;                                                             \
    INSTANTIATE VERTRA_API int operator==(Sphere3D<T> const&, Sphere3D<T> const&);             \
    INSTANTIATE VERTRA_API int operator!=(Sphere3D<T> const&, Sphere3D<T> const&);             \
    INSTANTIATE VERTRA_API T Collides(Sphere3D<T> const&, Vec4D<T> const&, Sphere3D<T> const&, \
                                      Vec4D<T> const&);

VERTRA_SPHERE3D(extern template, float)
VERTRA_SPHERE3D(extern template, double)

}  // namespace vertra
