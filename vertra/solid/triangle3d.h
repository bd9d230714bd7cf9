#pragma once

#include <vertra/export.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/line3d.h>
#include <vertra/solid/plane3d.h>

#include <cstddef>
#include <initializer_list>

namespace vertra {

/// A triangle of three points. Its normal, (vertex[1] - vertex[0]) ^ (vertex[2] - vertex[0]), points to the
/// side from which they run counter-clockwise.
///
/// The geometry lives in x, y, z; the w of the vertices follows the rules of `Vec4D`.
template <class T>
class VERTRA_API Triangle3D {
public:
    /// Counter-clockwise, seen from where the normal points to.
    Vec4D<T> vertex[3];

    /// The three unit points (1, 0, 0), (0, 1, 0), (0, 0, 1): not a zero triangle.
    constexpr Triangle3D() : Triangle3D(T(1), T(0), T(0), T(0), T(1), T(0), T(0), T(0), T(1)) {}
    /// Every w becomes 0.
    constexpr Triangle3D(Triangle3D const& other);
    /// @{ The three vertices; every w is 0.
    constexpr Triangle3D(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c) : vertex{a, b, c} {}
    constexpr Triangle3D(T x1, T y1, T z1, T x2, T y2, T z2, T x3, T y3, T z3)
        : vertex{{x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}} {}
    /// @}

    /// x, y, z of the vertices; every w stays.
    constexpr Triangle3D const& operator=(Triangle3D const& other) {
        return Set(other.vertex[0], other.vertex[1], other.vertex[2]);
    }
    /// x, y, z of the vertices; every w stays.
    constexpr Triangle3D const& Set(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c);

    /// @{ Vertex i, 0 to 2; not range-checked.
    constexpr Vec4D<T>& operator[](int i) { return vertex[i]; }
    constexpr Vec4D<T>& operator[](unsigned int i) { return vertex[i]; }
    constexpr Vec4D<T>& operator[](WideIndex i) { return vertex[i]; }
    constexpr Vec4D<T> const& operator[](int i) const { return vertex[i]; }
    constexpr Vec4D<T> const& operator[](unsigned int i) const { return vertex[i]; }
    constexpr Vec4D<T> const& operator[](WideIndex i) const { return vertex[i]; }
    /// @}
    /// The plane of the triangle, with a unit normal; a zero one for a triangle of no area.
    constexpr operator Plane3D<T>() const { return Plane3D<T>(vertex[0], vertex[1], vertex[2]); }

    /// The infinite line through point along direction; both faces count, the boundary does not. out holds
    /// the hit on the triangle's plane, also where that lies outside; it is untouched where the line is
    /// parallel.
    constexpr int Intersects(Vec4D<T> const& point, Vec4D<T> const& direction, Vec4D<T>& out) const;
    /// The same for a segment, whose ends do not count.
    constexpr int Intersects(Line3D<T> const& line, Vec4D<T>& out) const;
    /// 1 when the triangle and the solid box share a point; touching counts.
    constexpr int Intersects(AABBox3D<T> const& box) const;
};

/// @{ Exact, vertex by vertex, w included.
template <class T>
constexpr int operator==(Triangle3D<T> const& a, Triangle3D<T> const& b) {
    return a.vertex[0] == b.vertex[0] && a.vertex[1] == b.vertex[1] && a.vertex[2] == b.vertex[2];
}
template <class T>
constexpr int operator!=(Triangle3D<T> const& a, Triangle3D<T> const& b) {
    return !(a == b);
}
/// @}

/// The normal, not normalised: its length is twice the area. `Normal` of three points is the unit form.
template <class T>
constexpr Vec4D<T> Normal(Triangle3D<T> const& triangle) {
    return (triangle.vertex[1] - triangle.vertex[0]) ^ (triangle.vertex[2] - triangle.vertex[0]);
}
/// 1 when the direction runs against the normal or along the plane, and for a triangle of no area; 0 for a
/// NaN.
template <class T>
constexpr int IsFrontFacing(Triangle3D<T> const& triangle, Vec4D<T> const& direction) {
    return Normalize(Normal(triangle)) * direction <= 0;
}
/// The infinite line through point along direction against the triangle's plane, whatever its extent. Only a
/// line at exactly a right angle to the normal is parallel: 0, and out untouched.
template <class T>
constexpr int TrianglePlaneIntersectsWithLine(Triangle3D<T> const& triangle, Vec4D<T> const& point,
                                              Vec4D<T> const& direction, Vec4D<T>& out);
/// 1 when p1 and p2 lie strictly on the same side of the line through a and b.
template <class T>
constexpr int IsOnTheSameSide(Vec4D<T> const& p1, Vec4D<T> const& p2, Vec4D<T> const& a, Vec4D<T> const& b) {
    Vec4D<T> const edge = b - a;
    return (edge ^ (p1 - a)) * (edge ^ (p2 - a)) > 0;
}
/// 1 when the point lies inside all three edges; the boundary is outside, and a triangle of no area holds
/// nothing. The point need not lie in the plane.
template <class T>
constexpr int IsInsideTriangle(Triangle3D<T> const& triangle, Vec4D<T> const& point) {
    Vec4D<T> const* const v = triangle.vertex;
    // All three, without a branch: which of them fails is not to be foretold.
    return IsOnTheSameSide(point, v[0], v[1], v[2]) & IsOnTheSameSide(point, v[1], v[0], v[2]) &
           IsOnTheSameSide(point, v[2], v[0], v[1]);
}
/// The same for the point's projection, by barycentric coordinates and their sign bits, without a branch.
/// Here the third edge is outside and the two through vertex[0] are inside, unless a sum that is zero there
/// comes out as -0.
template <class T>
constexpr int IsInsideTriangleFast(Triangle3D<T> const& triangle, Vec4D<T> const& point);
/// The nearest point of the outline, not of the surface.
template <class T>
constexpr Vec4D<T> GetClosestPoint(Triangle3D<T> const& triangle, Vec4D<T> point);

template <class T>
constexpr Triangle3D<T>::Triangle3D(Triangle3D const&) = default;

template <class T>
constexpr Triangle3D<T> const& Triangle3D<T>::Set(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c) {
    vertex[0] = a;
    vertex[1] = b;
    vertex[2] = c;
    return *this;
}

template <class T>
constexpr int Triangle3D<T>::Intersects(Vec4D<T> const& point, Vec4D<T> const& direction,
                                        Vec4D<T>& out) const {
    return TrianglePlaneIntersectsWithLine(*this, point, direction, out) && IsInsideTriangle(*this, out);
}

template <class T>
constexpr int Triangle3D<T>::Intersects(Line3D<T> const& line, Vec4D<T>& out) const {
    return Intersects(line.start, line.end - line.start, out) && IsPointBetweenStartAndEnd(out, line);
}

template <class T>
constexpr int TrianglePlaneIntersectsWithLine(Triangle3D<T> const& triangle, Vec4D<T> const& point,
                                              Vec4D<T> const& direction, Vec4D<T>& out) {
    Vec4D<T> const n = Normal(triangle);
    T const denominator = detail::Dot3(n, direction);
    if (IsEqual(denominator, T(0), T(1e-5))) return 0;
    T const t = (detail::Dot3(n, point) - detail::Dot3(n, triangle.vertex[0])) * (-1 / denominator);
    out = point + direction * t;
    return 1;
}

template <class T>
constexpr int IsInsideTriangleFast(Triangle3D<T> const& triangle, Vec4D<T> const& point) {
    Vec4D<T> const f = triangle.vertex[1] - triangle.vertex[0];
    Vec4D<T> const g = triangle.vertex[2] - triangle.vertex[0];
    Vec4D<T> const q = point - triangle.vertex[0];
    T const a = detail::Dot3(f, f);
    T const b = detail::Dot3(f, g);
    T const c = detail::Dot3(g, g);
    T const d = detail::Dot3(q, f);
    T const e = detail::Dot3(q, g);
    T const x = d * c - e * b;
    T const y = e * a - d * b;
    T const z = x + y - (a * c - b * b);
    return detail::SignBit(z) & ~(detail::SignBit(x) | detail::SignBit(y));
}

template <class T>
constexpr Vec4D<T> GetClosestPoint(Triangle3D<T> const& triangle, Vec4D<T> point) {
    Vec4D<T> const* const v = triangle.vertex;
    Vec4D<T> const rab = GetClosestPoint(Line3D<T>(v[0], v[1]), point);
    Vec4D<T> const rbc = GetClosestPoint(Line3D<T>(v[1], v[2]), point);
    Vec4D<T> const rca = GetClosestPoint(Line3D<T>(v[2], v[0]), point);
    T const d1 = GetDistanceBetween(rab, point);
    T const d2 = GetDistanceBetween(rbc, point);
    T const d3 = GetDistanceBetween(rca, point);
    if (d2 > d1) return d3 > d1 ? rab : rca;
    return d3 > d2 ? rbc : rca;
}

namespace detail {

/// 1 when an interval with ends p and q, in either order, lies outside -r to r; touching is not outside.
template <class T>
constexpr int IsApart(T p, T q, T r) {
    bool const ordered = p < q;
    return (ordered ? p : q) > r || (ordered ? q : p) < -r;
}

/// The same for the least and the greatest of three values.
template <class T>
constexpr int AreApart(T p, T q, T s, T r) {
    T low = p;
    T high = p;
    for (T const value : {q, s}) {
        Lower(low, value);
        Raise(high, value);
    }
    return low > r || high < -r;
}

/// A box around the origin with half extents h against the plane n.p + d = 0; touching counts.
template <class T>
constexpr int IsPlaneOverlappingBox(Vec4D<T> const& h, Vec4D<T> const& n, T d) {
    Vec4D<T> const high(n.x > 0 ? h.x : -h.x, n.y > 0 ? h.y : -h.y, n.z > 0 ? h.z : -h.z);
    if (Dot3(n, -high) + d > 0) return 0;
    return Dot3(n, high) + d >= 0;
}

/// A triangle against the box around c with half extents h, by the thirteen axes of T. Akenine-Moller, "Fast
/// 3D Triangle-Box Overlap Testing", 2001: nine cross products, three axes of the box, the triangle's plane.
template <class T>
constexpr int IsTriangleOverlappingBox(Vec4D<T> const& h, Vec4D<T> const& c, Vec4D<T> const* vertices) {
    Vec4D<T> const t[3] = {vertices[0] - c, vertices[1] - c, vertices[2] - c};
    Vec4D<T> const edges[3] = {t[1] - t[0], t[2] - t[1], t[0] - t[2]};

    // Two vertices of an edge project onto the same value: these are the two to look at, for each edge and
    // axis.
    constexpr int kProjected[3][3][2] = {
        {{0, 2}, {0, 2}, {1, 2}}, {{0, 2}, {0, 2}, {0, 1}}, {{0, 1}, {0, 1}, {1, 2}}};
    for (int i = 0; i < 3; ++i) {
        Vec4D<T> const& e = edges[i];
        Vec4D<T> const f(Abs(e.x), Abs(e.y), Abs(e.z));
        auto const x = [&](Vec4D<T> const& v) { return e.z * v.y - e.y * v.z; };
        auto const y = [&](Vec4D<T> const& v) { return e.x * v.z - e.z * v.x; };
        auto const z = [&](Vec4D<T> const& v) { return e.y * v.x - e.x * v.y; };
        auto const& [onX, onY, onZ] = kProjected[i];
        if (IsApart(x(t[onX[0]]), x(t[onX[1]]), f.z * h.y + f.y * h.z)) return 0;
        if (IsApart(y(t[onY[0]]), y(t[onY[1]]), f.z * h.x + f.x * h.z)) return 0;
        if (IsApart(z(t[onZ[0]]), z(t[onZ[1]]), f.y * h.x + f.x * h.y)) return 0;
    }
    if (AreApart(t[0].x, t[1].x, t[2].x, h.x)) return 0;
    if (AreApart(t[0].y, t[1].y, t[2].y, h.y)) return 0;
    if (AreApart(t[0].z, t[1].z, t[2].z, h.z)) return 0;
    Vec4D<T> const n = edges[0] ^ edges[1];
    return IsPlaneOverlappingBox(h, n, -Dot3(n, t[0]));
}

}  // namespace detail

template <class T>
constexpr int Triangle3D<T>::Intersects(AABBox3D<T> const& box) const {
    Vec4D<T> const c = box.Center();
    return detail::IsTriangleOverlappingBox(box.max - c, c, vertex);
}

template <class T>
constexpr AABBox3D<T> const& AABBox3D<T>::GetFacePlanes(Triangle3D<T>* const triangles) const {
    Vec4D<T> corners[8];
    GetEdges(corners);
    for (int i = 0; i < 6; ++i) {
        int const* const face = detail::kBoxFaces[i];
        triangles[i].Set(corners[face[0]], corners[face[1]], corners[face[2]]);
    }
    return *this;
}

#define VERTRA_TRIANGLE3D(INSTANTIATE, T)                                                             \
    INSTANTIATE class Triangle3D<T>;                                                                  \
    INSTANTIATE VERTRA_API int operator==(Triangle3D<T> const&, Triangle3D<T> const&);                \
    INSTANTIATE VERTRA_API int operator!=(Triangle3D<T> const&, Triangle3D<T> const&);                \
    INSTANTIATE VERTRA_API Vec4D<T> Normal(Triangle3D<T> const&);                                     \
    INSTANTIATE VERTRA_API int IsFrontFacing(Triangle3D<T> const&, Vec4D<T> const&);                  \
    INSTANTIATE VERTRA_API int TrianglePlaneIntersectsWithLine(Triangle3D<T> const&, Vec4D<T> const&, \
                                                               Vec4D<T> const&, Vec4D<T>&);           \
    INSTANTIATE VERTRA_API int IsOnTheSameSide(Vec4D<T> const&, Vec4D<T> const&, Vec4D<T> const&,     \
                                               Vec4D<T> const&);                                      \
    INSTANTIATE VERTRA_API int IsInsideTriangle(Triangle3D<T> const&, Vec4D<T> const&);               \
    INSTANTIATE VERTRA_API int IsInsideTriangleFast(Triangle3D<T> const&, Vec4D<T> const&);           \
    INSTANTIATE VERTRA_API Vec4D<T> GetClosestPoint(Triangle3D<T> const&, Vec4D<T>);

VERTRA_TRIANGLE3D(extern template, float)
VERTRA_TRIANGLE3D(extern template, double)

}  // namespace vertra
