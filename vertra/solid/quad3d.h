#pragma once

#include <vertra/export.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/solid/line3d.h>
#include <vertra/solid/triangle3d.h>

namespace vertra {

/// Four corners in order around, taken as two triangles that share the diagonal from vertex[0] to vertex[2]:
///
///         3 ----- 2
///         |     / |
///         |   /   |      (0, 1, 2) and (2, 3, 0)
///         | /     |
///         0 ----- 1
///
/// Nothing asks whether it is flat, convex or simple: the two triangles are what counts. The geometry lives
/// in x, y, z; the w of the vertices follows the rules of `Vec4D`.
template <class T>
class VERTRA_API Quad3D {
public:
    /// In order around.
    Vec4D<T> vertex[4];

    /// Four zero vectors.
    constexpr Quad3D() : vertex() {}
    /// Every w becomes 0.
    constexpr Quad3D(Quad3D const& other);
    /// The four vertices; every w is 0.
    constexpr Quad3D(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c, Vec4D<T> const& d)
        : vertex{a, b, c, d} {}
    /// Four scalars a vertex: the one constructor that stores a w.
    constexpr Quad3D(T x1, T y1, T z1, T w1, T x2, T y2, T z2, T w2, T x3, T y3, T z3, T w3, T x4, T y4, T z4,
                     T w4)
        : vertex{{x1, y1, z1, w1}, {x2, y2, z2, w2}, {x3, y3, z3, w3}, {x4, y4, z4, w4}} {}

    /// x, y, z of the vertices; every w stays.
    constexpr Quad3D& operator=(Quad3D const& other);

    /// The infinite line through point along direction; a hit on the diagonal, as on the outline, is none.
    /// out holds the last hit on a triangle's plane, also where the result is 0.
    constexpr int Intersects(Vec4D<T> const& point, Vec4D<T> const& direction, Vec4D<T>& out) const;
    /// The same for a segment, whose ends do not count.
    constexpr int Intersects(Line3D<T> const& line, Vec4D<T>& out) const;
    /// 1 when the unit normals of the triangles are exactly equal: rounding can make a flat quad fail.
    constexpr int IsCoPlanar() const;
};

/// @{ Exact, vertex by vertex, w included.
template <class T>
constexpr int operator==(Quad3D<T> const& a, Quad3D<T> const& b) {
    return a.vertex[0] == b.vertex[0] && a.vertex[1] == b.vertex[1] && a.vertex[2] == b.vertex[2] &&
           a.vertex[3] == b.vertex[3];
}
template <class T>
constexpr int operator!=(Quad3D<T> const& a, Quad3D<T> const& b) {
    return !(a == b);
}
/// @}

/// Writes x, y, z of both triangles.
template <class T>
constexpr void GetTrianglesFromQuad(Quad3D<T> const& quad, Triangle3D<T>& first, Triangle3D<T>& second) {
    first.Set(quad.vertex[0], quad.vertex[1], quad.vertex[2]);
    second.Set(quad.vertex[2], quad.vertex[3], quad.vertex[0]);
}
/// Joins two triangles along their shared edge, which becomes the diagonal; writes x, y, z of the quad. 0,
/// and quad untouched, where they are equal or do not share two vertices exactly, w included. It undoes
/// GetTrianglesFromQuad; otherwise the quad may wind the other way than first.
template <class T>
constexpr int ConstructFromTriangles(Quad3D<T>& quad, Triangle3D<T> const& first,
                                     Triangle3D<T> const& second);
/// 1 when both triangles face against the direction.
template <class T>
constexpr int IsFrontFacing(Quad3D<T> const& quad, Vec4D<T> const& direction);
/// 1 when IsInsideTriangle holds for either triangle: neither the outline nor the diagonal is inside.
template <class T>
constexpr int IsInsideQuad(Quad3D<T> const& quad, Vec4D<T> const& point);
/// 1 when IsInsideTriangleFast holds for either triangle, with its boundaries.
template <class T>
constexpr int IsInsideQuadFast(Quad3D<T> const& quad, Vec4D<T> const& point);

namespace detail {

template <class T>
struct QuadHalves {
    Triangle3D<T> first;
    Triangle3D<T> second;

    constexpr explicit QuadHalves(Quad3D<T> const& quad) { GetTrianglesFromQuad(quad, first, second); }
};

/// The last vertex that is neither p nor q; the zero vector where there is none.
template <class T>
constexpr Vec4D<T> VertexBeside(Triangle3D<T> const& triangle, Vec4D<T> const& p, Vec4D<T> const& q) {
    Vec4D<T> result;
    for (Vec4D<T> const& v : triangle.vertex) {
        if (v != p && v != q) result = v;
    }
    return result;
}

}  // namespace detail

template <class T>
constexpr Quad3D<T>::Quad3D(Quad3D const&) = default;

template <class T>
constexpr Quad3D<T>& Quad3D<T>::operator=(Quad3D const& other) {
    for (int i = 0; i < 4; ++i) vertex[i] = other.vertex[i];
    return *this;
}

template <class T>
constexpr int Quad3D<T>::Intersects(Vec4D<T> const& point, Vec4D<T> const& direction, Vec4D<T>& out) const {
    detail::QuadHalves<T> const half(*this);
    return half.first.Intersects(point, direction, out) || half.second.Intersects(point, direction, out);
}

template <class T>
constexpr int Quad3D<T>::Intersects(Line3D<T> const& line, Vec4D<T>& out) const {
    detail::QuadHalves<T> const half(*this);
    return half.first.Intersects(line, out) || half.second.Intersects(line, out);
}

template <class T>
constexpr int Quad3D<T>::IsCoPlanar() const {
    detail::QuadHalves<T> const half(*this);
    return Normalize(Normal(half.first)) == Normalize(Normal(half.second));
}

template <class T>
constexpr int ConstructFromTriangles(Quad3D<T>& quad, Triangle3D<T> const& first,
                                     Triangle3D<T> const& second) {
    if (first == second) return 0;
    Vec4D<T> shared[2];
    int matches = 0;
    for (Vec4D<T> const& v : first.vertex) {
        for (Vec4D<T> const& other : second.vertex) {
            if (matches < 2 && v == other) shared[matches++] = v;
        }
    }
    if (matches != 2) return 0;
    quad = Quad3D<T>(shared[0], detail::VertexBeside(first, shared[0], shared[1]), shared[1],
                     detail::VertexBeside(second, shared[0], shared[1]));
    return 1;
}

template <class T>
constexpr int IsFrontFacing(Quad3D<T> const& quad, Vec4D<T> const& direction) {
    detail::QuadHalves<T> const half(quad);
    return IsFrontFacing(half.first, direction) && IsFrontFacing(half.second, direction);
}

template <class T>
constexpr int IsInsideQuad(Quad3D<T> const& quad, Vec4D<T> const& point) {
    detail::QuadHalves<T> const half(quad);
    return IsInsideTriangle(half.first, point) || IsInsideTriangle(half.second, point);
}

template <class T>
constexpr int IsInsideQuadFast(Quad3D<T> const& quad, Vec4D<T> const& point) {
    detail::QuadHalves<T> const half(quad);
    return IsInsideTriangleFast(half.first, point) || IsInsideTriangleFast(half.second, point);
}

#define VERTRA_QUAD3D(INSTANTIATE, T)                                                                   \
    INSTANTIATE class Quad3D<T>;                                                                        \
    INSTANTIATE VERTRA_API int operator==(Quad3D<T> const&, Quad3D<T> const&);                          \
    INSTANTIATE VERTRA_API int operator!=(Quad3D<T> const&, Quad3D<T> const&);                          \
    INSTANTIATE VERTRA_API void GetTrianglesFromQuad(Quad3D<T> const&, Triangle3D<T>&, Triangle3D<T>&); \
    INSTANTIATE VERTRA_API int ConstructFromTriangles(Quad3D<T>&, Triangle3D<T> const&,                 \
                                                      Triangle3D<T> const&);                            \
    INSTANTIATE VERTRA_API int IsFrontFacing(Quad3D<T> const&, Vec4D<T> const&);                        \
    INSTANTIATE VERTRA_API int IsInsideQuad(Quad3D<T> const&, Vec4D<T> const&);                         \
    INSTANTIATE VERTRA_API int IsInsideQuadFast(Quad3D<T> const&, Vec4D<T> const&);

VERTRA_QUAD3D(extern template, float)
VERTRA_QUAD3D(extern template, double)

}  // namespace vertra
