#pragma once

#include <vertra/interop/fields.h>

#include <cstddef>
#include <functional>
#include <tuple>
#include <type_traits>

namespace vertra::detail {

template <class X>
inline constexpr bool is_equal_within_tolerance = false;
template <class T>
inline constexpr bool is_equal_within_tolerance<Position2D<T>> = true;
template <class T>
inline constexpr bool is_equal_within_tolerance<Dimension2D<T>> = true;
template <class T>
inline constexpr bool is_equal_within_tolerance<Rect2D<T>> = true;

template <class T>
std::size_t Hash(Color3D<T> const& color) {
    return static_cast<unsigned int>(color);
}
template <class X> concept HasEquality = requires(X& a, X const& b) { a == b; };

template <class X>
std::size_t Hash(X const& x) {
    if constexpr (std::is_scalar_v<X>) {
        return std::hash<X>()(x);
    } else if constexpr (requires { x.name; }) {
        return Hash(x.value);
    } else {
        std::size_t hash = 0;
        // 2^64 over the golden ratio, as in Knuth, "The Art of Computer Programming", volume 3, 6.4.
        constexpr auto kGolden = static_cast<std::size_t>(0x9E3779B97F4A7C15U);
        auto const mix = [&](std::size_t h) { hash ^= h + kGolden + (hash << 6) + (hash >> 2); };
        std::apply([&](auto const&... fields) { (mix(Hash(fields)), ...); }, detail::Fields(x));
        return hash;
    }
}

}  // namespace vertra::detail

namespace std {

/// Equal objects have equal hashes, by the type's own `==`: w counts, +0 and -0 are alike, colours hash by
/// their packed word. What is no value of `==` has no hash.
///
/// A container copies what it stores, and a copy of a vector has w = 0: look up what was put in with a w by a
/// copy too. The `==` of `Line3D` is not const, so a set of lines needs an equality of its own.
template <vertra::detail::Primitive X>
struct hash<X> {
    static_assert(!vertra::detail::is_equal_within_tolerance<X>,
                  "no hash agrees with an == that has a tolerance: equals of equals need not be equal");
    static_assert(vertra::detail::HasEquality<X>,
                  "no hash for a type without ==: nothing says which of its objects are alike");
    /// Of the fields.
    std::size_t operator()(X const& x) const { return vertra::detail::Hash(x); }
};

}  // namespace std
