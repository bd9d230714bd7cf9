#pragma once

#include <vertra/appearance/color3d.h>
#include <vertra/numeric/vec2d.h>
#include <vertra/numeric/vec3d.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/transform/matrix3d.h>
#include <vertra/transform/quat3d.h>

#include <Eigen/Geometry>

/// @file
/// To Eigen and back, exactly. A w goes both ways: a Vec4D initialised from FromEigen has it, while one that
/// is assigned keeps its own, as ever. A color is FromVector(FromEigen(c)).
namespace vertra {

/// @{ Component by component.
template <class T>
Eigen::Matrix<T, 4, 1> ToEigen(Vec4D<T> const& v) {
    return {v.x, v.y, v.z, v.w};
}
template <class T>
Eigen::Matrix<T, 3, 1> ToEigen(Vec3D<T> const& v) {
    return {v.x, v.y, v.z};
}
template <class T>
Eigen::Matrix<T, 2, 1> ToEigen(Vec2D<T> const& v) {
    return {v.x, v.y};
}
template <class T>
Eigen::Matrix<T, 4, 1> ToEigen(Color3D<T> const& c) {
    return {c.r, c.g, c.b, c.a};
}
/// @}
/// The transpose, for vectors that are columns: `ToEigen(m) * p` is the point of `v * m`, and ToEigen(a * b)
/// is `ToEigen(b) * ToEigen(a)`. In Eigen's own order of storage, columns, it is the same sixteen numbers.
template <class T>
Eigen::Matrix<T, 4, 4> ToEigen(Matrix3D<T> const& a) {
    return Eigen::Map<Eigen::Matrix<T, 4, 4> const>(a.m);
}
/// The same four numbers, which for both are the rotation by the angle that the quaternion was made with.
/// Eigen's products with vectors and its toRotationMatrix turn by it; ours, and ToMatrix, turn by minus that
/// angle: `ToEigen(q) * p` is `Conj(q) * v`.
template <class T>
Eigen::Quaternion<T> ToEigen(Quat3D<T> const& q) {
    return {q.w, q.x, q.y, q.z};
}

/// A column of 4, 3 or 2 scalars, or a matrix of 4 by 4, in either order of storage, or what yields one.
template <class Expression>
auto FromEigen(Eigen::MatrixBase<Expression> const& expression) {
    using T = typename Expression::Scalar;
    constexpr int kRows = Expression::RowsAtCompileTime;
    constexpr int kColumns = Expression::ColsAtCompileTime;
    static_assert((kColumns == 1 && 2 <= kRows && kRows <= 4) || (kColumns == 4 && kRows == 4));
    Eigen::Matrix<T, kRows, kColumns> const e = expression;
    if constexpr (kColumns == 4) {
        return Matrix3D<T>(e.data());
    } else if constexpr (kRows == 4) {
        return Vec4D<T>(e.x(), e.y(), e.z(), e.w());
    } else if constexpr (kRows == 3) {
        return Vec3D<T>(e.x(), e.y(), e.z());
    } else {
        return Vec2D<T>(e.x(), e.y());
    }
}
/// The inverse, number by number.
template <class Expression>
auto FromEigen(Eigen::QuaternionBase<Expression> const& q) {
    return Quat3D<typename Expression::Scalar>(q.x(), q.y(), q.z(), q.w());
}

}  // namespace vertra
