#pragma once

#include <vertra/export.h>
#include <vertra/numeric/array_view.h>
#include <vertra/numeric/kernel.h>

#include <cstddef>
#include <type_traits>

namespace vertra {

/// A free vector in the plane. Its equality is exact; `a * b` is the dot product.
template <class T>
class VERTRA_API Vec2D {
public:
    /// @{ In memory in this order, without gaps.
    T x;
    T y;
    /// @}

    /// (0, 0).
    constexpr Vec2D() : Vec2D(T(0), T(0)) {}
    /// Each as given.
    constexpr Vec2D(T a, T b) : x(a), y(b) {}
    /// (s, s). A literal 0 is ambiguous with a null pointer and does not compile.
    constexpr Vec2D(T s) : Vec2D(s, s) {}
    /// (p[0], p[1]).
    constexpr Vec2D(T const* p) : Vec2D(p[0], p[1]) {}
    /// Both components.
    constexpr Vec2D(Vec2D const& v);
    Vec2D(std::nullptr_t) = delete;
    explicit Vec2D(ArrayView auto const&) = delete;

    /// Both components.
    constexpr Vec2D const& operator=(Vec2D const& v);

    /// @{ Component i, 0 or 1; not range-checked.
    constexpr T& operator[](unsigned int i) { return i == 0 ? x : y; }
    constexpr T const& operator[](unsigned int i) const { return i == 0 ? x : y; }
    /// @}

    /// @{ Component by component.
    constexpr Vec2D const& operator+=(Vec2D const& b) { return *this = *this + b; }
    constexpr Vec2D const& operator-=(Vec2D const& b) { return *this = *this - b; }
    constexpr Vec2D const& operator*=(T s) { return *this = *this * s; }
    /// @}
    /// Times 1 / s.
    constexpr Vec2D const& operator/=(T s) { return *this = *this / s; }
    /// The dot product.
    constexpr T operator*(Vec2D const& b) const { return x * b.x + y * b.y; }

    /// 1 when both components are 0.
    constexpr int IsZero() const { return x == 0 && y == 0; }
};

/// @{ Component by component.
template <class T>
constexpr Vec2D<T> operator+(Vec2D<T> const& a, Vec2D<T> const& b) {
    return Vec2D<T>(a.x + b.x, a.y + b.y);
}
template <class T>
constexpr Vec2D<T> operator-(Vec2D<T> const& a, Vec2D<T> const& b) {
    return Vec2D<T>(a.x - b.x, a.y - b.y);
}
template <class T>
constexpr Vec2D<T> operator-(Vec2D<T> const& a) {
    return Vec2D<T>(-a.x, -a.y);
}
template <class T>
constexpr Vec2D<T> operator*(Vec2D<T> const& a, std::type_identity_t<T> s) {
    return Vec2D<T>(a.x * s, a.y * s);
}
template <class T>
constexpr Vec2D<T> operator*(std::type_identity_t<T> s, Vec2D<T> const& a) {
    return a * s;
}
/// @}
/// a * (1 / s): one division. s = 0 gives infinities and NaNs.
template <class T>
constexpr Vec2D<T> operator/(Vec2D<T> const& a, std::type_identity_t<T> s) {
    return a * (T(1) / s);
}
/// @{ Exact.
template <class T>
constexpr int operator==(Vec2D<T> const& a, Vec2D<T> const& b) {
    return a.x == b.x && a.y == b.y;
}
template <class T>
constexpr int operator!=(Vec2D<T> const& a, Vec2D<T> const& b) {
    return !(a == b);
}
/// @}

/// The squared length.
template <class T>
constexpr T Len2(Vec2D<T> const& v) {
    return v * v;
}
/// The length, to float accuracy. The zero vector's is about 2.2426270e-20, not 0; beyond float's range it is
/// -0.
template <class T>
constexpr T Len(Vec2D<T> const& v) {
    return FastSqrt(static_cast<float>(Len2(v)));
}
/// v divided by Len, or times 0 where that is not above 0: then an infinite or NaN component gives a NaN.
template <class T>
constexpr Vec2D<T> Normalize(Vec2D<T> const& v) {
    T const length = Len(v);
    return v * (length > 0 ? T(1) / length : T(0));
}

template <class T>
constexpr Vec2D<T>::Vec2D(Vec2D const&) = default;

template <class T>
constexpr Vec2D<T> const& Vec2D<T>::operator=(Vec2D const& v) {
    x = v.x;
    y = v.y;
    return *this;
}

#define VERTRA_VEC2D(INSTANTIATE, T)                                             \
    INSTANTIATE class Vec2D<T>;                                                  \
    INSTANTIATE VERTRA_API Vec2D<T> operator+(Vec2D<T> const&, Vec2D<T> const&); \
    INSTANTIATE VERTRA_API Vec2D<T> operator-(Vec2D<T> const&, Vec2D<T> const&); \
    INSTANTIATE VERTRA_API Vec2D<T> operator-(Vec2D<T> const&);                  \
    INSTANTIATE VERTRA_API Vec2D<T> operator*(Vec2D<T> const&, T);               \
    INSTANTIATE VERTRA_API Vec2D<T> operator*(T, Vec2D<T> const&);               \
    INSTANTIATE VERTRA_API Vec2D<T> operator/(Vec2D<T> const&, T);               \
    INSTANTIATE VERTRA_API int operator==(Vec2D<T> const&, Vec2D<T> const&);     \
    INSTANTIATE VERTRA_API int operator!=(Vec2D<T> const&, Vec2D<T> const&);     \
    INSTANTIATE VERTRA_API T Len2(Vec2D<T> const&);                              \
    INSTANTIATE VERTRA_API T Len(Vec2D<T> const&);                               \
    INSTANTIATE VERTRA_API Vec2D<T> Normalize(Vec2D<T> const&);

VERTRA_VEC2D(extern template, float)
VERTRA_VEC2D(extern template, double)

}  // namespace vertra
