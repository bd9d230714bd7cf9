#include <vertra/numeric/trigonometry.h>
#include <vertra/vertra.h>

namespace vertra {

template <class T>
Matrix3D<T> const& Matrix3D<T>::PerspectiveFOV(T fov, T aspect, T zNear, T zFar) {
    T const h = detail::Tan(fov * T(0.5)) * zNear;
    T const w = h * aspect;
    return Frustum(-w, w, -h, h, zNear, zFar);
}

template <class T>
Matrix3D<T> const& Matrix3D<T>::XRot(T angle) {
    return XRot(detail::Cos(angle), detail::Sin(angle));
}

template <class T>
Matrix3D<T> const& Matrix3D<T>::YRot(T angle) {
    return YRot(detail::Cos(angle), detail::Sin(angle));
}

template <class T>
Matrix3D<T> const& Matrix3D<T>::ZRot(T angle) {
    return ZRot(detail::Cos(angle), detail::Sin(angle));
}

template <class T>
Matrix3D<T> const& Matrix3D<T>::Rot(Vec4D<T> const& angles) {
    XRot(angles.x);
    YRot(angles.y);
    return ZRot(angles.z);
}

template <class T>
Matrix3D<T> const& Matrix3D<T>::Rot(Vec4D<T> const& axis, T angle) {
    return Rot(axis, detail::Cos(angle), detail::Sin(angle));
}

template <class T>
Vec4D<T> Matrix3D<T>::GetRotation() const {
    T const a = -detail::Asin(m[8]);
    T const c = detail::Cos(a);
    T p = 0;
    T q = 0;
    if (Abs(c) > T(5e-4F)) {
        T const r = T(1) / c;
        p = detail::Atan2(r * m[9], r * m[10]);
        q = detail::Atan2(r * m[4], r * m[0]);
    } else {
        q = detail::Atan2(-m[1], m[5]);
    }
    return Vec4D<T>(-p, -a, -q);
}

VERTRA_MATRIX3D(template, float)
VERTRA_MATRIX3D(template, double)

}  // namespace vertra
