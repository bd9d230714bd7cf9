#pragma once

#include <vertra/export.h>
#include <vertra/numeric/array_view.h>
#include <vertra/numeric/vec4d.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace vertra {

template <class T>
class VERTRA_API Color3D;

template <class T>
inline constexpr bool is_array_view<Color3D<T>> = true;

namespace detail {

/// v held to 0 to 1; a NaN stays one.
template <class T>
constexpr T Saturate(T v) {
    if (0 > v) return T(0);
    return v > 1 ? T(1) : v;
}

/// A channel as one byte: the low eight bits of channel * 255, truncated towards zero. So values out of 0 to
/// 1 wrap. 0 for a NaN and for a product beyond 64 bits.
template <class T>
constexpr unsigned int PackedByte(T channel) {
    double const product = static_cast<double>(channel) * 255;
    constexpr double kLimit = 9223372036854775808.0;  // 2^63
    if (!(-kLimit <= product && product < kLimit)) return 0;
    return static_cast<unsigned int>(static_cast<std::int64_t>(product) & 0xFF);
}

/// Byte `index` of a packed colour, counted from the lowest, as a channel.
template <class T>
constexpr T UnpackedByte(unsigned int packed, int index) {
    return static_cast<T>(packed >> (8 * index) & 0xFF) * (T(1) / T(255));
}

/// A scalar of another type than the colour's.
template <class S, class T> concept OtherScalar = std::is_arithmetic_v<S> && !std::same_as<S, T>;

}  // namespace detail

/// A colour on the nominal range 0 to 1, alpha last.
///
/// Whatever stores a channel stores it as it is; every arithmetic result is held to 0 to 1, channel by
/// channel, alpha included. The packed form is one 32-bit word for the renderer,
///
///     31       24 23       16 15        8 7         0
///     [  alpha  ] [   red   ] [  green  ] [  blue   ]
///
/// and equality is equality of the packed words: differences within a step of 1/255 do not show.
///
/// The conversion to the packed word serves where an unsigned int is asked for, and nowhere else: it takes no
/// part in arithmetic, comparison or output.
template <class T>
class VERTRA_API Color3D {
public:
    /// @{ In memory in this order, without gaps.
    T r;
    T g;
    T b;
    T a;
    /// @}

    /// Leaves the channels unset.
    constexpr Color3D() {}
    /// Each as given, also out of 0 to 1.
    constexpr Color3D(T red, T green, T blue, T alpha) : r(red), g(green), b(blue), a(alpha) {}
    /// Four scalars in the order of the fields.
    constexpr Color3D(T const* const values) : Color3D(values[0], values[1], values[2], values[3]) {}
    /// All four channels.
    constexpr Color3D(Color3D const& other);
    /// Each byte times 1/255.
    constexpr Color3D(unsigned int packed);
    Color3D(std::floating_point auto) = delete;
    Color3D(std::nullptr_t) = delete;
    explicit Color3D(ArrayView auto const&) = delete;

    /// All four channels.
    constexpr Color3D const& operator=(Color3D const& other);
    /// Four scalars in the order of the fields.
    constexpr Color3D const& operator=(T const* const values) { return *this = Color3D(values); }
    /// Each byte times 1/255.
    constexpr Color3D const& operator=(unsigned int packed) { return *this = Color3D(packed); }
    Color3D const& operator=(std::floating_point auto) = delete;
    Color3D const& operator=(std::nullptr_t) = delete;
    Color3D const& operator=(ArrayView auto const&) = delete;

    /// @{ The array view: four scalars from r on.
    constexpr operator T*() { return &r; }
    constexpr operator T const*() const { return &r; }
    /// @}
    /// @{ Channel i, 0 to 3 in the order r, g, b, a; not range-checked.
    constexpr T& operator[](int i) { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T& operator[](unsigned int i) { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T& operator[](WideIndex i);
    constexpr T const& operator[](int i) const { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T const& operator[](unsigned int i) const { return (*this)[static_cast<WideIndex>(i)]; }
    constexpr T const& operator[](WideIndex i) const;
    /// @}
    /// @{
    /// The packed word: each channel times 255, truncated, its low eight bits. Out of 0 to 1 it wraps; a NaN,
    /// and what does not fit 64 bits, gives the byte 0.
    constexpr operator unsigned int() { return static_cast<Color3D const&>(*this); }
    constexpr operator unsigned int() const;
    /// @}
    /// Every other scalar is refused, so that no built-in operator takes a colour for a number (g++ looks at
    /// the one to int alone there, and does not at templates).
    operator int() = delete;
    operator int() const = delete;
    template <detail::OtherScalar<unsigned int> S>
    operator S() = delete;
    template <detail::OtherScalar<unsigned int> S>
    operator S() const = delete;

    /// @{ The channel as it is stored.
    constexpr T Red() const { return r; }
    constexpr T Green() const { return g; }
    constexpr T Blue() const { return b; }
    constexpr T Alpha() const { return a; }
    /// @}

    /// @{ As the operator of two operands, saturating.
    constexpr Color3D const& operator+=(Color3D const& other) { return *this = *this + other; }
    constexpr Color3D const& operator-=(Color3D const& other) { return *this = *this - other; }
    constexpr Color3D const& operator*=(Color3D const& other) { return *this = *this * other; }
    constexpr Color3D const& operator*=(int n) { return *this = *this * static_cast<T>(n); }
    constexpr Color3D const& operator/=(int n) { return *this = *this / static_cast<T>(n); }
    /// @}
    Color3D const& operator*=(std::floating_point auto) = delete;
    Color3D const& operator/=(std::floating_point auto) = delete;

    /// @{ 1 for the object itself and where the packed words are equal.
    constexpr int operator==(Color3D const& other) const;
    constexpr int operator!=(Color3D const& other) const { return !(*this == other); }
    /// @}
};

/// @{ Channel by channel, alpha included, saturating.
template <class T>
constexpr Color3D<T> operator+(Color3D<T> const& a, Color3D<T> const& b) {
    return Color3D<T>(detail::Saturate(a.r + b.r), detail::Saturate(a.g + b.g), detail::Saturate(a.b + b.b),
                      detail::Saturate(a.a + b.a));
}
template <class T>
constexpr Color3D<T> operator-(Color3D<T> const& a, Color3D<T> const& b) {
    return Color3D<T>(detail::Saturate(a.r - b.r), detail::Saturate(a.g - b.g), detail::Saturate(a.b - b.b),
                      detail::Saturate(a.a - b.a));
}
template <class T>
constexpr Color3D<T> operator*(Color3D<T> const& a, Color3D<T> const& b) {
    return Color3D<T>(detail::Saturate(a.r * b.r), detail::Saturate(a.g * b.g), detail::Saturate(a.b * b.b),
                      detail::Saturate(a.a * b.a));
}
template <class T>
constexpr Color3D<T> operator*(Color3D<T> const& c, std::type_identity_t<T> s) {
    return c * Color3D<T>(s, s, s, s);
}
template <class T>
constexpr Color3D<T> operator*(std::type_identity_t<T> s, Color3D<T> const& c) {
    return c * s;
}
/// @}
/// c * (1 / s): one division. By 0, a zero channel becomes a NaN.
template <class T>
constexpr Color3D<T> operator/(Color3D<T> const& c, std::type_identity_t<T> s) {
    return c * (T(1) / s);
}
/// s divided by each channel.
template <class T>
constexpr Color3D<T> operator/(std::type_identity_t<T> s, Color3D<T> const& c) {
    return Color3D<T>(detail::Saturate(s / c.r), detail::Saturate(s / c.g), detail::Saturate(s / c.b),
                      detail::Saturate(s / c.a));
}

// Without these a scalar of another type, as in `c * 2`, would waver between T and the packed word.
/// @{ The scalar is converted to T first.
template <class T, detail::OtherScalar<T> S>
constexpr Color3D<T> operator*(Color3D<T> const& c, S s) {
    return c * static_cast<T>(s);
}
template <class T, detail::OtherScalar<T> S>
constexpr Color3D<T> operator*(S s, Color3D<T> const& c) {
    return c * static_cast<T>(s);
}
template <class T, detail::OtherScalar<T> S>
constexpr Color3D<T> operator/(Color3D<T> const& c, S s) {
    return c / static_cast<T>(s);
}
template <class T, detail::OtherScalar<T> S>
constexpr Color3D<T> operator/(S s, Color3D<T> const& c) {
    return static_cast<T>(s) / c;
}
/// @}

/// (a * b) + (a * c), each of the three results saturating.
template <class T>
constexpr Color3D<T> PixelShaderAdaptive(Color3D<T> const& a, Color3D<T> const& b, Color3D<T> const& c) {
    return (a * b) + (a * c);
}
/// a + (b * c), both results saturating.
template <class T>
constexpr Color3D<T> PixelShaderSimpleAdaptive(Color3D<T> const& a, Color3D<T> const& b,
                                               Color3D<T> const& c) {
    return a + (b * c);
}
/// (x, y, z, w) as (r, g, b, a), not saturating.
template <class T>
constexpr Color3D<T> FromVector(Vec4D<T> const& v) {
    return Color3D<T>(v.x, v.y, v.z, v.w);
}
/// (r, g, b); alpha is dropped, w is 0.
template <class T>
constexpr Vec4D<T> ToVector(Color3D<T> const& c) {
    return Vec4D<T>(c.r, c.g, c.b);
}
/// @{ Sets the channel as it is.
template <class T>
constexpr void AdjustRChannel(std::type_identity_t<T> value, Color3D<T>& c) {
    c.r = value;
}
template <class T>
constexpr void AdjustGChannel(std::type_identity_t<T> value, Color3D<T>& c) {
    c.g = value;
}
template <class T>
constexpr void AdjustBChannel(std::type_identity_t<T> value, Color3D<T>& c) {
    c.b = value;
}
template <class T>
constexpr void AdjustAChannel(std::type_identity_t<T> value, Color3D<T>& c) {
    c.a = value;
}
/// @}
/// Adds delta to r, g and b, saturating; alpha stays.
template <class T>
constexpr void AdjustBrightness(std::type_identity_t<T> delta, Color3D<T>& c) {
    c.r = detail::Saturate(c.r + delta);
    c.g = detail::Saturate(c.g + delta);
    c.b = detail::Saturate(c.b + delta);
}

template <class T>
constexpr Color3D<T>::Color3D(Color3D const&) = default;

template <class T>
constexpr Color3D<T>::Color3D(unsigned int packed)
    : Color3D(detail::UnpackedByte<T>(packed, 2), detail::UnpackedByte<T>(packed, 1),
              detail::UnpackedByte<T>(packed, 0), detail::UnpackedByte<T>(packed, 3)) {}

template <class T>
constexpr Color3D<T> const& Color3D<T>::operator=(Color3D const& other) {
    r = other.r;
    g = other.g;
    b = other.b;
    a = other.a;
    return *this;
}

template <class T>
constexpr T& Color3D<T>::operator[](WideIndex i) {
    return const_cast<T&>(static_cast<Color3D const&>(*this)[i]);
}

template <class T>
constexpr T const& Color3D<T>::operator[](WideIndex i) const {
    if (!std::is_constant_evaluated()) return reinterpret_cast<T const*>(this)[i];
    switch (i) {
        case 0: return r;
        case 1: return g;
        case 2: return b;
        default: return a;
    }
}

template <class T>
constexpr Color3D<T>::operator unsigned int() const {
    return detail::PackedByte(a) << 24 | detail::PackedByte(r) << 16 | detail::PackedByte(g) << 8 |
           detail::PackedByte(b);
}

template <class T>
constexpr int Color3D<T>::operator==(Color3D const& other) const {
    return this == &other || static_cast<unsigned int>(*this) == static_cast<unsigned int>(other);
}

#define VERTRA_COLOR3D(INSTANTIATE, T)                                                                \
    INSTANTIATE class Color3D<T>;                                                                     \
    INSTANTIATE VERTRA_API Color3D<T> operator+(Color3D<T> const&, Color3D<T> const&);                \
    INSTANTIATE VERTRA_API Color3D<T> operator-(Color3D<T> const&, Color3D<T> const&);                \
    INSTANTIATE VERTRA_API Color3D<T> operator*(Color3D<T> const&, Color3D<T> const&);                \
    INSTANTIATE VERTRA_API Color3D<T> operator*(Color3D<T> const&, T);                                \
    INSTANTIATE VERTRA_API Color3D<T> operator*(T, Color3D<T> const&);                                \
    INSTANTIATE VERTRA_API Color3D<T> operator/(Color3D<T> const&, T);                                \
    INSTANTIATE VERTRA_API Color3D<T> operator/(T, Color3D<T> const&);                                \
    INSTANTIATE VERTRA_API Color3D<T> PixelShaderAdaptive(Color3D<T> const&, Color3D<T> const&,       \
                                                          Color3D<T> const&);                         \
    INSTANTIATE VERTRA_API Color3D<T> PixelShaderSimpleAdaptive(Color3D<T> const&, Color3D<T> const&, \
                                                                Color3D<T> const&);                   \
    INSTANTIATE VERTRA_API Color3D<T> FromVector(Vec4D<T> const&);                                    \
    INSTANTIATE VERTRA_API Vec4D<T> ToVector(Color3D<T> const&);                                      \
    INSTANTIATE VERTRA_API void AdjustRChannel(T, Color3D<T>&);                                       \
    INSTANTIATE VERTRA_API void AdjustGChannel(T, Color3D<T>&);                                       \
    INSTANTIATE VERTRA_API void AdjustBChannel(T, Color3D<T>&);                                       \
    INSTANTIATE VERTRA_API void AdjustAChannel(T, Color3D<T>&);                                       \
    INSTANTIATE VERTRA_API void AdjustBrightness(T, Color3D<T>&);

VERTRA_COLOR3D(extern template, float)
VERTRA_COLOR3D(extern template, double)

}  // namespace vertra
