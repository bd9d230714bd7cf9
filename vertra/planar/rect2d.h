#pragma once

#include <vertra/export.h>
#include <vertra/numeric/dimension2d.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/position2d.h>

namespace vertra {

/// An axis-aligned rectangle by two corners: left, top, right, bottom in memory, y running down.
///
/// Nothing keeps the corners in order, so it can be inverted; IsValid and Repair find and undo that. `&` and
/// `|` compare field by field and are no intersection and union: the intersection is Clip.
template <class T>
class VERTRA_API Rect2D {
public:
    /// @{ In memory in this order, without gaps.
    Position2D<T> topLeft;
    Position2D<T> bottomRight;
    /// @}

    /// All zeros.
    constexpr Rect2D() : topLeft(), bottomRight() {}
    /// @{ The corners as given.
    constexpr Rect2D(T left, T top, T right, T bottom) : topLeft(left, top), bottomRight(right, bottom) {}
    constexpr Rect2D(Position2D<T> const& a, Position2D<T> b) : topLeft(a), bottomRight(b) {}
    /// @}
    /// From p, as wide and high as d.
    constexpr Rect2D(Position2D<T> const& p, Dimension2D<T> const& d)
        : topLeft(p), bottomRight(p.x + d.width, p.y + d.height) {}
    /// All four edges.
    constexpr Rect2D(Rect2D const& other);

    /// All four edges.
    constexpr Rect2D const& operator=(Rect2D const& other);

    /// right - left, negative for an inverted rectangle.
    constexpr T Width() const { return bottomRight.x - topLeft.x; }
    /// bottom - top, negative for an inverted rectangle.
    constexpr T Height() const { return bottomRight.y - topLeft.y; }
    /// Width and Height.
    constexpr Dimension2D<T> Size() const { return Dimension2D<T>(Width(), Height()); }
    /// Half way between the corners.
    constexpr Position2D<T> Center() const {
        return Position2D<T>(topLeft.x + Width() * T(0.5), topLeft.y + Height() * T(0.5));
    }
    /// All four edges are inside.
    constexpr int IsPointInside(Position2D<T> const& p) const;
    /// 1 when on both axes each begins before the other ends: a shared edge is no collision, a rectangle
    /// without width or height within another is one.
    constexpr int IsCollided(Rect2D const& r) const;
    /// 1 when it is not inverted and not of zero size, though one extent may be 0; also for a NaN extent.
    constexpr int IsValid();
    /// @{ 1 for the object itself, and where the corners of b equal those of this by the tolerant equality of
    /// `Position2D`, measured against b.
    constexpr int operator==(Rect2D const& b) const;
    constexpr int operator!=(Rect2D const& b) const { return !(*this == b); }
    /// @}

    /// Swaps the edges of each axis that is inverted.
    constexpr Rect2D const& Repair();
    /// Becomes the intersection with r. Where they are disjoint it is left with a width or height of 0, on
    /// the right or bottom edge of the one that lies further left or up.
    constexpr Rect2D const& Clip(Rect2D const& r);
    /// Each field becomes the smaller of the two: no intersection.
    constexpr Rect2D const& operator&=(Rect2D const& r);
    /// Each field becomes the larger of the two: no union.
    constexpr Rect2D const& operator|=(Rect2D const& r);
    /// @{ Shifts both corners.
    constexpr Rect2D const& operator+=(Position2D<T> const& p) { return Offset(p.x, p.y); }
    constexpr Rect2D const& operator-=(Position2D<T> const& p);
    constexpr Rect2D const& Offset(Position2D<T> const& p) { return Offset(p.x, p.y); }
    constexpr Rect2D const& Offset(T x, T y);
    /// @}
    /// Shifts by (x, y), like Offset.
    constexpr Rect2D const& Move(T x, T y) { return Offset(x, y); }
    /// Brings topLeft to p.
    constexpr Rect2D const& Move(Position2D<T> const& p) { return Offset(p - topLeft); }
    /// @{ Moves each edge outward.
    constexpr Rect2D const& Inflate(T l, T t, T r, T b);
    constexpr Rect2D const& Inflate(Position2D<T> const& a, Position2D<T> const& b) {
        return Inflate(a.x, a.y, b.x, b.y);
    }
    constexpr Rect2D const& Inflate(T x, T y) { return Inflate(x, y, x, y); }
    constexpr Rect2D const& Inflate(Position2D<T> const& d) { return Inflate(d.x, d.y); }
    /// @}
    /// @{ Moves each edge inward, past the other if need be.
    constexpr Rect2D const& Deflate(T l, T t, T r, T b);
    constexpr Rect2D const& Deflate(Position2D<T> const& a, Position2D<T> const& b) {
        return Deflate(a.x, a.y, b.x, b.y);
    }
    constexpr Rect2D const& Deflate(T x, T y) { return Deflate(x, y, x, y); }
    constexpr Rect2D const& Deflate(Position2D<T> const& d) { return Deflate(d.x, d.y); }
    /// @}
};

/// @{ Shifted by p.
template <class T>
constexpr Rect2D<T> operator+(Rect2D<T> const& r, Position2D<T> const& p) {
    return Rect2D<T>(r.topLeft + p, r.bottomRight + p);
}
template <class T>
constexpr Rect2D<T> operator+(Position2D<T> const& p, Rect2D<T> const& r) {
    return r + p;
}
template <class T>
constexpr Rect2D<T> operator-(Rect2D<T> const& r, Position2D<T> const& p) {
    return Rect2D<T>(r.topLeft - p, r.bottomRight - p);
}
/// @}
/// r - p: no reflection.
template <class T>
constexpr Rect2D<T> operator-(Position2D<T> const& p, Rect2D<T> const& r) {
    return r - p;
}
/// The smaller of each field: no intersection.
template <class T>
constexpr Rect2D<T> operator&(Rect2D<T> const& a, Rect2D<T> const& b) {
    Rect2D<T> result = a;
    return result &= b;
}
/// The larger of each field: no union.
template <class T>
constexpr Rect2D<T> operator|(Rect2D<T> const& a, Rect2D<T> const& b) {
    Rect2D<T> result = a;
    return result |= b;
}

template <class T>
constexpr Rect2D<T>::Rect2D(Rect2D const&) = default;

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::operator=(Rect2D const& other) {
    topLeft = other.topLeft;
    bottomRight = other.bottomRight;
    return *this;
}

template <class T>
constexpr int Rect2D<T>::IsPointInside(Position2D<T> const& p) const {
    return topLeft.x <= p.x && topLeft.y <= p.y && p.x <= bottomRight.x && p.y <= bottomRight.y;
}

template <class T>
constexpr int Rect2D<T>::IsCollided(Rect2D const& r) const {
    return r.topLeft.y < bottomRight.y && topLeft.y < r.bottomRight.y && r.topLeft.x < bottomRight.x &&
           topLeft.x < r.bottomRight.x;
}

template <class T>
constexpr int Rect2D<T>::IsValid() {
    T const w = Width();
    T const h = Height();
    return !(w < 0 || h < 0) && (w != 0 || h != 0);
}

template <class T>
constexpr int Rect2D<T>::operator==(Rect2D const& b) const {
    return this == &b || (b.topLeft == topLeft && b.bottomRight == bottomRight);
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::Repair() {
    Rect2D const old = *this;
    if (old.topLeft.x > old.bottomRight.x) {
        topLeft.x = old.bottomRight.x;
        bottomRight.x = old.topLeft.x;
    }
    if (old.topLeft.y > old.bottomRight.y) {
        topLeft.y = old.bottomRight.y;
        bottomRight.y = old.topLeft.y;
    }
    return *this;
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::Clip(Rect2D const& r) {
    detail::Lower(bottomRight.x, r.bottomRight.x);
    detail::Lower(bottomRight.y, r.bottomRight.y);
    detail::Raise(topLeft.x, r.topLeft.x);
    detail::Raise(topLeft.y, r.topLeft.y);
    detail::Lower(topLeft.y, bottomRight.y);
    detail::Lower(topLeft.x, bottomRight.x);
    return *this;
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::operator&=(Rect2D const& r) {
    detail::Lower(topLeft.x, r.topLeft.x);
    detail::Lower(topLeft.y, r.topLeft.y);
    detail::Lower(bottomRight.x, r.bottomRight.x);
    detail::Lower(bottomRight.y, r.bottomRight.y);
    return *this;
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::operator|=(Rect2D const& r) {
    detail::Raise(topLeft.x, r.topLeft.x);
    detail::Raise(topLeft.y, r.topLeft.y);
    detail::Raise(bottomRight.x, r.bottomRight.x);
    detail::Raise(bottomRight.y, r.bottomRight.y);
    return *this;
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::operator-=(Position2D<T> const& p) {
    return *this = *this - p;
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::Offset(T x, T y) {
    return *this = *this + Position2D<T>(x, y);
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::Inflate(T l, T t, T r, T b) {
    topLeft -= Position2D<T>(l, t);
    bottomRight += Position2D<T>(r, b);
    return *this;
}

template <class T>
constexpr Rect2D<T> const& Rect2D<T>::Deflate(T l, T t, T r, T b) {
    topLeft += Position2D<T>(l, t);
    bottomRight -= Position2D<T>(r, b);
    return *this;
}

#define VERTRA_RECT2D(INSTANTIATE, T)                                                   \
    INSTANTIATE class Rect2D<T>;                                                        \
    INSTANTIATE VERTRA_API Rect2D<T> operator+(Rect2D<T> const&, Position2D<T> const&); \
    INSTANTIATE VERTRA_API Rect2D<T> operator+(Position2D<T> const&, Rect2D<T> const&); \
    INSTANTIATE VERTRA_API Rect2D<T> operator-(Rect2D<T> const&, Position2D<T> const&); \
    INSTANTIATE VERTRA_API Rect2D<T> operator-(Position2D<T> const&, Rect2D<T> const&); \
    INSTANTIATE VERTRA_API Rect2D<T> operator&(Rect2D<T> const&, Rect2D<T> const&);     \
    INSTANTIATE VERTRA_API Rect2D<T> operator|(Rect2D<T> const&, Rect2D<T> const&);

VERTRA_RECT2D(extern template, float)
VERTRA_RECT2D(extern template, double)

}  // namespace vertra
