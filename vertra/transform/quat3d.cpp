#include <vertra/numeric/trigonometry.h>
#include <vertra/vertra.h>

namespace vertra {
namespace {

/// The cosine of a half angle, which both scalars round to float first.
template <class T>
T CosOfHalf(T half) {
    return detail::Cos(static_cast<T>(static_cast<float>(half)));
}

}  // namespace

template <class T>
Quat3D<T>::Quat3D(T pitch, T yaw, T roll) : Quat3D() {
    SetPitchYawRoll(pitch, yaw, roll);
}

template <class T>
Quat3D<T>::Quat3D(Vec4D<T> const& axis, T angle) : Quat3D() {
    SetAxisAngle(axis, angle);
}

template <class T>
Quat3D<T> const& Quat3D<T>::SetAxisAngle(Vec4D<T> const& axis, T angle) {
    T const half = angle * T(0.5);
    T const k = detail::Sin(half) / Len(axis);
    return *this = Quat3D(k * axis.x, k * axis.y, k * axis.z, CosOfHalf(half));
}

template <class T>
Quat3D<T> const& Quat3D<T>::GetAxisAngle(Vec4D<T>& axis, T& angle) const {
    T const len = FastSqrt(static_cast<float>(x * x + y * y + z * z));
    if ((x == 0 && y == 0 && z == 0) || !(len > 0)) {
        axis.Set(T(1), T(0), T(0));
        angle = 0;
        return *this;
    }
    T const r = T(1) / len;
    axis.Set(r * x, r * y, r * z);
    angle = 2 * detail::Acos(w);
    return *this;
}

template <class T>
Quat3D<T> const& Quat3D<T>::SetPitchYawRoll(T pitch, T yaw, T roll) {
    T const sp = detail::Sin(pitch * T(0.5));
    T const cp = CosOfHalf(pitch * T(0.5));
    T const sy = detail::Sin(yaw * T(0.5));
    T const cy = CosOfHalf(yaw * T(0.5));
    T const sr = detail::Sin(roll * T(0.5));
    T const cr = CosOfHalf(roll * T(0.5));
    return *this = Quat3D(cr * cy * sp - sr * sy * cp, sr * cy * sp + cr * sy * cp,
                          sr * cy * cp - cr * sy * sp, sr * sy * sp + cr * cy * cp);
}

template <class T>
Quat3D<T> const& Quat3D<T>::GetPitchYawRoll(T& pitch, T& yaw, T& roll) const {
    T const quarter = 1.5707963705062866F;
    T const t = 2 * (w * y - x * z);
    if (1 > t && t > -1) {
        pitch = detail::Atan2(2 * (z * y + x * w), 1 - 2 * (x * x + y * y));
        yaw = detail::Asin(t);
        roll = detail::Atan2(2 * (z * w + x * y), 1 - 2 * (z * z + y * y));
        return *this;
    }
    T const rest = detail::Atan2(2 * (x * y - z * w), 1 - 2 * (z * z + x * x));
    bool const minus = 1 > t;  // a NaN counts as plus
    pitch = minus ? -rest : rest;
    yaw = minus ? -quarter : quarter;
    roll = 0;
    return *this;
}

template <class T>
Quat3D<T> Exp(Quat3D<T> const& q) {
    T const len = FastSqrt(static_cast<float>(q.x * q.x + q.y * q.y + q.z * q.z));
    T const w = detail::Cos(len);
    if (!(len > T(1e-6F))) return Quat3D<T>(q.x, q.y, q.z, w);
    T const k = detail::Sin(len) / len;
    return Quat3D<T>(q.x * k, q.y * k, q.z * k, w);
}

template <class T>
Quat3D<T> Log(Quat3D<T> const& q) {
    T const len = FastSqrt(static_cast<float>(q.x * q.x + q.y * q.y + q.z * q.z));
    if (!(len > 0)) return Quat3D<T>(q.x, q.y, q.z, T(0));
    T const k = detail::Atan2(len, q.w) / len;
    return Quat3D<T>(q.x * k, q.y * k, q.z * k, T(0));
}

template <class T>
Quat3D<T> Slerp(Quat3D<T> const& a, Quat3D<T> const& b, std::type_identity_t<T> t,
                std::type_identity_t<T> epsilon) {
    T const dot = a.x * b.x + a.y * b.y + a.z * b.z + a.w * b.w;
    bool const opposite = 0 > dot;
    T const c = opposite ? -dot : dot;
    T k0 = 1 - t;
    T k1 = t;
    if (!(epsilon > 1 - c)) {
        T const omega = detail::Acos(c);
        T const r = T(1) / detail::Sin(omega);
        k0 = detail::Sin(omega - omega * t) * r;
        k1 = detail::Sin(omega * t) * r;
    }
    if (opposite) k1 = -k1;
    return Quat3D<T>(k0 * a.x + k1 * b.x, k0 * a.y + k1 * b.y, k0 * a.z + k1 * b.z, k0 * a.w + k1 * b.w);
}

VERTRA_QUAT3D(template, float)
VERTRA_QUAT3D(template, double)

}  // namespace vertra
