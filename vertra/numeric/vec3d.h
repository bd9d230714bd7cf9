#pragma once

#include <vertra/export.h>
#include <vertra/numeric/array_view.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/vec4d.h>

#include <cstddef>
#include <type_traits>

namespace vertra {

template <class T>
inline constexpr bool is_array_view<Vec3D<T>> = true;
template <class T>
inline constexpr bool compares_with_scalar<Vec3D<T>> = true;

/// The plain vector of three components: it copies, assigns and returns all that it holds.
///
/// It has the constructors of `Vec4D`, where an argument for w is taken and not stored. Two things differ
/// from `Vec4D` in sense: `!v` is 1 for the zero vector, and Normalize falls back on zeros.
///
/// Comparisons are exact and hold when they hold for all components, so a < b and a >= b can both be 0.
/// A NaN fails each of them but `!=`.
template <class T>
class VERTRA_API Vec3D {
public:
    /// @{ In memory in this order, without gaps.
    T x;
    T y;
    T z;
    /// @}

    /// (0, 0, 0).
    constexpr Vec3D() : Vec3D(T(0), T(0), T(0)) {}
    /// (s, s, s). A literal 0 is ambiguous with a null pointer and does not compile.
    constexpr Vec3D(T s) : Vec3D(s, s, s) {}
    /// Each as given.
    constexpr Vec3D(T x_, T y_, T z_, T = T(0)) : x(x_), y(y_), z(z_) {}
    /// (p[0], p[1], p[2]).
    constexpr Vec3D(T const* p, T = T(0)) : Vec3D(p[0], p[1], p[2]) {}
    /// The copy is exact; the second argument has no effect.
    constexpr Vec3D(Vec3D const& v, T = T(0));
    /// Drops v.w.
    constexpr Vec3D(Vec4D<T> const& v) : Vec3D(v.x, v.y, v.z) {}
    Vec3D(std::nullptr_t, T = T(0)) = delete;
    explicit Vec3D(ArrayView auto const&, T = T(0)) = delete;

    /// All three components.
    constexpr Vec3D const& operator=(Vec3D const& v) { return Set(v.x, v.y, v.z); }
    /// Drops v.w.
    constexpr Vec3D const& operator=(Vec4D<T> const& v) { return Set(v.x, v.y, v.z); }
    /// x, y, z from p[0], p[1], p[2].
    constexpr Vec3D const& operator=(T const* p) { return Set(p[0], p[1], p[2]); }
    Vec3D const& operator=(std::nullptr_t) = delete;
    Vec3D const& operator=(ArrayView auto const&) = delete;
    /// All three components.
    constexpr Vec3D const& Set(T x_, T y_, T z_);

    /// @{ Component i, 0 to 2 in the order x, y, z; not range-checked.
    constexpr T& operator[](int i) { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T& operator[](unsigned int i) { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T& operator[](WideIndex i);
    constexpr T const& operator[](int i) const { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T const& operator[](unsigned int i) const { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T const& operator[](WideIndex i) const;
    /// @}
    /// @{ The array view: three scalars from x on.
    constexpr operator T*() { return &x; }
    constexpr operator T const*() const { return &x; }
    /// @}
    explicit operator bool() = delete;
    explicit operator bool() const = delete;

    /// @{ Component by component.
    constexpr Vec3D const& operator+=(Vec3D const& b) { return *this = *this + b; }
    constexpr Vec3D const& operator-=(Vec3D const& b) { return *this = *this - b; }
    constexpr Vec3D const& operator*=(T s) { return *this = *this * s; }
    /// @}
    /// Component by component, not testing for zero.
    constexpr Vec3D const& operator/=(Vec3D const& b) { return Set(x / b.x, y / b.y, z / b.z); }
};

/// @{ Component by component.
template <class T>
constexpr Vec3D<T> operator+(Vec3D<T> const& a, Vec3D<T> const& b) {
    return Vec3D<T>(a.x + b.x, a.y + b.y, a.z + b.z);
}
template <class T>
constexpr Vec3D<T> operator-(Vec3D<T> const& a, Vec3D<T> const& b) {
    return Vec3D<T>(a.x - b.x, a.y - b.y, a.z - b.z);
}
template <class T>
constexpr Vec3D<T> operator+(Vec3D<T> const& a) {
    return a;
}
template <class T>
constexpr Vec3D<T> operator-(Vec3D<T> const& a) {
    return Vec3D<T>(-a.x, -a.y, -a.z);
}
template <class T>
constexpr Vec3D<T> operator*(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return Vec3D<T>(a.x * s, a.y * s, a.z * s);
}
template <class T>
constexpr Vec3D<T> operator*(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return a * s;
}
/// @}
/// a * (1 / s): one division. s = 0 gives infinities and NaNs.
template <class T>
constexpr Vec3D<T> operator/(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return a * (T(1) / s);
}
/// (s / x, s / y, s / z).
template <class T>
constexpr Vec3D<T> operator/(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return Vec3D<T>(s / a.x, s / a.y, s / a.z);
}
/// The cross product.
template <class T>
constexpr Vec3D<T> operator^(Vec3D<T> const& a, Vec3D<T> const& b) {
    return Vec3D<T>(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}
/// The dot product.
template <class T>
constexpr T operator*(Vec3D<T> const& a, Vec3D<T> const& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
/// @{ Exact, over all three components.
template <class T>
constexpr int operator==(Vec3D<T> const& a, Vec3D<T> const& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
template <class T>
constexpr int operator!=(Vec3D<T> const& a, Vec3D<T> const& b) {
    return !(a == b);
}
template <class T>
constexpr int operator<(Vec3D<T> const& a, Vec3D<T> const& b) {
    return a.x < b.x && a.y < b.y && a.z < b.z;
}
template <class T>
constexpr int operator<=(Vec3D<T> const& a, Vec3D<T> const& b) {
    return a.x <= b.x && a.y <= b.y && a.z <= b.z;
}
template <class T>
constexpr int operator>(Vec3D<T> const& a, Vec3D<T> const& b) {
    return b < a;
}
template <class T>
constexpr int operator>=(Vec3D<T> const& a, Vec3D<T> const& b) {
    return b <= a;
}
/// @}

/// @{ A scalar is compared with all three components.
template <class T>
constexpr int operator==(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return a == Vec3D<T>(s);
}
template <class T>
constexpr int operator!=(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return !(a == s);
}
template <class T>
constexpr int operator<(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return a < Vec3D<T>(s);
}
template <class T>
constexpr int operator<=(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return a <= Vec3D<T>(s);
}
template <class T>
constexpr int operator>(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return a > Vec3D<T>(s);
}
template <class T>
constexpr int operator>=(Vec3D<T> const& a, std::type_identity_t<T> s) {
    return a >= Vec3D<T>(s);
}
template <class T>
constexpr int operator==(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return a == s;
}
template <class T>
constexpr int operator!=(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return a != s;
}
template <class T>
constexpr int operator<(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return a > s;
}
template <class T>
constexpr int operator<=(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return a >= s;
}
template <class T>
constexpr int operator>(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return a < s;
}
template <class T>
constexpr int operator>=(std::type_identity_t<T> s, Vec3D<T> const& a) {
    return a <= s;
}
/// @}
/// 1 for the zero vector, 0 otherwise: the opposite sense of `Vec4D`.
template <class T>
constexpr int operator!(Vec3D<T> const& a) {
    return a == T(0);
}

/// The squared length.
template <class T>
constexpr T Len2(Vec3D<T> const& v) {
    return v * v;
}
/// The length, to float accuracy. The zero vector's is about 2.2426270e-20, not 0;
/// beyond float's range it is -0.
template <class T>
constexpr T Len(Vec3D<T> const& v) {
    return FastSqrt(static_cast<float>(Len2(v)));
}
/// The squared distance.
template <class T>
constexpr T GetDistanceBetween2(Vec3D<T> const& a, Vec3D<T> const& b) {
    return Len2(a - b);
}
/// The distance, with the accuracy and range of Len.
template <class T>
constexpr T GetDistanceBetween(Vec3D<T> const& a, Vec3D<T> const& b) {
    return Len(a - b);
}
/// v divided by Len; zeros where that is not above 0: for a NaN, and for a length beyond float's range.
template <class T>
constexpr Vec3D<T> Normalize(Vec3D<T> const& v) {
    T const length = Len(v);
    return length > 0 ? v / length : Vec3D<T>();
}

/// The lesser of each component; a's where either is a NaN.
template <class T>
constexpr Vec3D<T> Lo(Vec3D<T> const& a, Vec3D<T> const& b) {
    return Vec3D<T>(a.x > b.x ? b.x : a.x, a.y > b.y ? b.y : a.y, a.z > b.z ? b.z : a.z);
}
/// The greater of each component; b's where either is a NaN.
template <class T>
constexpr Vec3D<T> Hi(Vec3D<T> const& a, Vec3D<T> const& b) {
    return Vec3D<T>(a.x > b.x ? a.x : b.x, a.y > b.y ? a.y : b.y, a.z > b.z ? a.z : b.z);
}

/// The unit normal of a triangle, on the side from which a, b, c run counter-clockwise; zero where they are
/// collinear.
template <class T>
constexpr Vec3D<T> Normal(Vec3D<T> const& a, Vec3D<T> const& b, Vec3D<T> const& c) {
    return Normalize((b - a) ^ (c - a));
}
/// The unit normal of a quad, from its two diagonals.
template <class T>
constexpr Vec3D<T> Normal(Vec3D<T> const& a, Vec3D<T> const& b, Vec3D<T> const& c, Vec3D<T> const& d) {
    return Normalize((c - a) ^ (d - b));
}

/// The measure of q against the plane through the origin with the normal p: their dot product. The Euclidean
/// distance of two points is GetDistanceBetween.
template <class T>
constexpr T Distance(Vec3D<T> const& p, Vec3D<T> const& q) {
    return p * q;
}
/// 1 when a and b lie on different sides of the plane p by Distance. A measure of 0 counts as the
/// non-negative side, a NaN as the negative one.
template <class T>
constexpr int Crosses(Vec3D<T> const& p, Vec3D<T> const& a, Vec3D<T> const& b) {
    return (Distance(p, a) >= 0) != (Distance(p, b) >= 0);
}

template <class T>
constexpr Vec3D<T>::Vec3D(Vec3D const& v, T) : Vec3D(v.x, v.y, v.z) {}

template <class T>
constexpr Vec3D<T> const& Vec3D<T>::Set(T x_, T y_, T z_) {
    x = x_;
    y = y_;
    z = z_;
    return *this;
}

template <class T>
constexpr T& Vec3D<T>::operator[](WideIndex i) {
    return const_cast<T&>(static_cast<Vec3D const&>(*this)[i]);
}

template <class T>
constexpr T const& Vec3D<T>::operator[](WideIndex i) const {
    if (!std::is_constant_evaluated()) return reinterpret_cast<T const*>(this)[i];
    switch (i) {
        case 0: return x;
        case 1: return y;
        default: return z;
    }
}

template <class T>
constexpr Vec4D<T>::Vec4D(Vec3D<T> const& v) : Vec4D(v.x, v.y, v.z) {}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::operator=(Vec3D<T> const& v) {
    return Set(v.x, v.y, v.z);
}

#define VERTRA_VEC3D(INSTANTIATE, T)                                                           \
    INSTANTIATE class Vec3D<T>;                                                                \
    INSTANTIATE VERTRA_API Vec3D<T> operator+(Vec3D<T> const&, Vec3D<T> const&);               \
    INSTANTIATE VERTRA_API Vec3D<T> operator-(Vec3D<T> const&, Vec3D<T> const&);               \
    INSTANTIATE VERTRA_API Vec3D<T> operator+(Vec3D<T> const&);                                \
    INSTANTIATE VERTRA_API Vec3D<T> operator-(Vec3D<T> const&);                                \
    INSTANTIATE VERTRA_API Vec3D<T> operator*(Vec3D<T> const&, T);                             \
    INSTANTIATE VERTRA_API Vec3D<T> operator*(T, Vec3D<T> const&);                             \
    INSTANTIATE VERTRA_API Vec3D<T> operator/(Vec3D<T> const&, T);                             \
    INSTANTIATE VERTRA_API Vec3D<T> operator/(T, Vec3D<T> const&);                             \
    INSTANTIATE VERTRA_API Vec3D<T> operator^(Vec3D<T> const&, Vec3D<T> const&);               \
    INSTANTIATE VERTRA_API T operator*(Vec3D<T> const&, Vec3D<T> const&);                      \
    INSTANTIATE VERTRA_API int operator==(Vec3D<T> const&, Vec3D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator!=(Vec3D<T> const&, Vec3D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator<(Vec3D<T> const&, Vec3D<T> const&);                    \
    INSTANTIATE VERTRA_API int operator<=(Vec3D<T> const&, Vec3D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator>(Vec3D<T> const&, Vec3D<T> const&);                    \
    INSTANTIATE VERTRA_API int operator>=(Vec3D<T> const&, Vec3D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator==(Vec3D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator!=(Vec3D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator<(Vec3D<T> const&, T);                                  \
    INSTANTIATE VERTRA_API int operator<=(Vec3D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator>(Vec3D<T> const&, T);                                  \
    INSTANTIATE VERTRA_API int operator>=(Vec3D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator==(T, Vec3D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator!=(T, Vec3D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator<(T, Vec3D<T> const&);                                  \
    INSTANTIATE VERTRA_API int operator<=(T, Vec3D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator>(T, Vec3D<T> const&);                                  \
    INSTANTIATE VERTRA_API int operator>=(T, Vec3D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator!(Vec3D<T> const&);                                     \
    INSTANTIATE VERTRA_API T Len2(Vec3D<T> const&);                                            \
    INSTANTIATE VERTRA_API T Len(Vec3D<T> const&);                                             \
    INSTANTIATE VERTRA_API T GetDistanceBetween2(Vec3D<T> const&, Vec3D<T> const&);            \
    INSTANTIATE VERTRA_API T GetDistanceBetween(Vec3D<T> const&, Vec3D<T> const&);             \
    INSTANTIATE VERTRA_API Vec3D<T> Normalize(Vec3D<T> const&);                                \
    INSTANTIATE VERTRA_API Vec3D<T> Lo(Vec3D<T> const&, Vec3D<T> const&);                      \
    INSTANTIATE VERTRA_API Vec3D<T> Hi(Vec3D<T> const&, Vec3D<T> const&);                      \
    INSTANTIATE VERTRA_API Vec3D<T> Normal(Vec3D<T> const&, Vec3D<T> const&, Vec3D<T> const&); \
    INSTANTIATE VERTRA_API Vec3D<T> Normal(Vec3D<T> const&, Vec3D<T> const&, Vec3D<T> const&,  \
                                           Vec3D<T> const&);                                   \
    INSTANTIATE VERTRA_API T Distance(Vec3D<T> const&, Vec3D<T> const&);                       \
    INSTANTIATE VERTRA_API int Crosses(Vec3D<T> const&, Vec3D<T> const&, Vec3D<T> const&);

VERTRA_VEC3D(extern template, float)
VERTRA_VEC3D(extern template, double)

}  // namespace vertra
