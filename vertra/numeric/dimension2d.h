#pragma once

#include <vertra/export.h>
#include <vertra/numeric/kernel.h>

namespace vertra {

/// A size in the plane; negative extents are not refused. Its equality is tolerant.
template <class T>
class VERTRA_API Dimension2D {
public:
    /// @{ In memory in this order, without gaps.
    T width;
    T height;
    /// @}

    /// (0, 0).
    constexpr Dimension2D() : Dimension2D(T(0), T(0)) {}
    /// Each as given.
    constexpr Dimension2D(T a, T b) : width(a), height(b) {}
    /// (s, s).
    constexpr Dimension2D(T s) : Dimension2D(s, s) {}
    /// Both extents.
    constexpr Dimension2D(Dimension2D const& other);

    /// Both extents.
    constexpr Dimension2D& operator=(Dimension2D const& other);

    /// The area, not a length.
    constexpr T GetSize() const { return width * height; }
};

/// @{ 1 where each field is equal within 1e-5 of the left operand's. So it is not symmetric, and a NaN equals
/// nothing, not even itself.
template <class T>
constexpr int operator==(Dimension2D<T> const& a, Dimension2D<T> const& b) {
    return IsEqual(a.width, b.width, T(1e-5)) && IsEqual(a.height, b.height, T(1e-5));
}
template <class T>
constexpr int operator!=(Dimension2D<T> const& a, Dimension2D<T> const& b) {
    return !(a == b);
}
/// @}

template <class T>
constexpr Dimension2D<T>::Dimension2D(Dimension2D const&) = default;

template <class T>
constexpr Dimension2D<T>& Dimension2D<T>::operator=(Dimension2D const&) = default;

#define VERTRA_DIMENSION2D(INSTANTIATE, T)                                               \
    INSTANTIATE class Dimension2D<T>;                                                    \
    INSTANTIATE VERTRA_API int operator==(Dimension2D<T> const&, Dimension2D<T> const&); \
    INSTANTIATE VERTRA_API int operator!=(Dimension2D<T> const&, Dimension2D<T> const&);

VERTRA_DIMENSION2D(extern template, float)
VERTRA_DIMENSION2D(extern template, double)

}  // namespace vertra
