#pragma once

#include <cmath>

/// Trigonometry for the library's own .cpp files, not installed. The float form is the platform's double
/// function rounded once: correctly rounded but for a handful of inputs, and so the same with every C
/// library.
namespace vertra::detail {

template <class T>
T Sin(T x) {
    return static_cast<T>(std::sin(static_cast<double>(x)));
}
template <class T>
T Cos(T x) {
    return static_cast<T>(std::cos(static_cast<double>(x)));
}
template <class T>
T Tan(T x) {
    return static_cast<T>(std::tan(static_cast<double>(x)));
}
template <class T>
T Asin(T x) {
    return static_cast<T>(std::asin(static_cast<double>(x)));
}
template <class T>
T Acos(T x) {
    return static_cast<T>(std::acos(static_cast<double>(x)));
}
template <class T>
T Atan2(T y, T x) {
    return static_cast<T>(std::atan2(static_cast<double>(y), static_cast<double>(x)));
}

}  // namespace vertra::detail
