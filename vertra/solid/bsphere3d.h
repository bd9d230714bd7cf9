#pragma once

#include <vertra/export.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/sphere3d.h>

namespace vertra {

/// A sphere as a bounding volume. It grows around a center that stays where it is, so it is not the smallest
/// one around what was added.
template <class T>
class VERTRA_API BSphere3D : public Sphere3D<T> {
public:
    /// @{ As in `Sphere3D`.
    using Sphere3D<T>::center;
    using Sphere3D<T>::radius;
    using Sphere3D<T>::Intersects;
    /// @}

    /// Radius 0 at the origin.
    constexpr BSphere3D() : Sphere3D<T>() {}
    /// @{ As given; center.w is 0.
    constexpr BSphere3D(Vec4D<T> const& c, T r) : Sphere3D<T>(c, r) {}
    constexpr BSphere3D(BSphere3D const& other);
    constexpr BSphere3D(Sphere3D<T> const& other) : Sphere3D<T>(other) {}
    /// @}
    /// Around the box: its center, and the distance from there to its max.
    constexpr BSphere3D(AABBox3D<T> const& box)
        : Sphere3D<T>(box.Center(), GetDistanceBetween(box.Center(), box.max)) {}

    /// center.w stays.
    constexpr BSphere3D const& operator=(BSphere3D const& other) { return Reset(other.center, other.radius); }

    /// 1 when they overlap; a touch is none.
    constexpr int Intersects(BSphere3D const& other) const { return Sphere3D<T>::Intersects(other); }
    /// 1 when the center lies in or on the box, or nearer to it than the radius; a touch from outside is
    /// none.
    constexpr int Intersects(AABBox3D<T> const& box) const;

    /// A point at the radius or beyond, or a NaN, makes its distance the radius.
    constexpr BSphere3D const& Add(Vec4D<T> const& point);
    /// Adds max, then min, and no other corner: the whole box is held only where the centers agree.
    constexpr BSphere3D const& Add(AABBox3D<T> const& box);
    /// Grows to enclose the other sphere.
    constexpr BSphere3D const& Add(BSphere3D const& other);
    /// Becomes the sphere around the box; the w of the center stays.
    constexpr BSphere3D const& FitAround(AABBox3D<T> const& box);
    /// As given; center.w stays.
    constexpr BSphere3D const& Reset(Vec4D<T> const& c, T r);
    /// Radius 0 at the origin.
    constexpr BSphere3D const& Reset() { return Reset(Vec4D<T>(), T(0)); }
};

/// @{ Exact, center.w included.
template <class T>
constexpr int operator==(BSphere3D<T> const& a, BSphere3D<T> const& b) {
    return static_cast<Sphere3D<T> const&>(a) == b;
}
template <class T>
constexpr int operator!=(BSphere3D<T> const& a, BSphere3D<T> const& b) {
    return !(a == b);
}
/// @}

template <class T>
constexpr BSphere3D<T>::BSphere3D(BSphere3D const&) = default;

template <class T>
constexpr int BSphere3D<T>::Intersects(AABBox3D<T> const& box) const {
    return box.IsInside(center) || radius * radius > GetDistanceBetween2(center, box.GetClosestPoint(center));
}

template <class T>
constexpr BSphere3D<T> const& BSphere3D<T>::Add(Vec4D<T> const& point) {
    if (!this->IsInside(point)) radius = GetDistanceBetween(center, point);
    return *this;
}

template <class T>
constexpr BSphere3D<T> const& BSphere3D<T>::Add(AABBox3D<T> const& box) {
    Add(box.max);
    return Add(box.min);
}

template <class T>
constexpr BSphere3D<T> const& BSphere3D<T>::Add(BSphere3D const& other) {
    T const reach = GetDistanceBetween(center, other.center) + other.radius;
    detail::Raise(radius, reach);
    return *this;
}

template <class T>
constexpr BSphere3D<T> const& BSphere3D<T>::FitAround(AABBox3D<T> const& box) {
    Reset(box.Center(), T(0));
    return Add(box);
}

template <class T>
constexpr BSphere3D<T> const& BSphere3D<T>::Reset(Vec4D<T> const& c, T r) {
    center = c;
    radius = r;
    return *this;
}

#define VERTRA_BSPHERE3D(INSTANTIATE, T)                                             \
    INSTANTIATE class BSphere3D<T>;                                                  \
    INSTANTIATE VERTRA_API int operator==(BSphere3D<T> const&, BSphere3D<T> const&); \
    INSTANTIATE VERTRA_API int operator!=(BSphere3D<T> const&, BSphere3D<T> const&);

VERTRA_BSPHERE3D(extern template, float)
VERTRA_BSPHERE3D(extern template, double)

}  // namespace vertra
