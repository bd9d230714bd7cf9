#pragma once

#include <vertra/export.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/solid/line3d.h>
#include <vertra/transform/matrix3d.h>

#include <type_traits>

namespace vertra {

template <class T>
class VERTRA_API Sphere3D;

/// How a shape lies to a plane. Read the numbers by the operation that returned them: 0 is the plane's
/// negative side in Plane3D's classifications and its positive side in `AABBox3D::ClassifyPlane`, and 1 the
/// opposite.
enum EINTERSECTION_RELATION {
    EIR_BEHIND = 0,      ///< point or sphere on the negative side; box on the positive side
    EIR_IN_FRONT = 1,    ///< point or sphere on the positive side; box with no corner there
    EIR_ON_PLANE = 2,    ///< point within the tolerance
    EIR_STRADDLING = 3,  ///< sphere that the plane passes through
    EIR_CUT = 4          ///< box that the plane passes through
};

/// The infinite plane of the points p with
///
///     normal.x*p.x + normal.y*p.y + normal.z*p.z + normal.w*p.w + distance = 0.
///
/// So distance is minus the normal's dot product with a point of the plane. The positive side is the one into
/// which the normal points. A plane from three points has its normal on the side from which they run
/// counter-clockwise.
///
/// The constructors from a normal, and SetPlane with a distance, keep its length, and Distance scales with
/// it; the other setters make it a unit normal to the accuracy of `Normalize`. normal.w is 0 until `*=` gives
/// it a value; from then on the dot products over four components count it.
template <class T>
class VERTRA_API Plane3D {
public:
    /// @{ Of the equation above.
    Vec4D<T> normal;
    T distance;
    /// @}

    /// The plane y = 0 with its normal along +y.
    constexpr Plane3D() : Plane3D(Vec4D<T>(T(0), T(1), T(0)), T(0)) {}
    /// normal.w becomes 0.
    constexpr Plane3D(Plane3D const& other);
    /// Normal and distance as given, not normalised.
    constexpr Plane3D(Vec4D<T> const& n, T d) : normal(n), distance(d) {}
    /// Through the point, with the normal as given, not normalised. No w is read.
    constexpr Plane3D(Vec4D<T> const& n, Vec4D<T> const& point) : Plane3D(n, -detail::Dot3(n, point)) {}
    /// Normal, then point, as above.
    constexpr Plane3D(T nx, T ny, T nz, T px, T py, T pz)
        : Plane3D(Vec4D<T>(nx, ny, nz), Vec4D<T>(px, py, pz)) {}
    /// Through three points, with a unit normal.
    constexpr Plane3D(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c) : normal(), distance() {
        SetPlane(a, b, c);
    }

    /// normal.w stays.
    constexpr Plane3D const& operator=(Plane3D const& other) {
        return SetPlane(other.normal, other.distance);
    }
    /// Through three points, with a unit normal. Collinear points give a zero normal.
    constexpr Plane3D const& SetPlane(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c);
    /// Through the point; this form normalises, the constructor with these arguments does not.
    constexpr Plane3D const& SetPlane(Vec4D<T> const& n, Vec4D<T> const& point);
    /// Normal and distance as given, not normalised.
    constexpr Plane3D const& SetPlane(Vec4D<T> const& n, T d);
    /// Moves the plane to the point, over four components, and returns the new distance.
    constexpr T const& RecalculateDistance(Vec4D<T> const& point) { return distance = -(normal * point); }
    /// Divides x, y, z of the normal and the distance by the normal's Len, in which normal.w counts. A zero
    /// normal stays zero, with a huge distance, for its Len is not 0.
    constexpr Plane3D const& NormalizePlane();

    /// Signed, in units of the normal's length.
    constexpr T Distance(Vec4D<T> const& p) const { return normal * p + distance; }
    /// The side of a point farther than 1e-4 by Distance; else, and for a NaN, EIR_ON_PLANE.
    constexpr EINTERSECTION_RELATION ClassifyPoint(Vec4D<T> const& p) const;
    /// The side of a sphere that lies wholly on one, touching included, else EIR_STRADDLING, also for a NaN.
    /// No tolerance applies; a sphere of radius 0 on the plane is EIR_BEHIND.
    constexpr EINTERSECTION_RELATION ClassifySphere(
        Sphere3D<T> const& sphere) const;  // defined with Sphere3D
    /// The foot of the origin, where the normal has unit length.
    constexpr Vec4D<T> GetMemberPoint() const { return normal * -distance; }
    /// The x of the plane's point at (y, z); 0 where normal.x is 0. normal.w takes no part.
    constexpr T SolveForX(T y, T z) const;
    /// The y of the plane's point at (x, z); 0 where normal.y is 0.
    constexpr T SolveForY(T x, T z) const;
    /// The z of the plane's point at (x, y); 0 where normal.z is 0.
    constexpr T SolveForZ(T x, T y) const;

    /// Segment against plane; a hit on an end gives 0. out is written wherever the carrier line meets the
    /// plane, and untouched where it is parallel.
    constexpr int Intersects(Line3D<T> const& line, Vec4D<T>& out) const;
    /// The infinite line through point along direction against the plane. A direction at exactly a right
    /// angle to the normal, or zero, gives 0 and leaves out untouched.
    constexpr int Intersects(Vec4D<T> const& direction, Vec4D<T> const& point, Vec4D<T>& out) const;
    /// The point common to three planes; 0 and out untouched where the determinant of the normals is exactly
    /// 0.
    constexpr int Intersects(Plane3D const& b, Plane3D const& c, Vec4D<T>& out) const;
    /// The line common to two planes of unit normal, its direction not normalised; 0 and nothing written
    /// where they are parallel (the determinant is below 1e-8).
    constexpr int Intersects(Plane3D const& other, Vec4D<T>& direction, Vec4D<T>& point) const;

    /// `plane * m` in place, but normal.w becomes the w of `normal *= m`: 1 for an affine matrix.
    constexpr Plane3D const& operator*=(Matrix3D<T> const& m);
};

/// @{ Exact, normal.w included: two equations of one plane can differ.
template <class T>
constexpr int operator==(Plane3D<T> const& a, Plane3D<T> const& b) {
    return a.normal == b.normal && a.distance == b.distance;
}
template <class T>
constexpr int operator!=(Plane3D<T> const& a, Plane3D<T> const& b) {
    return !(a == b);
}
/// @}

/// 1 when the direction runs against the normal or along the plane; 0 for a NaN.
template <class T>
constexpr int IsFrontFacing(Plane3D<T> const& plane, Vec4D<T> const& direction) {
    return plane.normal * direction <= 0;
}

/// The plane carried by `v * m`: through the image of its member point, its normal the difference of the
/// images of the normal and the origin. That is the image plane under rotation, translation and uniform
/// scale; it is not normalised, and under a non-uniform scale its normal is not at right angles to the image
/// (no inverse transpose).
template <class T>
constexpr Plane3D<T> operator*(Plane3D<T> const& plane, Matrix3D<T> const& m) {
    return Plane3D<T>(plane.normal * m - Vec4D<T>() * m, plane.GetMemberPoint() * m);
}
/// The same for `m * v`.
template <class T>
constexpr Plane3D<T> operator*(Matrix3D<T> const& m, Plane3D<T> const& plane) {
    return Plane3D<T>(m * plane.normal - m * Vec4D<T>(), m * plane.GetMemberPoint());
}

template <class T>
constexpr Plane3D<T>::Plane3D(Plane3D const&) = default;

template <class T>
constexpr Plane3D<T> const& Plane3D<T>::SetPlane(Vec4D<T> const& a, Vec4D<T> const& b, Vec4D<T> const& c) {
    normal = Normal(a, b, c);
    RecalculateDistance(a);
    return *this;
}

template <class T>
constexpr Plane3D<T> const& Plane3D<T>::SetPlane(Vec4D<T> const& n, Vec4D<T> const& point) {
    normal = Normalize(n);
    RecalculateDistance(point);
    return *this;
}

template <class T>
constexpr Plane3D<T> const& Plane3D<T>::SetPlane(Vec4D<T> const& n, T d) {
    normal = n;
    distance = d;
    return *this;
}

template <class T>
constexpr Plane3D<T> const& Plane3D<T>::NormalizePlane() {
    T const length = Len(normal);
    if (length == 0) return *this;
    T const r = T(1) / length;
    return SetPlane(normal * r, distance * r);
}

template <class T>
constexpr EINTERSECTION_RELATION Plane3D<T>::ClassifyPoint(Vec4D<T> const& p) const {
    T const s = Distance(p);
    if (s < -detail::kContactTolerance) return EIR_BEHIND;
    if (s > detail::kContactTolerance) return EIR_IN_FRONT;
    return EIR_ON_PLANE;
}

template <class T>
constexpr T Plane3D<T>::SolveForX(T y, T z) const {
    return normal.x == 0 ? T(0) : -(y * normal.y + z * normal.z + distance) / normal.x;
}

template <class T>
constexpr T Plane3D<T>::SolveForY(T x, T z) const {
    return normal.y == 0 ? T(0) : -(x * normal.x + z * normal.z + distance) / normal.y;
}

template <class T>
constexpr T Plane3D<T>::SolveForZ(T x, T y) const {
    return normal.z == 0 ? T(0) : -(x * normal.x + y * normal.y + distance) / normal.z;
}

template <class T>
constexpr int Plane3D<T>::Intersects(Line3D<T> const& line, Vec4D<T>& out) const {
    return Intersects(line.end - line.start, line.start, out) && IsPointBetweenStartAndEnd(out, line);
}

template <class T>
constexpr int Plane3D<T>::Intersects(Vec4D<T> const& direction, Vec4D<T> const& point, Vec4D<T>& out) const {
    T const denominator = normal * direction;
    if (denominator == 0) return 0;
    T const t = -Distance(point) / denominator;
    out = point + direction * t;
    return 1;
}

template <class T>
constexpr int Plane3D<T>::Intersects(Plane3D const& b, Plane3D const& c, Vec4D<T>& out) const {
    Vec4D<T> const ab = normal ^ b.normal;
    T const det = detail::Dot3(c.normal, ab);
    if (det == 0) return 0;
    out = ((b.normal ^ c.normal) * -distance - (c.normal ^ normal) * b.distance - ab * c.distance) *
          (T(1) / det);
    return 1;
}

template <class T>
constexpr int Plane3D<T>::Intersects(Plane3D const& other, Vec4D<T>& direction, Vec4D<T>& point) const {
    T const la = Len(normal);
    T const lb = Len(other.normal);
    T const q = normal * other.normal;
    T const det = la * lb - q * q;
    if (Abs(det) < T(1e-8F)) return 0;
    T const r = T(1) / det;
    direction = normal ^ other.normal;
    point = normal * (r * (q * other.distance - lb * distance)) +
            other.normal * (r * (q * distance - la * other.distance));
    return 1;
}

template <class T>
constexpr Plane3D<T> const& Plane3D<T>::operator*=(Matrix3D<T> const& m) {
    Plane3D const image = *this * m;
    normal *= m;
    return *this = image;
}

#define VERTRA_PLANE3D(INSTANTIATE, T)                                                  \
    INSTANTIATE class Plane3D<T>;                                                       \
    INSTANTIATE VERTRA_API int operator==(Plane3D<T> const&, Plane3D<T> const&);        \
    INSTANTIATE VERTRA_API int operator!=(Plane3D<T> const&, Plane3D<T> const&);        \
    INSTANTIATE VERTRA_API int IsFrontFacing(Plane3D<T> const&, Vec4D<T> const&);       \
    INSTANTIATE VERTRA_API Plane3D<T> operator*(Plane3D<T> const&, Matrix3D<T> const&); \
    INSTANTIATE VERTRA_API Plane3D<T> operator*(Matrix3D<T> const&, Plane3D<T> const&);

VERTRA_PLANE3D(extern template, float)
VERTRA_PLANE3D(extern template, double)

}  // namespace vertra
