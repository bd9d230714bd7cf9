#pragma once

#include <cstddef>
#include <type_traits>

/// @file
/// A type with an array view converts to a pointer to its first scalar. These deleted operators keep
/// arithmetic, comparison and negation from falling through to that pointer: what the type does not define
/// does not compile. The operators that a type does define win, being more specialised.
/// The constructors that types delete for an array view are explicit: one that is not would compete, deleted
/// or not, where an overload takes the object by a conversion.
namespace vertra {

/// True for the types with an array view; said beside each of them.
template <class>
inline constexpr bool is_array_view = false;
/// True for those among them that compare with a scalar, component by component.
template <class>
inline constexpr bool compares_with_scalar = false;

template <class V> concept ArrayView = is_array_view<V>;

/// What subscripts take beside int and unsigned int: std::size_t, and unsigned long where that is unsigned
/// int.
using WideIndex = std::conditional_t<std::is_same_v<std::size_t, unsigned int>, unsigned long, std::size_t>;

/// What V's own comparisons do not take.
template <class U, class V> concept IncomparableWith = !(std::is_arithmetic_v<U> && compares_with_scalar<V>);

template <ArrayView V, class U>
void operator+(V const&, U const&) = delete;
template <ArrayView V, class U>
void operator+(U const&, V const&) = delete;
template <ArrayView V, class U>
void operator-(V const&, U const&) = delete;
template <ArrayView V, class U>
void operator-(U const&, V const&) = delete;
template <ArrayView V>
void operator+(V const&) = delete;
template <ArrayView V, IncomparableWith<V> U>
void operator==(V const&, U const&) = delete;
template <ArrayView V, IncomparableWith<V> U>
void operator<=>(V const&, U const&) = delete;
template <ArrayView V>
void operator!(V const&) = delete;

}  // namespace vertra
