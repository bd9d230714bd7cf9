#pragma once

#include <vertra/export.h>
#include <vertra/numeric/vec4d.h>

#include <type_traits>

namespace vertra {

/// A directed segment from start to end, which may coincide. The probe of the shapes' intersection tests.
///
/// The geometry lives in x, y, z; the w of both points follows the rules of `Vec4D`. So a copy of a line with
/// a w that is not 0 is unequal to it.
template <class T>
class VERTRA_API Line3D {
public:
    /// @{ May coincide.
    Vec4D<T> start;
    Vec4D<T> end;
    /// @}

    /// From (0, 0, 0) to (1, 1, 1).
    constexpr Line3D() : Line3D(T(0), T(0), T(0), T(1), T(1), T(1)) {}
    /// The w of both points becomes 0.
    constexpr Line3D(Line3D const& other);
    /// @{ From the first point to the second; the w of both is 0.
    constexpr Line3D(Vec4D<T> const& from, Vec4D<T> const& to) : start(from), end(to) {}
    constexpr Line3D(T x1, T y1, T z1, T x2, T y2, T z2) : start(x1, y1, z1), end(x2, y2, z2) {}
    /// @}

    /// x, y, z of both points; their w stays.
    constexpr Line3D const& operator=(Line3D const& other) { return SetPoints(other.start, other.end); }
    /// Point by point, w included, unlike `a + b`.
    constexpr Line3D const& operator+=(Line3D const& other);
    /// Point by point, w included, unlike `a - b`.
    constexpr Line3D const& operator-=(Line3D const& other);
    /// @{ Exact, w included.
    constexpr int operator==(Line3D const& other) { return start == other.start && end == other.end; }
    constexpr int operator!=(Line3D const& other) { return !(*this == other); }
    /// @}

    /// @{ x, y, z of both points; their w stays.
    constexpr Line3D const& SetPoints(Vec4D<T> const& from, Vec4D<T> const& to);
    constexpr Line3D const& SetPoints(T x1, T y1, T z1, T x2, T y2, T z2);
    /// @}

    /// Half way; w is 0.
    constexpr Vec4D<T> Midpoint() const { return (start + end) * T(0.5); }
    /// The direction end - start, not normalised: not a point.
    constexpr operator Vec4D<T>() const { return end - start; }
};

/// @{ Point by point; the w of both is 0.
template <class T>
constexpr Line3D<T> operator+(Line3D<T> const& a, Line3D<T> const& b) {
    return Line3D<T>(a.start + b.start, a.end + b.end);
}
template <class T>
constexpr Line3D<T> operator-(Line3D<T> const& a, Line3D<T> const& b) {
    return Line3D<T>(a.start - b.start, a.end - b.end);
}
/// @}

/// @{ Of end - start, over x, y, z.
template <class T>
constexpr T Len(Line3D<T> const& line) {
    return GetDistanceBetween(line.start, line.end);
}
template <class T>
constexpr T Len2(Line3D<T> const& line) {
    return GetDistanceBetween2(line.start, line.end);
}
/// @}

/// 1 when the point is nearer to both ends than the line is long: it lies in both open balls of radius
/// Len(line) around the ends, on the line or off it. An end itself gives 0.
template <class T>
constexpr int IsPointBetweenStartAndEnd(Vec4D<T> const& point, Line3D<T> const& line) {
    T const square = Len2(line);
    return square > GetDistanceBetween2(point, line.start) && square > GetDistanceBetween2(point, line.end);
}
/// 1 when the way from start to end through the point is longer than the line by less than tolerance
/// (strictly): the tolerance bounds the detour, not the distance from the line. The detour is narrowed to
/// float.
template <class T>
constexpr int IsPointInsideLine(Vec4D<T> const& point, Line3D<T> const& line,
                                std::type_identity_t<T> tolerance) {
    T const detour = GetDistanceBetween(point, line.start) + GetDistanceBetween(point, line.end) - Len(line);
    return tolerance > Abs(static_cast<float>(detour));
}
/// The point of the segment nearest to the given one. A line of no length gives its start.
template <class T>
constexpr Vec4D<T> GetClosestPoint(Line3D<T> const& line, Vec4D<T> const& point);
/// 1 when the line, unbounded both ways, meets or touches the sphere; also for a NaN. The last argument has
/// no effect.
template <class T>
constexpr int IsIntersectingWithSphere(Line3D<T> const& line, Vec4D<T> const& center,
                                       std::type_identity_t<T> radius, std::type_identity_t<T> reserved);

template <class T>
constexpr Line3D<T>::Line3D(Line3D const&) = default;

template <class T>
constexpr Line3D<T> const& Line3D<T>::operator+=(Line3D const& other) {
    start += other.start;
    end += other.end;
    return *this;
}

template <class T>
constexpr Line3D<T> const& Line3D<T>::operator-=(Line3D const& other) {
    start -= other.start;
    end -= other.end;
    return *this;
}

template <class T>
constexpr Line3D<T> const& Line3D<T>::SetPoints(Vec4D<T> const& from, Vec4D<T> const& to) {
    start = from;
    end = to;
    return *this;
}

template <class T>
constexpr Line3D<T> const& Line3D<T>::SetPoints(T x1, T y1, T z1, T x2, T y2, T z2) {
    start.Set(x1, y1, z1);
    end.Set(x2, y2, z2);
    return *this;
}

template <class T>
constexpr Vec4D<T> GetClosestPoint(Line3D<T> const& line, Vec4D<T> const& point) {
    Vec4D<T> const d = line.end - line.start;
    T const length = Len(d);
    Vec4D<T> const direction = d / length;
    T const t = detail::Dot3(direction, point - line.start);
    if (0 > t) return line.start;
    if (t > length) return line.end;
    return line.start + direction * t;
}

template <class T>
constexpr int IsIntersectingWithSphere(Line3D<T> const& line, Vec4D<T> const& center,
                                       std::type_identity_t<T> radius, std::type_identity_t<T>) {
    Vec4D<T> const q = center - line.start;
    T const c = Len(q);
    T const v = q * Normalize(line.end - line.start);
    return !(0 > radius * radius - (c * c - v * v));
}

#define VERTRA_LINE3D(INSTANTIATE, T)                                                        \
    INSTANTIATE class Line3D<T>;                                                             \
    INSTANTIATE VERTRA_API Line3D<T> operator+(Line3D<T> const&, Line3D<T> const&);          \
    INSTANTIATE VERTRA_API Line3D<T> operator-(Line3D<T> const&, Line3D<T> const&);          \
    INSTANTIATE VERTRA_API T Len(Line3D<T> const&);                                          \
    INSTANTIATE VERTRA_API T Len2(Line3D<T> const&);                                         \
    INSTANTIATE VERTRA_API int IsPointBetweenStartAndEnd(Vec4D<T> const&, Line3D<T> const&); \
    INSTANTIATE VERTRA_API int IsPointInsideLine(Vec4D<T> const&, Line3D<T> const&, T);      \
    INSTANTIATE VERTRA_API Vec4D<T> GetClosestPoint(Line3D<T> const&, Vec4D<T> const&);      \
    INSTANTIATE VERTRA_API int IsIntersectingWithSphere(Line3D<T> const&, Vec4D<T> const&, T, T);

VERTRA_LINE3D(extern template, float)
VERTRA_LINE3D(extern template, double)

}  // namespace vertra
