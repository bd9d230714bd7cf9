#pragma once

#include <vertra/export.h>
#include <vertra/numeric/array_view.h>
#include <vertra/numeric/kernel.h>

#include <cstddef>
#include <type_traits>

namespace vertra {

/// A point in the plane. Its equality is tolerant; `a * b` is the product component by component.
template <class T>
class VERTRA_API Position2D {
public:
    /// @{ In memory in this order, without gaps.
    T x;
    T y;
    /// @}

    /// (0, 0).
    constexpr Position2D() : Position2D(T(0), T(0)) {}
    /// Each as given.
    constexpr Position2D(T a, T b) : x(a), y(b) {}
    /// (s, s) from a variable, which is only read.
    constexpr Position2D(T& s) : Position2D(s, s) {}
    /// (p[0], p[1]).
    constexpr Position2D(T const* p) : Position2D(p[0], p[1]) {}
    /// Both coordinates.
    constexpr Position2D(Position2D const& other);
    Position2D(std::nullptr_t) = delete;
    explicit Position2D(ArrayView auto const&) = delete;

    /// Both coordinates.
    constexpr Position2D& operator=(Position2D const& other);

    /// @{ Coordinate by coordinate.
    constexpr Position2D const& operator+=(Position2D const& b) { return *this = *this + b; }
    constexpr Position2D const& operator-=(Position2D const& b) { return *this = *this - b; }
    constexpr Position2D const& operator*=(T s) { return *this = *this * s; }
    constexpr Position2D const& operator*=(Position2D const& b) { return *this = *this * b; }
    /// @}
    /// Times 1 / s.
    constexpr Position2D const& operator/=(T s) { return *this = *this / s; }

    /// @{ 1 for the object itself, whatever it holds, and where each field is equal within 1e-5 of the left
    /// operand's. So it is not symmetric.
    constexpr int operator==(Position2D const& b) const;
    constexpr int operator!=(Position2D const& b) const { return !(*this == b); }
    /// @}
};

/// @{ Coordinate by coordinate.
template <class T>
constexpr Position2D<T> operator+(Position2D<T> const& a, Position2D<T> const& b) {
    return Position2D<T>(a.x + b.x, a.y + b.y);
}
template <class T>
constexpr Position2D<T> operator-(Position2D<T> const& a, Position2D<T> const& b) {
    return Position2D<T>(a.x - b.x, a.y - b.y);
}
/// @}
/// (a.x * b.x, a.y * b.y).
template <class T>
constexpr Position2D<T> operator*(Position2D<T> const& a, Position2D<T> const& b) {
    return Position2D<T>(a.x * b.x, a.y * b.y);
}
/// @{ Both coordinates.
template <class T>
constexpr Position2D<T> operator*(Position2D<T> const& a, std::type_identity_t<T> s) {
    return Position2D<T>(a.x * s, a.y * s);
}
template <class T>
constexpr Position2D<T> operator*(std::type_identity_t<T> s, Position2D<T> const& a) {
    return a * s;
}
/// @}
/// a * (1 / s): one division. s = 0 gives infinities and NaNs.
template <class T>
constexpr Position2D<T> operator/(Position2D<T> const& a, std::type_identity_t<T> s) {
    return a * (T(1) / s);
}

template <class T>
constexpr Position2D<T>::Position2D(Position2D const&) = default;

template <class T>
constexpr Position2D<T>& Position2D<T>::operator=(Position2D const&) = default;

template <class T>
constexpr int Position2D<T>::operator==(Position2D const& b) const {
    return this == &b || (IsEqual(x, b.x, T(1e-5)) && IsEqual(y, b.y, T(1e-5)));
}

#define VERTRA_POSITION2D(INSTANTIATE, T)                                                       \
    INSTANTIATE class Position2D<T>;                                                            \
    INSTANTIATE VERTRA_API Position2D<T> operator+(Position2D<T> const&, Position2D<T> const&); \
    INSTANTIATE VERTRA_API Position2D<T> operator-(Position2D<T> const&, Position2D<T> const&); \
    INSTANTIATE VERTRA_API Position2D<T> operator*(Position2D<T> const&, Position2D<T> const&); \
    INSTANTIATE VERTRA_API Position2D<T> operator*(Position2D<T> const&, T);                    \
    INSTANTIATE VERTRA_API Position2D<T> operator*(T, Position2D<T> const&);                    \
    INSTANTIATE VERTRA_API Position2D<T> operator/(Position2D<T> const&, T);

VERTRA_POSITION2D(extern template, float)
VERTRA_POSITION2D(extern template, double)

}  // namespace vertra
