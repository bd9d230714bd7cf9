#pragma once

#include <vertra/export.h>
#include <vertra/numeric/vec4d.h>

#include <cstddef>
#include <type_traits>

namespace vertra {

template <class T>
class VERTRA_API Quat3D;

template <class T>
inline constexpr bool is_array_view<Matrix3D<T>> = true;

/// A 4x4 transform, sixteen scalars row after row: element e lies in row e / 4, column e % 4.
///
///         | m0   m1   m2   m3  |  image of the x axis
///         | m4   m5   m6   m7  |  image of the y axis
///         | m8   m9   m10  m11 |  image of the z axis
///         | m12  m13  m14  m15 |  translation
///
/// Points are row vectors: `v * m` is the working product, and in `v * (a * b)` a acts first. Every builder
/// but Look multiplies its transform in from the left, so the newest acts first: start from Eye and call them
/// in the order outermost to innermost. Look alone multiplies from the right.
///
/// The builders are right-handed: a positive angle turns y towards z about x, z towards x about y, x towards
/// y about z, counter-clockwise seen from the positive end of the axis. Angles are in radians. Cameras look
/// down negative z; depth runs from -1 at the near plane (z = -zNear) to 1 at the far plane. No builder reads
/// the w of a vector.
template <class T>
class VERTRA_API Matrix3D {
public:
    /// Element e lies in row e / 4, column e % 4.
    T m[16];

    /// The identity.
    constexpr Matrix3D() : Matrix3D(T(0)) { m[0] = m[5] = m[10] = m[15] = T(1); }
    /// All sixteen elements become value: not a diagonal matrix.
    constexpr Matrix3D(T value) : m{} { *this = value; }
    /// Sixteen scalars from p on.
    constexpr Matrix3D(T const* p) : m{} { *this = p; }
    /// Row after row.
    constexpr Matrix3D(T m0, T m1, T m2, T m3, T m4, T m5, T m6, T m7, T m8, T m9, T m10, T m11, T m12, T m13,
                       T m14, T m15)
        : m{m0, m1, m2, m3, m4, m5, m6, m7, m8, m9, m10, m11, m12, m13, m14, m15} {}
    /// The four rows, w included as it arrives: a vector copied into the argument has w = 0 by then, one that
    /// is built in the argument keeps its own.
    constexpr Matrix3D(Vec4D<T> row0, Vec4D<T> row1, Vec4D<T> row2, Vec4D<T> row3);
    /// All sixteen elements.
    constexpr Matrix3D(Matrix3D const& other);
    /// The rotation of a quaternion, in the sense that `Quat3D` tells: the opposite way from its axes.
    constexpr Matrix3D(Quat3D<T> const& q);  // defined with Quat3D
    Matrix3D(std::nullptr_t) = delete;
    explicit Matrix3D(ArrayView auto const&) = delete;

    /// All sixteen elements.
    constexpr Matrix3D const& operator=(Matrix3D const& other) { return *this = other.m; }
    /// All sixteen elements become value.
    constexpr Matrix3D const& operator=(T value);
    /// Sixteen scalars from p on.
    constexpr Matrix3D const& operator=(T const* p);
    Matrix3D const& operator=(std::nullptr_t) = delete;
    Matrix3D const& operator=(ArrayView auto const&) = delete;

    /// @{ The identity. Eye and LoadIdentity are one operation.
    constexpr Matrix3D const& Eye() { return *this = Matrix3D(); }
    constexpr Matrix3D const& LoadIdentity() { return Eye(); }
    /// @}

    /// @{ (m[4i], m[4i+1], m[4i+2]), i from 0 to 3: the element of column 3 is dropped, w is 0.
    constexpr Vec4D<T> Row(int i) { return static_cast<Matrix3D const&>(*this).Row(i); }
    constexpr Vec4D<T> Row(int i) const { return Vec4D<T>(m + 4 * i); }
    /// @}
    /// @{ (m[i], m[i+4], m[i+8]), i from 0 to 3: the element of row 3 is dropped, w is 0.
    constexpr Vec4D<T> Column(int i) { return static_cast<Matrix3D const&>(*this).Column(i); }
    constexpr Vec4D<T> Column(int i) const { return Vec4D<T>(m[i], m[i + 4], m[i + 8]); }
    /// @}
    /// @{ Element i, 0 to 15, by value: flat, not a row, and not to be assigned through. Not range-checked.
    constexpr T operator[](int i) { return m[i]; }
    constexpr T operator[](unsigned int i) { return m[i]; }
    constexpr T operator[](WideIndex i) { return m[i]; }
    /// @}
    /// @{ The array view: sixteen scalars from element 0 on.
    constexpr operator T*() { return m; }
    constexpr operator T const*() const { return m; }
    /// @}
    explicit operator bool() = delete;
    explicit operator bool() const = delete;

    /// @{ All sixteen elements.
    constexpr Matrix3D const& operator+=(Matrix3D const& b);
    constexpr Matrix3D const& operator-=(Matrix3D const& b);
    /// @}
    /// The object becomes object * b. b must be another object; `m = m * m` squares.
    constexpr Matrix3D const& operator*=(Matrix3D const& b);
    /// All sixteen elements, column 3 included, unlike `m * s`.
    constexpr Matrix3D const& operator*=(T s);
    /// All sixteen elements times 1 / s, column 3 included, unlike `m / s`.
    constexpr Matrix3D const& operator/=(T s) { return *this *= T(1) / s; }

    /// Multiplies in an orthographic projection. Equal bounds give infinities and NaNs.
    constexpr Matrix3D const& Ortho(T left, T right, T bottom, T top, T zNear, T zFar);
    /// Multiplies in a perspective projection: clip w, as `Vec4D::operator*=` computes it, is -z.
    /// Equal bounds give infinities and NaNs; zNear and zFar are not tested.
    constexpr Matrix3D const& Frustum(T left, T right, T bottom, T top, T zNear, T zFar);
    /// The symmetric Frustum of a full vertical angle fov and an aspect of width over height.
    Matrix3D const& PerspectiveFOV(T fov, T aspect, T zNear, T zFar);
    /// Negates row 2: turns the right-handed system into a left-handed one.
    constexpr Matrix3D const& Left();

    /// @{ The rotation about one axis.
    Matrix3D const& XRot(T angle);
    Matrix3D const& YRot(T angle);
    Matrix3D const& ZRot(T angle);
    /// @}
    /// @{ The rotations from a ready cosine and sine, which are taken as they are.
    constexpr Matrix3D const& XRot(T c, T s);
    constexpr Matrix3D const& YRot(T c, T s);
    constexpr Matrix3D const& ZRot(T c, T s);
    /// @}
    /// XRot(angles.x), YRot(angles.y), ZRot(angles.z): a point turns about z first.
    Matrix3D const& Rot(Vec4D<T> const& angles);
    /// @{ About an axis of any length above 1e-15; a shorter one leaves the matrix unchanged.
    Matrix3D const& Rot(Vec4D<T> const& axis, T angle);
    constexpr Matrix3D const& Rot(Vec4D<T> const& axis, T c, T s);
    /// @}
    /// Multiplies in Matrix3D(q), the rotation by minus the angle of q.
    constexpr Matrix3D const& Rot(Quat3D<T> const& q);  // defined with Quat3D

    /// @{ Multiplies in a translation.
    constexpr Matrix3D const& Trans(Vec4D<T> const& v) { return Trans(v.x, v.y, v.z); }
    constexpr Matrix3D const& Trans(T x, T y, T z);
    /// @}
    /// @{ Multiplies in a scale along the axes.
    constexpr Matrix3D const& Scale(Vec4D<T> const& v) { return Scale(v.x, v.y, v.z); }
    constexpr Matrix3D const& Scale(T x, T y, T z);
    constexpr Matrix3D const& Scale(T s) { return Scale(s, s, s); }
    /// @}

    /// The view from eye towards center, multiplied in from the right: what the matrix does comes first.
    /// up need be neither of unit length nor at right angles. With eye = center columns 0 to 2 become 0; with
    /// up along the direction of view only column 2 survives.
    constexpr Matrix3D const& Look(Vec4D<T> const& eye, Vec4D<T> const& center, Vec4D<T> const& up);

    /// The angles that Rot(angles) takes; y comes back as asin(m8). At a quarter turn about y (cosine at most
    /// 5e-4) x is 0 and z takes up the rest. An m8 beyond -1 to 1 puts a NaN into y.
    Vec4D<T> GetRotation() const;
    /// (m0, m5, m10): the scale only where the linear block is diagonal.
    constexpr Vec4D<T> GetScale() const { return Vec4D<T>(m[0], m[5], m[10]); }
    /// (m12, m13, m14).
    constexpr Vec4D<T> GetTranslation() const { return Row(3); }
};

/// @{ All sixteen elements.
template <class T>
constexpr Matrix3D<T> operator+(Matrix3D<T> const& a, Matrix3D<T> const& b);
template <class T>
constexpr Matrix3D<T> operator-(Matrix3D<T> const& a, Matrix3D<T> const& b);
/// @}
/// All sixteen elements; in float a +0 stays +0.
template <class T>
constexpr Matrix3D<T> operator-(Matrix3D<T> const& a);
/// The full product: a acts first on a row vector.
template <class T>
constexpr Matrix3D<T> operator*(Matrix3D<T> const& a, Matrix3D<T> const& b);
/// @{ Columns 0 to 2 times s; column 3 is copied, so that an affine matrix stays one.
template <class T>
constexpr Matrix3D<T> operator*(Matrix3D<T> const& a, std::type_identity_t<T> s);
template <class T>
constexpr Matrix3D<T> operator*(std::type_identity_t<T> s, Matrix3D<T> const& a) {
    return a * s;
}
/// @}
/// Columns 0 to 2 times 1 / s; column 3 is copied.
template <class T>
constexpr Matrix3D<T> operator/(Matrix3D<T> const& a, std::type_identity_t<T> s) {
    return a * (T(1) / s);
}
/// Columns 0 to 2 become s divided by the element; column 3 is copied.
template <class T>
constexpr Matrix3D<T> operator/(std::type_identity_t<T> s, Matrix3D<T> const& a);
/// Rows become columns.
template <class T>
constexpr Matrix3D<T> Transpose(Matrix3D<T> const& a);

/// The point (x, y, z, 1) as a row times the matrix, without its fourth component: w is 0, nothing is
/// divided. The w of v is not read, so a direction is translated like any point.
template <class T>
constexpr Vec4D<T> operator*(Vec4D<T> const& v, Matrix3D<T> const& a) {
    return Vec4D<T>(v.x * a.m[0] + v.y * a.m[4] + v.z * a.m[8] + a.m[12],
                    v.x * a.m[1] + v.y * a.m[5] + v.z * a.m[9] + a.m[13],
                    v.x * a.m[2] + v.y * a.m[6] + v.z * a.m[10] + a.m[14]);
}
/// The matrix times the point (x, y, z, 1) as a column: the offset is column 3, so on an affine matrix this
/// is not the transform of `v * a`. w is 0.
template <class T>
constexpr Vec4D<T> operator*(Matrix3D<T> const& a, Vec4D<T> const& v) {
    return Vec4D<T>(v.x * a.m[0] + v.y * a.m[1] + v.z * a.m[2] + a.m[3],
                    v.x * a.m[4] + v.y * a.m[5] + v.z * a.m[6] + a.m[7],
                    v.x * a.m[8] + v.y * a.m[9] + v.z * a.m[10] + a.m[11]);
}

/// The determinant of all sixteen elements, by Laplace expansion along column 0.
template <class T>
constexpr T Det(Matrix3D<T> const& a);
/// The inverse, by Gauss-Jordan elimination with partial pivoting over the full 4x4 matrix. A singular matrix
/// is not detected: a pivot of 0 fills the result with NaNs and infinities. Ask Det first if you need to
/// know.
template <class T>
constexpr Matrix3D<T> Invert(Matrix3D<T> const& a);

template <class T>
constexpr Matrix3D<T>::Matrix3D(Vec4D<T> row0, Vec4D<T> row1, Vec4D<T> row2, Vec4D<T> row3)
    : Matrix3D(row0.x, row0.y, row0.z, row0.w, row1.x, row1.y, row1.z, row1.w, row2.x, row2.y, row2.z, row2.w,
               row3.x, row3.y, row3.z, row3.w) {}

template <class T>
constexpr Matrix3D<T>::Matrix3D(Matrix3D const&) = default;

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::operator=(T value) {
    for (T& element : m) element = value;
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::operator=(T const* p) {
    for (int e = 0; e < 16; ++e) m[e] = p[e];
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::operator+=(Matrix3D const& b) {
    for (int e = 0; e < 16; ++e) m[e] += b.m[e];
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::operator-=(Matrix3D const& b) {
    for (int e = 0; e < 16; ++e) m[e] -= b.m[e];
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::operator*=(Matrix3D const& b) {
    return *this = *this * b;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::operator*=(T s) {
    for (T& element : m) element *= s;
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Ortho(T left, T right, T bottom, T top, T zNear, T zFar) {
    T const rx = T(1) / (right - left);
    T const ry = T(1) / (top - bottom);
    T const rz = T(1) / (zFar - zNear);
    Trans(-(left + right) * rx, -(bottom + top) * ry, -(zNear + zFar) * rz);
    return Scale(2 * rx, 2 * ry, -2 * rz);
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Frustum(T left, T right, T bottom, T top, T zNear, T zFar) {
    T const rx = T(1) / (right - left);
    T const ry = T(1) / (top - bottom);
    T const rz = T(1) / (zFar - zNear);
    T const b0 = 2 * zNear * rx;
    T const b5 = 2 * zNear * ry;
    T const b8 = (left + right) * rx;
    T const b9 = (bottom + top) * ry;
    T const b10 = -(zNear + zFar) * rz;
    T const b14 = -2 * zNear * zFar * rz;
    for (T* column = m; column != m + 4; ++column) {
        T const row2 = column[8];
        column[8] = b8 * column[0] + b9 * column[4] + b10 * row2 - column[12];
        column[12] = b14 * row2;
        column[0] *= b0;
        column[4] *= b5;
    }
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Left() {
    for (int e = 8; e < 12; ++e) m[e] = detail::Negate(m[e]);
    return *this;
}

namespace detail {

/// Turns row i towards row j: i becomes c*i + s*j, and j becomes c*j - s*i.
template <class T>
constexpr void TurnRows(T* i, T* j, T c, T s) {
    for (int column = 0; column < 4; ++column) {
        T const old = i[column];
        i[column] = c * old + s * j[column];
        j[column] = c * j[column] - s * old;
    }
}

/// Rows 0 to 2 of m become the 3x3 block of b times those rows: m := b * m for a b that is linear.
template <class T>
constexpr void MultiplyLinearFromLeft(Matrix3D<T>& m, Matrix3D<T> const& b) {
    for (T* column = m.m; column != m.m + 4; ++column) {
        T const x = column[0];
        T const y = column[4];
        T const z = column[8];
        for (int i = 0; i < 12; i += 4) column[i] = b.m[i] * x + b.m[i + 1] * y + b.m[i + 2] * z;
    }
}

}  // namespace detail

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::XRot(T c, T s) {
    detail::TurnRows(m + 4, m + 8, c, s);
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::YRot(T c, T s) {
    detail::TurnRows(m + 8, m, c, s);
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::ZRot(T c, T s) {
    detail::TurnRows(m, m + 4, c, s);
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Rot(Vec4D<T> const& axis, T c, T s) {
    T const square = detail::Dot3(axis, axis);
    if (square <= T(1e-30F)) return *this;
    Vec4D<T> const n = axis * (T(1) / FastSqrt(static_cast<float>(square)));
    T const t = 1 - c;
    detail::MultiplyLinearFromLeft(
        *this, Matrix3D(n.x * n.x * t + c, n.x * n.y * t + n.z * s, n.x * n.z * t - n.y * s, T(0),  //
                        n.x * n.y * t - n.z * s, n.y * n.y * t + c, n.y * n.z * t + n.x * s, T(0),  //
                        n.x * n.z * t + n.y * s, n.y * n.z * t - n.x * s, n.z * n.z * t + c, T(0),  //
                        T(0), T(0), T(0), T(1)));
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Trans(T x, T y, T z) {
    for (T* column = m; column != m + 4; ++column) {
        column[12] = x * column[0] + y * column[4] + z * column[8] + column[12];
    }
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Scale(T x, T y, T z) {
    for (T* column = m; column != m + 4; ++column) {
        column[0] *= x;
        column[4] *= y;
        column[8] *= z;
    }
    return *this;
}

template <class T>
constexpr Matrix3D<T> const& Matrix3D<T>::Look(Vec4D<T> const& eye, Vec4D<T> const& center,
                                               Vec4D<T> const& up) {
    Vec4D<T> const z = Normalize(eye - center);
    Vec4D<T> const x = Normalize(up ^ z);
    Vec4D<T> const y = Normalize(z ^ x);
    T const tx = -detail::Dot3(x, eye);
    T const ty = -detail::Dot3(y, eye);
    T const tz = -detail::Dot3(z, eye);
    for (T* row = m; row != m + 16; row += 4) {
        Vec4D<T> const old(row);
        row[0] = old.x * x.x + old.y * x.y + old.z * x.z + row[3] * tx;
        row[1] = old.x * y.x + old.y * y.y + old.z * y.z + row[3] * ty;
        row[2] = old.x * z.x + old.y * z.y + old.z * z.z + row[3] * tz;
    }
    return *this;
}

template <class T>
constexpr Matrix3D<T> operator+(Matrix3D<T> const& a, Matrix3D<T> const& b) {
    Matrix3D<T> result = a;
    result += b;
    return result;
}

template <class T>
constexpr Matrix3D<T> operator-(Matrix3D<T> const& a, Matrix3D<T> const& b) {
    Matrix3D<T> result = a;
    result -= b;
    return result;
}

template <class T>
constexpr Matrix3D<T> operator-(Matrix3D<T> const& a) {
    Matrix3D<T> result = a;
    for (T& element : result.m) element = detail::Negate(element);
    return result;
}

template <class T>
constexpr Matrix3D<T> operator*(Matrix3D<T> const& a, Matrix3D<T> const& b) {
    T product[16] = {};  // not the result itself, which the compiler could not tell from a and b
    for (int i = 0; i < 16; i += 4) {
        T const* const row = a.m + i;
        for (int j = 0; j < 4; ++j) {
            product[i + j] =
                row[0] * b.m[j] + row[1] * b.m[4 + j] + row[2] * b.m[8 + j] + row[3] * b.m[12 + j];
        }
    }
    return Matrix3D<T>(product);
}

template <class T>
constexpr Matrix3D<T> operator*(Matrix3D<T> const& a, std::type_identity_t<T> s) {
    Matrix3D<T> result = a;
    for (int e = 0; e < 16; ++e) {
        if (e % 4 != 3) result.m[e] *= s;
    }
    return result;
}

template <class T>
constexpr Matrix3D<T> operator/(std::type_identity_t<T> s, Matrix3D<T> const& a) {
    Matrix3D<T> result = a;
    for (int e = 0; e < 16; ++e) {
        if (e % 4 != 3) result.m[e] = s / a.m[e];
    }
    return result;
}

template <class T>
constexpr Matrix3D<T> Transpose(Matrix3D<T> const& a) {
    Matrix3D<T> result;
    for (int e = 0; e < 16; ++e) result.m[e] = a.m[e % 4 * 4 + e / 4];
    return result;
}

template <class T>
constexpr Vec4D<T> const& Vec4D<T>::operator*=(Matrix3D<T> const& m) {
    w = x * m.m[3] + y * m.m[7] + z * m.m[11] + m.m[15];
    return *this = *this * m;
}

template <class T>
constexpr T Det(Matrix3D<T> const& a) {
    T const* const m = a.m;
    T const p = m[10] * m[15] - m[14] * m[11];
    T const q = m[6] * m[15] - m[14] * m[7];
    T const r = m[6] * m[11] - m[10] * m[7];
    T const s = m[2] * m[15] - m[14] * m[3];
    T const t = m[2] * m[11] - m[10] * m[3];
    T const u = m[2] * m[7] - m[6] * m[3];
    return m[0] * (m[5] * p - m[9] * q + m[13] * r) - m[4] * (m[1] * p - m[9] * s + m[13] * t) +
           m[8] * (m[1] * q - m[5] * s + m[13] * u) - m[12] * (m[1] * r - m[5] * t + m[9] * u);
}

namespace detail {

/// A matrix, on its way to the identity, and to its right the identity, on its way to the inverse.
template <class T>
using Augmented = T[4][8];

/// One step of Gauss-Jordan elimination with row pivoting: column j of `to` is that of the identity. The rows
/// go over to other memory and j is a constant, so that no branch and no store waits for the pivot.
template <int j, class T>
constexpr void EliminateColumn(Augmented<T> const& from, Augmented<T>& to) {
    int pivot = j;
    T best = from[j][j];
    for (int i = j + 1; i < 4; ++i) {
        bool const larger = Abs(from[i][j]) > Abs(best);
        pivot = larger ? i : pivot;
        best = larger ? from[i][j] : best;
    }
    T const reciprocal = T(1) / best;
    T unit[8] = {};
    for (int c = 0; c < 8; ++c) unit[c] = from[pivot][c] * reciprocal;
    for (int i = 0; i < 4; ++i) {  // row j too: it is overwritten below
        T const(&row)[8] = from[i == pivot ? j : i];
        T const factor = row[j];
        for (int c = 0; c < 8; ++c) to[i][c] = row[c] - factor * unit[c];
    }
    for (int c = 0; c < 8; ++c) to[j][c] = unit[c];
}

}  // namespace detail

template <class T>
constexpr Matrix3D<T> Invert(Matrix3D<T> const& a) {
    detail::Augmented<T> even = {};
    detail::Augmented<T> odd = {};
    for (int e = 0; e < 16; ++e) even[e / 4][e % 4] = a.m[e];
    for (int i = 0; i < 4; ++i) even[i][4 + i] = T(1);

    detail::EliminateColumn<0>(even, odd);
    detail::EliminateColumn<1>(odd, even);
    detail::EliminateColumn<2>(even, odd);
    detail::EliminateColumn<3>(odd, even);

    Matrix3D<T> result;
    for (int e = 0; e < 16; ++e) result.m[e] = even[e / 4][4 + e % 4];
    return result;
}

#define VERTRA_MATRIX3D(INSTANTIATE, T)                                                   \
    INSTANTIATE class Matrix3D<T>;                                                        \
    INSTANTIATE VERTRA_API Matrix3D<T> operator+(Matrix3D<T> const&, Matrix3D<T> const&); \
    INSTANTIATE VERTRA_API Matrix3D<T> operator-(Matrix3D<T> const&, Matrix3D<T> const&); \
    INSTANTIATE VERTRA_API Matrix3D<T> operator-(Matrix3D<T> const&);                     \
    INSTANTIATE VERTRA_API Matrix3D<T> operator*(Matrix3D<T> const&, Matrix3D<T> const&); \
    INSTANTIATE VERTRA_API Matrix3D<T> operator*(Matrix3D<T> const&, T);                  \
    INSTANTIATE VERTRA_API Matrix3D<T> operator*(T, Matrix3D<T> const&);                  \
    INSTANTIATE VERTRA_API Matrix3D<T> operator/(Matrix3D<T> const&, T);                  \
    INSTANTIATE VERTRA_API Matrix3D<T> operator/(T, Matrix3D<T> const&);                  \
    INSTANTIATE VERTRA_API Matrix3D<T> Transpose(Matrix3D<T> const&);                     \
    INSTANTIATE VERTRA_API Vec4D<T> operator*(Vec4D<T> const&, Matrix3D<T> const&);       \
    INSTANTIATE VERTRA_API Vec4D<T> operator*(Matrix3D<T> const&, Vec4D<T> const&);       \
    INSTANTIATE VERTRA_API T Det(Matrix3D<T> const&);                                     \
    INSTANTIATE VERTRA_API Matrix3D<T> Invert(Matrix3D<T> const&);

VERTRA_MATRIX3D(extern template, float)
VERTRA_MATRIX3D(extern template, double)

}  // namespace vertra
