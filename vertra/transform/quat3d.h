#pragma once

#include <vertra/export.h>
#include <vertra/numeric/array_view.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/transform/matrix3d.h>

#include <cstddef>
#include <type_traits>

namespace vertra {

/// A rotation as a quaternion: by the angle a about the unit axis n, w = cos(a/2) and (x, y, z) = n *
/// sin(a/2).
///
/// w stands first in memory and last in the constructor. A default quaternion is all zeros: no rotation at
/// all, not even the identity, which is w = 1. Nothing but Adjust makes a quaternion a unit one, and nothing
/// asks for it.
///
/// Not all conversions turn the same way. With M the matrix of `Rot(n, a)` on the identity:
///
///     GetAxes, GetXAxis, GetYAxis, GetZAxis         M          the axes are the rows of M
///     SetAxes, FromMatrix, Quat3D(Matrix3D)         M          from the rows of M they give q or -q
///     SetPitchYawRoll                               M          about x, y, z
///     ToMatrix, Matrix3D(Quat3D), Matrix3D::Rot     transpose  the rotation by -a
///     operator*(Quat3D, Vec4D)                      transpose  v * ToMatrix(q)
///
/// So the matrix of a quaternion suits `m * v`, while its axes, and the matrix that it is read from, suit the
/// row vectors of the rest of the library. The halves meet: for a unit q and a rotation M,
/// FromMatrix(ToMatrix(q)) is Conj(q) up to sign, and ToMatrix(FromMatrix(M)) is Transpose(M).
template <class T>
class VERTRA_API Quat3D {
public:
    T w;  ///< the scalar part
    /// @{ The vector part; in memory after w, without gaps.
    T x;
    T y;
    T z;
    /// @}

    /// All zeros.
    constexpr Quat3D() : Quat3D(T(0), T(0), T(0), T(0)) {}
    /// The vector part, then the scalar part.
    constexpr Quat3D(T x_, T y_, T z_, T w_) : w(w_), x(x_), y(y_), z(z_) {}
    /// By SetPitchYawRoll.
    Quat3D(T pitch, T yaw, T roll);
    /// Four scalars in the order of the fields: w is p[0].
    constexpr Quat3D(T const* p) : Quat3D(p[1], p[2], p[3], p[0]) {}
    /// All four scalars.
    constexpr Quat3D(Quat3D const& other);
    /// By SetAxisAngle.
    Quat3D(Vec4D<T> const& axis, T angle);
    /// By SetAxes.
    constexpr Quat3D(Vec4D<T> const& xAxis, Vec4D<T> const& yAxis, Vec4D<T> const& zAxis) : Quat3D() {
        SetAxes(xAxis, yAxis, zAxis);
    }
    /// By FromMatrix.
    constexpr Quat3D(Matrix3D<T> const& m) : Quat3D() { *this = m; }
    Quat3D(std::nullptr_t) = delete;
    explicit Quat3D(T) = delete;
    explicit Quat3D(ArrayView auto const&) = delete;

    /// All four scalars.
    constexpr Quat3D const& operator=(Quat3D const& other);
    /// By FromMatrix.
    constexpr Quat3D const& operator=(Matrix3D<T> const& m) { return SetAxes(m.Row(0), m.Row(1), m.Row(2)); }
    Quat3D const& operator=(T) = delete;

    /// Scales to unit length; one that is zero or holds a NaN stays as it is.
    constexpr Quat3D const& Adjust();
    /// The axis may have any length; its w counts in it. A zero axis gives a zero vector part.
    Quat3D const& SetAxisAngle(Vec4D<T> const& axis, T angle);
    /// The unit axis, x, y, z only, and the angle, a NaN where |w| > 1. A zero vector part gives the x axis
    /// and 0.
    Quat3D const& GetAxisAngle(Vec4D<T>& axis, T& angle) const;
    /// The product of roll about z, yaw about y and pitch about x: pitch acts first.
    Quat3D const& SetPitchYawRoll(T pitch, T yaw, T roll);
    /// Inverts SetPitchYawRoll for a unit quaternion with a yaw within a quarter turn. At a quarter turn or
    /// beyond the yaw is the float nearest to pi/2, roll is 0, and pitch takes up the rest.
    Quat3D const& GetPitchYawRoll(T& pitch, T& yaw, T& roll) const;
    /// From the images of the axes, taken as they are; their w is not read. Of the two quaternions for a
    /// rotation it is the one in which w, or else the component of the greatest diagonal element, is
    /// positive.
    constexpr Quat3D const& SetAxes(Vec4D<T> const& xAxis, Vec4D<T> const& yAxis, Vec4D<T> const& zAxis);
    /// Writes x, y, z of the images of the axes.
    constexpr Quat3D const& GetAxes(Vec4D<T>& xAxis, Vec4D<T>& yAxis, Vec4D<T>& zAxis) const;
    /// @{ The image of the axis: of unit length where the quaternion is.
    constexpr Vec4D<T> GetXAxis() const;
    constexpr Vec4D<T> GetYAxis() const;
    constexpr Vec4D<T> GetZAxis() const;
    /// @}
};

/// The matrix of q, not normalised: the transpose of the rotation that q was made with.
template <class T>
constexpr Matrix3D<T> ToMatrix(Quat3D<T> const& q) {
    return Matrix3D<T>(q);
}
/// The quaternion of the rotation in rows 0 to 2; column 3 and row 3 are not read.
template <class T>
constexpr Quat3D<T> FromMatrix(Matrix3D<T> const& m) {
    return Quat3D<T>(m);
}

/// The Hamilton product. As a rotation of the kind that SetAxisAngle makes, b acts first.
template <class T>
constexpr Quat3D<T> operator*(Quat3D<T> const& a, Quat3D<T> const& b);
/// The point (x, y, z) times ToMatrix(q), that is Conj(q) * v * q: turned by minus the angle of q.
template <class T>
constexpr Vec4D<T> operator*(Quat3D<T> const& q, Vec4D<T> const& v);
/// (w, -x, -y, -z); in float a +0 stays +0.
template <class T>
constexpr Quat3D<T> Conj(Quat3D<T> const& q) {
    return Quat3D<T>(detail::Negate(q.x), detail::Negate(q.y), detail::Negate(q.z), q.w);
}
/// The inverse of a unit quaternion: Conj(q).
template <class T>
constexpr Quat3D<T> UnitInvert(Quat3D<T> const& q) {
    return Conj(q);
}
/// The inverse for any length; four NaNs for the zero quaternion.
template <class T>
constexpr Quat3D<T> Invert(Quat3D<T> const& q);
/// The exponential of the vector part; w is not read.
template <class T>
Quat3D<T> Exp(Quat3D<T> const& q);
/// The logarithm of a unit quaternion, w = 0; all zeros where the vector part is 0.
template <class T>
Quat3D<T> Log(Quat3D<T> const& q);
/// The shortest rotation that takes the unit vector a to the unit vector b, in the sense of SetAxisAngle.
/// Opposite vectors have no shortest one: the result is then next to zero, and no rotation.
template <class T>
constexpr Quat3D<T> Arc(Vec4D<T> const& a, Vec4D<T> const& b);
/// Spherical interpolation along the shorter path, a at t = 0 and b or -b at t = 1; t is not clamped. Where 1
/// - |cos| of the angle between them is below epsilon the weights are linear, and the result shorter than a
/// unit. epsilon must be positive, or equal operands give NaNs.
template <class T>
Quat3D<T> Slerp(Quat3D<T> const& a, Quat3D<T> const& b, std::type_identity_t<T> t,
                std::type_identity_t<T> epsilon);

template <class T>
constexpr Quat3D<T>::Quat3D(Quat3D const&) = default;

template <class T>
constexpr Quat3D<T> const& Quat3D<T>::operator=(Quat3D const& other) {
    w = other.w;
    x = other.x;
    y = other.y;
    z = other.z;
    return *this;
}

template <class T>
constexpr Quat3D<T> const& Quat3D<T>::Adjust() {
    T const sum = w * w + x * x + y * y + z * z;
    if (!(sum > 0)) return *this;
    T const r = T(1) / FastSqrt(static_cast<float>(sum));
    return *this = Quat3D(x * r, y * r, z * r, w * r);
}

namespace detail {

template <class T>
struct Branch {
    T component;  ///< half of the root
    T factor;     ///< what turns a sum or difference of two elements into another component
};

/// The two numbers that a branch of SetAxes needs, from 1 plus the diagonal elements with their signs.
template <class T>
constexpr Branch<T> BranchOf(T sum) {
    T const s = FastSqrt(static_cast<float>(sum));
    return {s * T(0.5), T(0.5) / s};
}

}  // namespace detail

template <class T>
constexpr Quat3D<T> const& Quat3D<T>::SetAxes(Vec4D<T> const& xAxis, Vec4D<T> const& yAxis,
                                              Vec4D<T> const& zAxis) {
    Vec4D<T> const& a = xAxis;
    Vec4D<T> const& b = yAxis;
    Vec4D<T> const& c = zAxis;
    if (a.x + b.y + c.z > 0) {
        auto const [half, t] = detail::BranchOf(a.x + b.y + c.z + 1);
        return *this = Quat3D((b.z - c.y) * t, (c.x - a.z) * t, (a.y - b.x) * t, half);
    }
    if (a.x > b.y && a.x > c.z) {
        auto const [half, t] = detail::BranchOf(a.x + 1 - b.y - c.z);
        return *this = Quat3D(half, (a.y + b.x) * t, (a.z + c.x) * t, (b.z - c.y) * t);
    }
    if (b.y > c.z) {
        auto const [half, t] = detail::BranchOf(b.y + 1 - a.x - c.z);
        return *this = Quat3D((a.y + b.x) * t, half, (b.z + c.y) * t, (c.x - a.z) * t);
    }
    auto const [half, t] = detail::BranchOf(c.z + 1 - a.x - b.y);
    return *this = Quat3D((a.z + c.x) * t, (b.z + c.y) * t, half, (a.y - b.x) * t);
}

template <class T>
constexpr Quat3D<T> const& Quat3D<T>::GetAxes(Vec4D<T>& xAxis, Vec4D<T>& yAxis, Vec4D<T>& zAxis) const {
    xAxis = GetXAxis();
    yAxis = GetYAxis();
    zAxis = GetZAxis();
    return *this;
}

template <class T>
constexpr Vec4D<T> Quat3D<T>::GetXAxis() const {
    return Vec4D<T>(1 - 2 * y * y - 2 * z * z, 2 * x * y + 2 * w * z, 2 * x * z - 2 * w * y);
}

template <class T>
constexpr Vec4D<T> Quat3D<T>::GetYAxis() const {
    return Vec4D<T>(2 * x * y - 2 * w * z, 1 - 2 * x * x - 2 * z * z, 2 * y * z + 2 * w * x);
}

template <class T>
constexpr Vec4D<T> Quat3D<T>::GetZAxis() const {
    return Vec4D<T>(2 * x * z + 2 * w * y, 2 * y * z - 2 * w * x, 1 - 2 * x * x - 2 * y * y);
}

template <class T>
constexpr Matrix3D<T>::Matrix3D(Quat3D<T> const& q)
    : m{1 - 2 * (q.z * q.z + q.y * q.y),
        2 * (q.y * q.x - q.w * q.z),
        2 * (q.w * q.y + q.z * q.x),
        T(0),  //
        2 * (q.w * q.z + q.y * q.x),
        1 - 2 * (q.z * q.z + q.x * q.x),
        2 * (q.z * q.y - q.w * q.x),
        T(0),  //
        2 * (q.z * q.x - q.w * q.y),
        2 * (q.z * q.y + q.w * q.x),
        1 - 2 * (q.y * q.y + q.x * q.x),
        T(0),  //
        T(0),
        T(0),
        T(0),
        T(1)} {}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Rot(Quat3D<T> const& q) {
    detail::MultiplyLinearFromLeft(*this, Matrix3D(q));
    return *this;
}

template <class T>
constexpr Quat3D<T> operator*(Quat3D<T> const& a, Quat3D<T> const& b) {
    return Quat3D<T>(
        a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y, a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x,
        a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w, a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z);
}

template <class T>
constexpr Vec4D<T> operator*(Quat3D<T> const& q, Vec4D<T> const& v) {
    Matrix3D<T> const a(q);
    return Vec4D<T>(v.x * a.m[0] + v.y * a.m[4] + v.z * a.m[8], v.x * a.m[1] + v.y * a.m[5] + v.z * a.m[9],
                    v.x * a.m[2] + v.y * a.m[6] + v.z * a.m[10]);
}

template <class T>
constexpr Quat3D<T> Invert(Quat3D<T> const& q) {
    T const r = T(1) / (q.w * q.w + q.x * q.x + q.y * q.y + q.z * q.z);
    return Quat3D<T>(-r * q.x, -r * q.y, -r * q.z, r * q.w);
}

template <class T>
constexpr Quat3D<T> Arc(Vec4D<T> const& a, Vec4D<T> const& b) {
    T const s = FastSqrt(static_cast<float>((detail::Dot3(a, b) + 1) * 2));
    Vec4D<T> const v = (a ^ b) * (T(1) / s);
    return Quat3D<T>(v.x, v.y, v.z, s * T(0.5));
}

#define VERTRA_QUAT3D(INSTANTIATE, T)                                               \
    INSTANTIATE class Quat3D<T>;                                                    \
    INSTANTIATE VERTRA_API Matrix3D<T> ToMatrix(Quat3D<T> const&);                  \
    INSTANTIATE VERTRA_API Quat3D<T> FromMatrix(Matrix3D<T> const&);                \
    INSTANTIATE VERTRA_API Quat3D<T> operator*(Quat3D<T> const&, Quat3D<T> const&); \
    INSTANTIATE VERTRA_API Vec4D<T> operator*(Quat3D<T> const&, Vec4D<T> const&);   \
    INSTANTIATE VERTRA_API Quat3D<T> Conj(Quat3D<T> const&);                        \
    INSTANTIATE VERTRA_API Quat3D<T> UnitInvert(Quat3D<T> const&);                  \
    INSTANTIATE VERTRA_API Quat3D<T> Invert(Quat3D<T> const&);                      \
    INSTANTIATE VERTRA_API Quat3D<T> Exp(Quat3D<T> const&);                         \
    INSTANTIATE VERTRA_API Quat3D<T> Log(Quat3D<T> const&);                         \
    INSTANTIATE VERTRA_API Quat3D<T> Arc(Vec4D<T> const&, Vec4D<T> const&);         \
    INSTANTIATE VERTRA_API Quat3D<T> Slerp(Quat3D<T> const&, Quat3D<T> const&, T, T);

VERTRA_QUAT3D(extern template, float)
VERTRA_QUAT3D(extern template, double)

}  // namespace vertra
