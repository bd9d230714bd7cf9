#pragma once

#include <vertra/export.h>
#include <vertra/numeric/array_view.h>
#include <vertra/numeric/kernel.h>

#include <cstddef>
#include <type_traits>

namespace vertra {

template <class T>
class VERTRA_API Matrix3D;

template <class T>
class VERTRA_API Vec3D;
template <class T>
class VERTRA_API Vec4D;

template <class T>
inline constexpr bool is_array_view<Vec4D<T>> = true;
template <class T>
inline constexpr bool compares_with_scalar<Vec4D<T>> = true;

/// The working vector of all 3D code: points, directions, normals and box corners.
///
/// It is a vector of three dimensions with a fourth slot. The rules of w:
/// - made: a constructor sets w, to 0 unless it is given one;
/// - copied: a copy has w = 0, whatever the source holds, and so has an argument passed by value;
///   `Vec4D(v, v.w)` is the copy that keeps it;
/// - returned: every Vec4D that any function of the library returns by value has w = 0;
/// - assigned: `=` and Set write x, y, z and leave the target's w;
/// - compound: `+=`, `-=`, `*= s` act on w, `/=` where the divisor's w is not 0;
/// - measured: the dot product, Len2 and Len count w, the distances between two points do not;
/// - compared: every comparison counts w.
///
/// They keep a w that somebody set on purpose from leaking into results, and let storage carry one.
///
/// Comparisons are exact and hold when they hold for all components, so a < b and a >= b can both be 0.
/// A NaN fails each of them but `!=`.
template <class T>
class VERTRA_API Vec4D {
public:
    /// @{ In memory in this order, without gaps.
    T x;
    T y;
    T z;
    /// @}
    T w;  ///< 0 unless set explicitly

    /// (0, 0, 0, 0).
    constexpr Vec4D() : Vec4D(T(0), T(0), T(0)) {}
    /// (s, s, s, 0): w is not filled. A literal 0 is ambiguous with a null pointer and does not compile.
    constexpr Vec4D(T s) : Vec4D(s, s, s) {}
    /// Each as given.
    constexpr Vec4D(T x_, T y_, T z_, T w_ = T(0)) : x(x_), y(y_), z(z_), w(w_) {}
    /// (p[0], p[1], p[2], w_): reads three scalars.
    constexpr Vec4D(T const* p, T w_ = T(0)) : Vec4D(p[0], p[1], p[2], w_) {}
    /// The copy has the w that it is given, not that of v.
    constexpr Vec4D(Vec4D const& v, T w_ = T(0));
    /// w is 0.
    constexpr Vec4D(Vec3D<T> const& v);  // defined with Vec3D
    Vec4D(std::nullptr_t, T = T(0)) = delete;
    explicit Vec4D(ArrayView auto const&, T = T(0)) = delete;

    /// @{ Writes x, y and z; w stays.
    constexpr Vec4D const& operator=(Vec4D const& v) { return Set(v.x, v.y, v.z); }
    constexpr Vec4D const& operator=(Vec3D<T> const& v);  // defined with Vec3D
    /// @}
    /// x, y, z from p[0], p[1], p[2]; w stays.
    constexpr Vec4D const& operator=(T const* p) { return Set(p[0], p[1], p[2]); }
    Vec4D const& operator=(std::nullptr_t) = delete;
    Vec4D const& operator=(ArrayView auto const&) = delete;
    /// Writes x, y and z; w stays.
    constexpr Vec4D const& Set(T x_, T y_, T z_);

    /// @{ Component i, 0 to 3 in the order x, y, z, w; not range-checked.
    constexpr T& operator[](int i) { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T& operator[](unsigned int i) { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T& operator[](WideIndex i);
    constexpr T const& operator[](int i) const { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T const& operator[](unsigned int i) const { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T const& operator[](WideIndex i) const;
    /// @}
    /// @{ The array view: four scalars from x on.
    constexpr operator T*() { return &x; }
    constexpr operator T const*() const { return &x; }
    /// @}
    explicit operator bool() = delete;
    explicit operator bool() const = delete;

    /// @{ On all four components.
    constexpr Vec4D const& operator+=(Vec4D const& b);
    constexpr Vec4D const& operator-=(Vec4D const& b);
    constexpr Vec4D const& operator*=(T s);
    /// @}
    /// Component by component; w is divided only where b.w is not 0. So `v /= Vec4D(s)` leaves w alone.
    constexpr Vec4D const& operator/=(Vec4D const& b);
    /// The point (x, y, z, 1) times the matrix, on all four components: the one product that yields a w.
    /// The old w is not read, and nothing is divided by the new one.
    constexpr Vec4D const& operator*=(Matrix3D<T> const& m);  // defined with Matrix3D

    /// Scales x, y, z as Normalize does and then by s. w counts in the length and stays.
    constexpr Vec4D const& SetLength(T s);
};

/// @{ On x, y and z; w is 0.
template <class T>
constexpr Vec4D<T> operator+(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Vec4D<T>(a.x + b.x, a.y + b.y, a.z + b.z);
}
template <class T>
constexpr Vec4D<T> operator-(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Vec4D<T>(a.x - b.x, a.y - b.y, a.z - b.z);
}
template <class T>
constexpr Vec4D<T> operator+(Vec4D<T> const& a) {
    return a;
}
template <class T>
constexpr Vec4D<T> operator-(Vec4D<T> const& a) {
    return Vec4D<T>(-a.x, -a.y, -a.z);
}
template <class T>
constexpr Vec4D<T> operator*(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return Vec4D<T>(a.x * s, a.y * s, a.z * s);
}
template <class T>
constexpr Vec4D<T> operator*(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return a * s;
}
/// @}
/// a * (1 / s): one division. s = 0 gives infinities and NaNs.
template <class T>
constexpr Vec4D<T> operator/(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return a * (T(1) / s);
}
/// (s / x, s / y, s / z).
template <class T>
constexpr Vec4D<T> operator/(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return Vec4D<T>(s / a.x, s / a.y, s / a.z);
}
/// (a.x / b.x, a.y / b.y, a.z / b.z).
template <class T>
constexpr Vec4D<T> operator/(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Vec4D<T>(a.x / b.x, a.y / b.y, a.z / b.z);
}
/// The cross product.
template <class T>
constexpr Vec4D<T> operator^(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Vec4D<T>(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}
/// The dot product over all four components.
template <class T>
constexpr T operator*(Vec4D<T> const& a, Vec4D<T> const& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z + a.w * b.w;
}
/// The cross product into x, y, z of out, which must be neither a nor b.
template <class T>
constexpr void CrossProduct(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T>& out) {
    out = a ^ b;
}

/// @{ Exact, over all four components.
template <class T>
constexpr int operator==(Vec4D<T> const& a, Vec4D<T> const& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z && a.w == b.w;
}
template <class T>
constexpr int operator!=(Vec4D<T> const& a, Vec4D<T> const& b) {
    return !(a == b);
}
template <class T>
constexpr int operator<(Vec4D<T> const& a, Vec4D<T> const& b) {
    return a.x < b.x && a.y < b.y && a.z < b.z && a.w < b.w;
}
template <class T>
constexpr int operator<=(Vec4D<T> const& a, Vec4D<T> const& b) {
    return a.x <= b.x && a.y <= b.y && a.z <= b.z && a.w <= b.w;
}
template <class T>
constexpr int operator>(Vec4D<T> const& a, Vec4D<T> const& b) {
    return b < a;
}
template <class T>
constexpr int operator>=(Vec4D<T> const& a, Vec4D<T> const& b) {
    return b <= a;
}
/// @}

/// @{ A scalar is compared with all four components: `Vec4D(2) == 2` is 0, for its w is 0.
template <class T>
constexpr int operator==(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return a == Vec4D<T>(s, s, s, s);
}
template <class T>
constexpr int operator!=(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return !(a == s);
}
template <class T>
constexpr int operator<(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return a < Vec4D<T>(s, s, s, s);
}
template <class T>
constexpr int operator<=(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return a <= Vec4D<T>(s, s, s, s);
}
template <class T>
constexpr int operator>(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return a > Vec4D<T>(s, s, s, s);
}
template <class T>
constexpr int operator>=(Vec4D<T> const& a, std::type_identity_t<T> s) {
    return a >= Vec4D<T>(s, s, s, s);
}
template <class T>
constexpr int operator==(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return a == s;
}
template <class T>
constexpr int operator!=(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return a != s;
}
template <class T>
constexpr int operator<(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return a > s;
}
template <class T>
constexpr int operator<=(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return a >= s;
}
template <class T>
constexpr int operator>(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return a < s;
}
template <class T>
constexpr int operator>=(std::type_identity_t<T> s, Vec4D<T> const& a) {
    return a <= s;
}
/// @}
/// 1 for a vector with a component that is not 0, 0 for the zero vector: the zero vector is the false case.
template <class T>
constexpr int operator!(Vec4D<T> const& a) {
    return a != T(0);
}

/// The squared length over all four components.
template <class T>
constexpr T Len2(Vec4D<T> const& v) {
    return v * v;
}
/// The length over all four components, to float accuracy. The zero vector's is about 2.2426270e-20, not 0;
/// beyond float's range it is -0.
template <class T>
constexpr T Len(Vec4D<T> const& v) {
    return FastSqrt(static_cast<float>(Len2(v)));
}
/// The squared distance over x, y, z.
template <class T>
constexpr T GetDistanceBetween2(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Len2(a - b);
}
/// The distance over x, y, z, with the accuracy and range of Len.
template <class T>
constexpr T GetDistanceBetween(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Len(a - b);
}
/// x, y, z divided by Len, in which w counts: of unit length only where w is 0. The zero vector stays zero.
/// Where Len is 0 (a length beyond float's range) x, y, z come back as they are.
template <class T>
constexpr Vec4D<T> Normalize(Vec4D<T> const& v) {
    T const length = Len(v);
    return length == 0 ? v : v / length;
}

/// The lesser of each of x, y, z; a's where either is a NaN.
template <class T>
constexpr Vec4D<T> Lo(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Vec4D<T>(a.x > b.x ? b.x : a.x, a.y > b.y ? b.y : a.y, a.z > b.z ? b.z : a.z);
}
/// The greater of each of x, y, z; b's where either is a NaN.
template <class T>
constexpr Vec4D<T> Hi(Vec4D<T> const& a, Vec4D<T> const& b) {
    return Vec4D<T>(a.x > b.x ? a.x : b.x, a.y > b.y ? a.y : b.y, a.z > b.z ? a.z : b.z);
}

/// The unit normal of a triangle, on the side from which a, b, c run counter-clockwise; zero where they are
/// collinear.
template <class T>
constexpr Vec4D<T> Normal(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c) {
    return Normalize((b - a) ^ (c - a));
}
/// The unit normal of a quad, from its two diagonals.
template <class T>
constexpr Vec4D<T> Normal(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c, Vec4D<T> const& d) {
    return Normalize((c - a) ^ (d - b));
}

/// A plane through the origin as its unit normal: v divided by its length over x, y, z, not testing for zero.
/// `Plane3D` is the plane type of the shapes; these carry no offset.
template <class T>
constexpr Vec4D<T> Plane(Vec4D<T> const& v) {
    return v / Len(Vec4D<T>(v));
}
/// Normalize(n); the offset has no effect.
template <class T>
constexpr Vec4D<T> Plane(Vec4D<T> const& n, std::type_identity_t<T>) {
    return Normalize(n);
}
/// Normalize(n); the point has no effect.
template <class T>
constexpr Vec4D<T> Plane(Vec4D<T> const& n, Vec4D<T> const&) {
    return Normalize(n);
}
/// Normal(a, b, c).
template <class T>
constexpr Vec4D<T> Plane(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c) {
    return Normal(a, b, c);
}
/// The measure of q against the plane p: p.x*q.x + p.y*q.y + p.z*(q.z + 1). No w is read.
template <class T>
constexpr T Distance(Vec4D<T> const& p, Vec4D<T> const& q) {
    return p.x * q.x + p.y * q.y + p.z * (q.z + T(1));
}
/// 1 when a and b lie on different sides of the plane p by Distance. A measure of 0 counts as the
/// non-negative side, a NaN as the negative one.
template <class T>
constexpr int Crosses(Vec4D<T> const& p, Vec4D<T> const& a, Vec4D<T> const& b) {
    return (Distance(p, a) >= 0) != (Distance(p, b) >= 0);
}

namespace detail {

/// The dot product over x, y, z: no w is read.
template <class T>
constexpr T Dot3(Vec4D<T> const& a, Vec4D<T> const& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

}  // namespace detail

template <class T>
constexpr Vec4D<T>::Vec4D(Vec4D const& v, T w_) : Vec4D(v.x, v.y, v.z, w_) {}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::Set(T x_, T y_, T z_) {
    x = x_;
    y = y_;
    z = z_;
    return *this;
}

template <class T>
constexpr T& Vec4D<T>::operator[](WideIndex i) {
    return const_cast<T&>(static_cast<Vec4D const&>(*this)[i]);
}

template <class T>
constexpr T const& Vec4D<T>::operator[](WideIndex i) const {
    if (!std::is_constant_evaluated()) return reinterpret_cast<T const*>(this)[i];
    switch (i) {
        case 0: return x;
        case 1: return y;
        case 2: return z;
        default: return w;
    }
}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::operator+=(Vec4D const& b) {
    x += b.x;
    y += b.y;
    z += b.z;
    w += b.w;
    return *this;
}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::operator-=(Vec4D const& b) {
    x -= b.x;
    y -= b.y;
    z -= b.z;
    w -= b.w;
    return *this;
}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::operator*=(T s) {
    x *= s;
    y *= s;
    z *= s;
    w *= s;
    return *this;
}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::operator/=(Vec4D const& b) {
    if (b.w != 0) w /= b.w;
    return *this = *this / b;
}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::SetLength(T s) {
    return *this = Normalize(*this) * s;
}

#define VERTRA_VEC4D(INSTANTIATE, T)                                                           \
    INSTANTIATE class Vec4D<T>;                                                                \
    INSTANTIATE VERTRA_API Vec4D<T> operator+(Vec4D<T> const&, Vec4D<T> const&);               \
    INSTANTIATE VERTRA_API Vec4D<T> operator-(Vec4D<T> const&, Vec4D<T> const&);               \
    INSTANTIATE VERTRA_API Vec4D<T> operator+(Vec4D<T> const&);                                \
    INSTANTIATE VERTRA_API Vec4D<T> operator-(Vec4D<T> const&);                                \
    INSTANTIATE VERTRA_API Vec4D<T> operator*(Vec4D<T> const&, T);                             \
    INSTANTIATE VERTRA_API Vec4D<T> operator*(T, Vec4D<T> const&);                             \
    INSTANTIATE VERTRA_API Vec4D<T> operator/(Vec4D<T> const&, T);                             \
    INSTANTIATE VERTRA_API Vec4D<T> operator/(T, Vec4D<T> const&);                             \
    INSTANTIATE VERTRA_API Vec4D<T> operator/(Vec4D<T> const&, Vec4D<T> const&);               \
    INSTANTIATE VERTRA_API Vec4D<T> operator^(Vec4D<T> const&, Vec4D<T> const&);               \
    INSTANTIATE VERTRA_API T operator*(Vec4D<T> const&, Vec4D<T> const&);                      \
    INSTANTIATE VERTRA_API void CrossProduct(Vec4D<T> const&, Vec4D<T> const&, Vec4D<T>&);     \
    INSTANTIATE VERTRA_API int operator==(Vec4D<T> const&, Vec4D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator!=(Vec4D<T> const&, Vec4D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator<(Vec4D<T> const&, Vec4D<T> const&);                    \
    INSTANTIATE VERTRA_API int operator<=(Vec4D<T> const&, Vec4D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator>(Vec4D<T> const&, Vec4D<T> const&);                    \
    INSTANTIATE VERTRA_API int operator>=(Vec4D<T> const&, Vec4D<T> const&);                   \
    INSTANTIATE VERTRA_API int operator==(Vec4D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator!=(Vec4D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator<(Vec4D<T> const&, T);                                  \
    INSTANTIATE VERTRA_API int operator<=(Vec4D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator>(Vec4D<T> const&, T);                                  \
    INSTANTIATE VERTRA_API int operator>=(Vec4D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API int operator==(T, Vec4D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator!=(T, Vec4D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator<(T, Vec4D<T> const&);                                  \
    INSTANTIATE VERTRA_API int operator<=(T, Vec4D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator>(T, Vec4D<T> const&);                                  \
    INSTANTIATE VERTRA_API int operator>=(T, Vec4D<T> const&);                                 \
    INSTANTIATE VERTRA_API int operator!(Vec4D<T> const&);                                     \
    INSTANTIATE VERTRA_API T Len2(Vec4D<T> const&);                                            \
    INSTANTIATE VERTRA_API T Len(Vec4D<T> const&);                                             \
    INSTANTIATE VERTRA_API T GetDistanceBetween2(Vec4D<T> const&, Vec4D<T> const&);            \
    INSTANTIATE VERTRA_API T GetDistanceBetween(Vec4D<T> const&, Vec4D<T> const&);             \
    INSTANTIATE VERTRA_API Vec4D<T> Normalize(Vec4D<T> const&);                                \
    INSTANTIATE VERTRA_API Vec4D<T> Lo(Vec4D<T> const&, Vec4D<T> const&);                      \
    INSTANTIATE VERTRA_API Vec4D<T> Hi(Vec4D<T> const&, Vec4D<T> const&);                      \
    INSTANTIATE VERTRA_API Vec4D<T> Normal(Vec4D<T> const&, Vec4D<T> const&, Vec4D<T> const&); \
    INSTANTIATE VERTRA_API Vec4D<T> Normal(Vec4D<T> const&, Vec4D<T> const&, Vec4D<T> const&,  \
                                           Vec4D<T> const&);                                   \
    INSTANTIATE VERTRA_API Vec4D<T> Plane(Vec4D<T> const&);                                    \
    INSTANTIATE VERTRA_API Vec4D<T> Plane(Vec4D<T> const&, T);                                 \
    INSTANTIATE VERTRA_API Vec4D<T> Plane(Vec4D<T> const&, Vec4D<T> const&);                   \
    INSTANTIATE VERTRA_API Vec4D<T> Plane(Vec4D<T> const&, Vec4D<T> const&, Vec4D<T> const&);  \
    INSTANTIATE VERTRA_API T Distance(Vec4D<T> const&, Vec4D<T> const&);                       \
    INSTANTIATE VERTRA_API int Crosses(Vec4D<T> const&, Vec4D<T> const&, Vec4D<T> const&);

VERTRA_VEC4D(extern template, float)
VERTRA_VEC4D(extern template, double)

}  // namespace vertra
