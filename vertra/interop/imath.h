#pragma once

#include <vertra/appearance/color3d.h>
#include <vertra/numeric/vec2d.h>
#include <vertra/numeric/vec3d.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/transform/matrix3d.h>
#include <vertra/transform/quat3d.h>

#include <Imath/ImathColor.h>
#include <Imath/ImathMatrix.h>
#include <Imath/ImathQuat.h>
#include <Imath/ImathVec.h>

/// @file
/// To Imath and back, exactly. A w goes both ways: a Vec4D initialised from FromImath has it, while one that
/// is assigned keeps its own, as ever.
namespace vertra {

/// @{ Component by component.
template <class T>
constexpr Imath::Vec4<T> ToImath(Vec4D<T> const& v) {
    return {v.x, v.y, v.z, v.w};
}
template <class T>
constexpr Imath::Vec3<T> ToImath(Vec3D<T> const& v) {
    return {v.x, v.y, v.z};
}
template <class T>
constexpr Imath::Vec2<T> ToImath(Vec2D<T> const& v) {
    return {v.x, v.y};
}
template <class T>
constexpr Imath::Color4<T> ToImath(Color3D<T> const& c) {
    return {c.r, c.g, c.b, c.a};
}
/// @}
/// The same matrix: both have rows for points, and the same order in memory. `p * ToImath(m)` is the point
/// of `v * m`, but divided by its w.
template <class T>
Imath::Matrix44<T> ToImath(Matrix3D<T> const& a) {
    T const* const m = a.m;
    return {m[0], m[1], m[2],  m[3],  m[4],  m[5],  m[6],  m[7],
            m[8], m[9], m[10], m[11], m[12], m[13], m[14], m[15]};
}
/// The same four numbers, which for both are the rotation by the angle that the quaternion was made with.
/// Imath's rotateVector and its toMatrix44 turn by it; our products with vectors, and ToMatrix, turn by minus
/// that angle: `p * ToImath(q).toMatrix44()` is `Conj(q) * v`.
template <class T>
constexpr Imath::Quat<T> ToImath(Quat3D<T> const& q) {
    return {q.w, q.x, q.y, q.z};
}

/// @{ The inverse, number by number.
template <class T>
constexpr Vec4D<T> FromImath(Imath::Vec4<T> const& v) {
    return Vec4D<T>(v.x, v.y, v.z, v.w);
}
template <class T>
constexpr Vec3D<T> FromImath(Imath::Vec3<T> const& v) {
    return Vec3D<T>(v.x, v.y, v.z);
}
template <class T>
constexpr Vec2D<T> FromImath(Imath::Vec2<T> const& v) {
    return Vec2D<T>(v.x, v.y);
}
template <class T>
constexpr Color3D<T> FromImath(Imath::Color4<T> const& c) {
    return Color3D<T>(c.r, c.g, c.b, c.a);
}
template <class T>
Matrix3D<T> FromImath(Imath::Matrix44<T> const& a) {
    return Matrix3D<T>(a[0]);
}
template <class T>
constexpr Quat3D<T> FromImath(Imath::Quat<T> const& q) {
    return Quat3D<T>(q.v.x, q.v.y, q.v.z, q.r);
}
/// @}

}  // namespace vertra
