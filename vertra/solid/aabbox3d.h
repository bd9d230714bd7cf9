#pragma once

#include <vertra/export.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/solid/line3d.h>
#include <vertra/solid/plane3d.h>

#include <limits>
#include <type_traits>

namespace vertra {

template <class T>
class VERTRA_API Triangle3D;

/// An axis-aligned box: every point with min <= p <= max on x, y and z.
///
/// Reset it, grow it point by point, ask it. A box that is default or reset is inverted, from M to -M on
/// every axis (M the largest finite float, for both scalars), so that the first point added becomes the box.
/// That state is not tested for anywhere; IsEmpty asks something else. Nothing but Repair puts corners in
/// order.
///
/// Corner i has high x where bit 2 of i is set, high z for bit 1, high y for bit 0:
///
///            3 ------- 7
///           /|        /|          y
///          1 ------- 5 |          |  z
///          | 2 ------|-6          | /
///          |/        |/           |/
///          0 ------- 4            +---- x
///
/// The faces, in order, lie at low x, low z, low y, high x, high z, high y; planes and triangles made from
/// them face out. The w of both corners follows the rules of `Vec4D`; only comparison and the test against
/// another box read it.
template <class T>
class VERTRA_API AABBox3D {
public:
    /// @{ The low and the high corner.
    Vec4D<T> min;
    Vec4D<T> max;
    /// @}

    /// The reset box.
    constexpr AABBox3D() : min(std::numeric_limits<float>::max()), max(-std::numeric_limits<float>::max()) {}
    /// The w of both corners becomes 0.
    constexpr AABBox3D(AABBox3D const& other);
    /// @{ Low and high corner as given.
    constexpr AABBox3D(Vec4D<T> const& low, Vec4D<T> const& high) : min(low), max(high) {}
    constexpr AABBox3D(T x1, T y1, T z1, T x2, T y2, T z2) : min(x1, y1, z1), max(x2, y2, z2) {}
    /// @}

    /// x, y, z of both corners; their w stays.
    constexpr AABBox3D const& operator=(AABBox3D const& other) { return Reset(other); }
    /// Back to the inverted box; w stays.
    constexpr AABBox3D const& Reset();
    /// @{ The box of one point.
    constexpr AABBox3D const& Reset(T x, T y, T z) { return Reset(Vec4D<T>(x, y, z)); }
    constexpr AABBox3D const& Reset(Vec4D<T> const& point);
    /// @}
    /// x, y, z of both corners; their w stays.
    constexpr AABBox3D const& Reset(AABBox3D const& other);
    /// @{ Grows to hold the point; a coordinate that is a NaN changes nothing.
    constexpr AABBox3D const& Add(T x, T y, T z);
    constexpr AABBox3D const& Add(Vec4D<T> const& point) { return Add(point.x, point.y, point.z); }
    /// @}
    /// Grows to hold both corners, which for a reset box are two ordinary points, far out.
    constexpr AABBox3D const& Add(AABBox3D const& other);
    /// Swaps the coordinates of each axis on which min > max.
    constexpr AABBox3D const& Repair();

    /// Half way between the corners.
    constexpr Vec4D<T> Center() const { return (max + min) * T(0.5); }
    /// The full width max - min, not half of it.
    constexpr Vec4D<T> GetExtent() const { return max - min; }
    /// 1 when the box is thinner than 1e-4 on every axis, as a single point is. A reset box is not.
    constexpr int IsEmpty() const;
    /// The boundary is inside.
    constexpr int IsInside(Vec4D<T> const& point) const;
    /// 1 when the other box lies in this one.
    constexpr int IsInside(AABBox3D const& other) const { return IsInside(other.max) && IsInside(other.min); }
    /// @{ The boundary is outside.
    constexpr int IsTotallyInside(Vec4D<T> const& point) const;
    constexpr int IsTotallyInside(AABBox3D const& other) const {
        return IsTotallyInside(other.max) && IsTotallyInside(other.min);
    }
    /// @}
    /// The point clamped to the box: a point inside comes back as it is.
    constexpr Vec4D<T> GetClosestPoint(Vec4D<T> const& point) const;
    /// EIR_BEHIND where the whole box lies on the plane's positive side, EIR_IN_FRONT where no corner does,
    /// else EIR_CUT: the opposite numbers of `Plane3D::ClassifyPoint`. A corner on the plane is not on its
    /// positive side.
    constexpr EINTERSECTION_RELATION ClassifyPlane(Plane3D<T> const& plane) const;
    /// Writes x, y, z of the eight corners, rebuilt from center and half extent.
    constexpr AABBox3D const& GetEdges(Vec4D<T>* corners) const;
    /// Writes the six face planes, without their normal.w. A face of no area gets a zero normal.
    constexpr AABBox3D const& GetFacePlanes(Plane3D<T>* planes) const;
    /// Writes x, y, z of six triangles, each half of a face.
    constexpr AABBox3D const& GetFacePlanes(Triangle3D<T>* triangles) const;  // defined with Triangle3D

    /// 1 when the boxes overlap or touch. The w of the corners takes part like a fourth axis.
    constexpr int Intersects(AABBox3D const& other) const;
    /// The infinite line through point along direction, against the six face planes in turn. Each hit is
    /// compared with the bounds of all three axes, so rounding can lose a line; the segment forms are the
    /// robust ones.
    constexpr int Intersects(Vec4D<T> const& direction, Vec4D<T> const& point) const;
    /// A segment; touching counts.
    constexpr int Intersects(Line3D<T> const& line) const;
    /// A segment by its middle, its unit direction and half its length; touching counts.
    constexpr int Intersects(Vec4D<T> const& middle, Vec4D<T> const& direction, T halfLength) const;
};

/// @{ Exact, w included.
template <class T>
constexpr int operator==(AABBox3D<T> const& a, AABBox3D<T> const& b) {
    return a.min == b.min && a.max == b.max;
}
template <class T>
constexpr int operator!=(AABBox3D<T> const& a, AABBox3D<T> const& b) {
    return !(a == b);
}
/// @}
/// a*t + b*(1 - t): t weighs the first box, and is not clamped.
template <class T>
constexpr AABBox3D<T> GetInterpolatedBoundingBox(AABBox3D<T> const& a, AABBox3D<T> const& b,
                                                 std::type_identity_t<T> t) {
    T const u = 1 - t;
    return AABBox3D<T>(a.min * t + b.min * u, a.max * t + b.max * u);
}

namespace detail {

/// The corners a, b, c of each face, counter-clockwise seen from outside.
inline constexpr int kBoxFaces[6][3] = {{0, 2, 1}, {0, 1, 4}, {0, 4, 2}, {6, 4, 7}, {6, 7, 2}, {7, 5, 3}};

}  // namespace detail

template <class T>
constexpr AABBox3D<T>::AABBox3D(AABBox3D const&) = default;

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::Reset() {
    return Reset(AABBox3D());
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::Reset(Vec4D<T> const& point) {
    min = point;
    max = point;
    return *this;
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::Reset(AABBox3D const& other) {
    min = other.min;
    max = other.max;
    return *this;
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::Add(T x, T y, T z) {
    detail::Raise(max.x, x);
    detail::Raise(max.y, y);
    detail::Raise(max.z, z);
    detail::Lower(min.x, x);
    detail::Lower(min.y, y);
    detail::Lower(min.z, z);
    return *this;
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::Add(AABBox3D const& other) {
    Add(other.min);
    return Add(other.max);
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::Repair() {
    for (int axis = 0; axis < 3; ++axis) {
        T const low = min[axis];
        if (!(low > max[axis])) continue;
        min[axis] = max[axis];
        max[axis] = low;
    }
    return *this;
}

template <class T>
constexpr int AABBox3D<T>::IsEmpty() const {
    return Abs(min.x - max.x) < detail::kContactTolerance && Abs(min.y - max.y) < detail::kContactTolerance &&
           Abs(min.z - max.z) < detail::kContactTolerance;
}

template <class T>
constexpr int AABBox3D<T>::IsInside(Vec4D<T> const& point) const {
    return min.x <= point.x && point.x <= max.x && min.y <= point.y && point.y <= max.y && min.z <= point.z &&
           point.z <= max.z;
}

template <class T>
constexpr int AABBox3D<T>::IsTotallyInside(Vec4D<T> const& point) const {
    return min.x < point.x && point.x < max.x && min.y < point.y && point.y < max.y && min.z < point.z &&
           point.z < max.z;
}

template <class T>
constexpr Vec4D<T> AABBox3D<T>::GetClosestPoint(Vec4D<T> const& point) const {
    Vec4D<T> result = point;
    for (int axis = 0; axis < 3; ++axis) {
        if (min[axis] > point[axis]) {
            result[axis] = min[axis];
        } else if (point[axis] > max[axis]) {
            result[axis] = max[axis];
        }
    }
    return result;
}

template <class T>
constexpr EINTERSECTION_RELATION AABBox3D<T>::ClassifyPlane(Plane3D<T> const& plane) const {
    Vec4D<T> nearest = max;
    Vec4D<T> farthest = min;
    for (int axis = 0; axis < 3; ++axis) {
        if (plane.normal[axis] > 0) {
            nearest[axis] = min[axis];
            farthest[axis] = max[axis];
        }
    }
    if (detail::Dot3(plane.normal, nearest) + plane.distance > 0) return EIR_BEHIND;
    return detail::Dot3(plane.normal, farthest) + plane.distance > 0 ? EIR_CUT : EIR_IN_FRONT;
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::GetEdges(Vec4D<T>* const corners) const {
    Vec4D<T> const c = Center();
    Vec4D<T> const e = c - max;
    Vec4D<T> const low = e + c;
    Vec4D<T> const high = c - e;
    for (int i = 0; i < 8; ++i) {
        corners[i].Set((i & 4) != 0 ? high.x : low.x, (i & 1) != 0 ? high.y : low.y,
                       (i & 2) != 0 ? high.z : low.z);
    }
    return *this;
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::GetFacePlanes(Plane3D<T>* const planes) const {
    Vec4D<T> corners[8];
    GetEdges(corners);
    for (int i = 0; i < 6; ++i) {
        int const* const face = detail::kBoxFaces[i];
        planes[i] = Plane3D<T>(corners[face[0]], corners[face[1]], corners[face[2]]);
    }
    return *this;
}

template <class T>
constexpr int AABBox3D<T>::Intersects(AABBox3D const& other) const {
    return other.max >= min && max >= other.min;
}

template <class T>
constexpr int AABBox3D<T>::Intersects(Vec4D<T> const& direction, Vec4D<T> const& point) const {
    Plane3D<T> planes[6];
    GetFacePlanes(planes);
    for (Plane3D<T> const& plane : planes) {
        Vec4D<T> hit;
        if (plane.Intersects(direction, point, hit) && IsInside(hit)) return 1;
    }
    return 0;
}

template <class T>
constexpr int AABBox3D<T>::Intersects(Line3D<T> const& line) const {
    Vec4D<T> const d = line.end - line.start;
    return Intersects((line.end + line.start) * T(0.5), Normalize(d), Len(d) * T(0.5));
}

template <class T>
constexpr int AABBox3D<T>::Intersects(Vec4D<T> const& middle, Vec4D<T> const& direction, T halfLength) const {
    Vec4D<T> const e = (max - min) * T(0.5);
    Vec4D<T> const t = (min + e) - middle;
    Vec4D<T> const d(Abs(direction.x), Abs(direction.y), Abs(direction.z));
    if (Abs(t.x) > d.x * halfLength + e.x) return 0;
    if (Abs(t.y) > d.y * halfLength + e.y) return 0;
    if (Abs(t.z) > d.z * halfLength + e.z) return 0;
    if (Abs(t.y * direction.z - t.z * direction.y) > e.y * d.z + e.z * d.y) return 0;
    if (Abs(t.z * direction.x - t.x * direction.z) > e.x * d.z + e.z * d.x) return 0;
    if (Abs(t.x * direction.y - t.y * direction.x) > e.x * d.y + e.y * d.x) return 0;
    return 1;
}

#define VERTRA_AABBOX3D(INSTANTIATE, T)                                            \
    INSTANTIATE class AABBox3D<T>;                                                 \
    INSTANTIATE VERTRA_API int operator==(AABBox3D<T> const&, AABBox3D<T> const&); \
    INSTANTIATE VERTRA_API int operator!=(AABBox3D<T> const&, AABBox3D<T> const&); \
    INSTANTIATE VERTRA_API AABBox3D<T> GetInterpolatedBoundingBox(AABBox3D<T> const&, AABBox3D<T> const&, T);

VERTRA_AABBOX3D(extern template, float)
VERTRA_AABBOX3D(extern template, double)

}  // namespace vertra
