#pragma once

#include <vertra/export.h>
#include <vertra/numeric/vec2d.h>

namespace vertra {

/// The side of a point; the positive side is the one that the normal points to.
enum POINT2D_CLASSIFICATION { POINT2D_ON_LINE = 0, POINT2D_NEGATIVE_SIDE = 1, POINT2D_POSITIVE_SIDE = 2 };

/// Where two lines cross; the ends of a segment belong to it.
enum LINE2D_CLASSIFICATION {
    LINE2D_COLLINEAR = 0,              ///< they lie on one another
    LINE2D_LINES_CROSS = 1,            ///< outside both segments
    LINE2D_SEGMENTS_CROSS = 2,         ///< on both segments
    LINE2D_CROSSES_OTHER_SEGMENT = 3,  ///< on the other segment only
    LINE2D_CROSSES_THIS_SEGMENT = 4,   ///< on this segment only
    LINE2D_PARALLEL = 5                ///< nowhere
};

/// A line in the plane by two points: infinite for sides and distances, a segment for Length and
/// Intersection.
///
/// The unit normal is the direction turned clockwise, (dx, dy) to (dy, -dx) with y running up. It is computed
/// on first use, by const operations, and kept until SetPoints; whoever writes the points directly clears
/// normalValid. So sharing one line between threads, even for reading, needs a lock or a call of
/// ComputeNormal before.
template <class T>
class VERTRA_API Line2D {
public:
    /// @{ To be written by SetPoints, or with normalValid cleared.
    Vec2D<T> start;
    Vec2D<T> end;
    /// @}
    mutable Vec2D<T> normal;  ///< meaningful while normalValid is 1
    mutable int normalValid;  ///< 1 when normal is that of the points

    /// All zeros.
    constexpr Line2D() : Line2D(Vec2D<T>(), Vec2D<T>()) {}
    /// From a to b, without a normal yet.
    constexpr Line2D(Vec2D<T> const& a, Vec2D<T> const& b) : start(a), end(b), normal(), normalValid(0) {}
    /// Copies the points alone, not the cached normal.
    constexpr Line2D(Line2D const& l) : Line2D(l.start, l.end) {}

    /// Copies everything, the cached normal and its state included.
    constexpr Line2D& operator=(Line2D const& l);

    /// @{ From the first point to the second; the normal is forgotten.
    constexpr void SetPoints(Vec2D<T> const& a, Vec2D<T> const& b);
    constexpr void SetPoints(T x1, T y1, T x2, T y2) { SetPoints(Vec2D<T>(x1, y1), Vec2D<T>(x2, y2)); }
    /// @}

    /// The unit normal; zero for a line of no length.
    constexpr Vec2D<T> const& Normal() const;
    /// Computes the normal whether or not there is one.
    constexpr void ComputeNormal() const;
    /// The unit direction, by the rules of Normalize.
    constexpr void GetDirection(Vec2D<T>& out) const { out = Normalize(end - start); }
    /// By Len.
    constexpr T Length() const { return Len(end - start); }
    /// The distance from the infinite line, positive on the side that the normal points to.
    constexpr T SignedDistance(Vec2D<T> const& p) const { return (p - start) * Normal(); }
    /// The side of a point farther away than the tolerance; else, and for a NaN, on the line.
    constexpr POINT2D_CLASSIFICATION ClassifyPoint(Vec2D<T> const& p, T tolerance) const;
    /// Writes the crossing point, wherever on the lines it lies, to out unless out is null; nothing where
    /// they are parallel. Parallel means exactly so. A line of no length is parallel to every other, and
    /// collinear as the argument.
    constexpr LINE2D_CLASSIFICATION Intersection(Line2D const& l, Vec2D<T>* out = nullptr) const;
};

template <class T>
constexpr Line2D<T>& Line2D<T>::operator=(Line2D const&) = default;

template <class T>
constexpr void Line2D<T>::SetPoints(Vec2D<T> const& a, Vec2D<T> const& b) {
    start = a;
    end = b;
    normalValid = 0;
}

template <class T>
constexpr Vec2D<T> const& Line2D<T>::Normal() const {
    if (normalValid == 0) ComputeNormal();
    return normal;
}

template <class T>
constexpr void Line2D<T>::ComputeNormal() const {
    Vec2D<T> direction;
    GetDirection(direction);
    normal = Vec2D<T>(direction.y, -direction.x);
    normalValid = 1;
}

template <class T>
constexpr POINT2D_CLASSIFICATION Line2D<T>::ClassifyPoint(Vec2D<T> const& p, T tolerance) const {
    T const d = SignedDistance(p);
    if (d > tolerance) return POINT2D_POSITIVE_SIDE;
    if (-tolerance > d) return POINT2D_NEGATIVE_SIDE;
    return POINT2D_ON_LINE;
}

template <class T>
constexpr LINE2D_CLASSIFICATION Line2D<T>::Intersection(Line2D const& l, Vec2D<T>* out) const {
    Vec2D<T> const da = end - start;
    Vec2D<T> const db = l.end - l.start;
    Vec2D<T> const e = start - l.start;
    T const denominator = da.x * db.y - da.y * db.x;
    T const numerator = db.x * e.y - db.y * e.x;
    if (denominator == 0) return numerator == 0 ? LINE2D_COLLINEAR : LINE2D_PARALLEL;
    T const r = T(1) / denominator;
    T const s = numerator * r;
    T const t = (da.x * e.y - da.y * e.x) * r;
    if (out != nullptr) *out = start + da * s;
    bool const onThis = 0 <= s && s <= 1;
    bool const onOther = 0 <= t && t <= 1;
    if (onThis) return onOther ? LINE2D_SEGMENTS_CROSS : LINE2D_CROSSES_THIS_SEGMENT;
    return onOther ? LINE2D_CROSSES_OTHER_SEGMENT : LINE2D_LINES_CROSS;
}

#define VERTRA_LINE2D(INSTANTIATE, T) INSTANTIATE class Line2D<T>;

VERTRA_LINE2D(extern template, float)
VERTRA_LINE2D(extern template, double)

}  // namespace vertra
