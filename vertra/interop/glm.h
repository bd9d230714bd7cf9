#pragma once

#include <vertra/appearance/color3d.h>
#include <vertra/numeric/vec2d.h>
#include <vertra/numeric/vec3d.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/transform/matrix3d.h>
#include <vertra/transform/quat3d.h>

#include <glm/gtc/quaternion.hpp>
#include <glm/gtc/type_ptr.hpp>
#include <glm/matrix.hpp>
#include <glm/vec2.hpp>
#include <glm/vec3.hpp>
#include <glm/vec4.hpp>

/// @file
/// To glm and back, exactly. A w goes both ways: a Vec4D initialised from FromGlm has it, while one that is
/// assigned keeps its own, as ever. A color is FromVector(FromGlm(c)).
namespace vertra {

/// @{ Component by component.
template <class T>
constexpr glm::vec<4, T> ToGlm(Vec4D<T> const& v) {
    return {v.x, v.y, v.z, v.w};
}
template <class T>
constexpr glm::vec<3, T> ToGlm(Vec3D<T> const& v) {
    return {v.x, v.y, v.z};
}
template <class T>
constexpr glm::vec<2, T> ToGlm(Vec2D<T> const& v) {
    return {v.x, v.y};
}
template <class T>
constexpr glm::vec<4, T> ToGlm(Color3D<T> const& c) {
    return {c.r, c.g, c.b, c.a};
}
/// @}
/// The same sixteen numbers in memory: our rows are glm's columns. So `ToGlm(m) * p` is the point of
/// `v * m`, and ToGlm(a * b) is `ToGlm(b) * ToGlm(a)`.
template <class T>
glm::mat<4, 4, T> ToGlm(Matrix3D<T> const& a) {
    return glm::make_mat4(a.m);
}
/// The same four numbers, which for both are the rotation by the angle that the quaternion was made with.
/// glm's products with vectors and its mat4_cast turn by it; ours, and ToMatrix, turn by minus that angle:
/// `ToGlm(q) * p` is `Conj(q) * v`.
template <class T>
constexpr glm::qua<T> ToGlm(Quat3D<T> const& q) {
    return {q.w, q.x, q.y, q.z};
}

/// @{ The inverse, number by number.
template <class T, glm::qualifier Q>
constexpr Vec4D<T> FromGlm(glm::vec<4, T, Q> const& v) {
    return Vec4D<T>(v.x, v.y, v.z, v.w);
}
template <class T, glm::qualifier Q>
constexpr Vec3D<T> FromGlm(glm::vec<3, T, Q> const& v) {
    return Vec3D<T>(v.x, v.y, v.z);
}
template <class T, glm::qualifier Q>
constexpr Vec2D<T> FromGlm(glm::vec<2, T, Q> const& v) {
    return Vec2D<T>(v.x, v.y);
}
template <class T, glm::qualifier Q>
Matrix3D<T> FromGlm(glm::mat<4, 4, T, Q> const& a) {
    return Matrix3D<T>(glm::value_ptr(a));
}
template <class T, glm::qualifier Q>
constexpr Quat3D<T> FromGlm(glm::qua<T, Q> const& q) {
    return Quat3D<T>(q.x, q.y, q.z, q.w);
}
/// @}

}  // namespace vertra
