#pragma once

#include <vertra/interop/fields.h>

#include <cstddef>
#include <span>

namespace vertra {

namespace detail {

/// True for the types that hold nothing but scalars of their T.
template <class X>
inline constexpr bool is_all_scalars = Primitive<X>;
template <class T>
inline constexpr bool is_all_scalars<Line2D<T>> = false;
template <class T>
inline constexpr bool is_all_scalars<Light3D<T>> = false;
template <class T>
inline constexpr bool is_all_scalars<Material3D<T>> = false;

}  // namespace detail

/// The scalars of x in their order in memory: 4 of a vector, 16 of a matrix, row after row, w first of a
/// quaternion. Writing through the span writes to x, each w included.
template <template <class> class Shape, class T>
requires detail::is_all_scalars<Shape<T>>
auto Span(Shape<T>& x) {
    return std::span<T, sizeof(x) / sizeof(T)>(reinterpret_cast<T*>(&x), sizeof(x) / sizeof(T));
}
/// The same, to read.
template <template <class> class Shape, class T>
requires detail::is_all_scalars<Shape<T>>
auto Span(Shape<T> const& x) {
    return std::span<T const, sizeof(x) / sizeof(T)>(reinterpret_cast<T const*>(&x), sizeof(x) / sizeof(T));
}
template <template <class> class Shape, class T>
void Span(Shape<T> const&& x) = delete;

}  // namespace vertra
