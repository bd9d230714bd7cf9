#pragma once

#include <bit>
#include <cfloat>
#include <cstdint>
#include <type_traits>

/// @file
/// The numeric kernel: the one square root, and the only places that look at the bits of a number.
/// Internal to the library: nothing here is exported.
namespace vertra {

static_assert(FLT_EVAL_METHOD == 0,
              "vertra needs float and double computed as such: not on the x87 (-msse2 -mfpmath=sse)");

/// Approximately 1 / sqrt(x): a first estimate from the bit pattern, then three Newton steps
/// (after C. Lomont, "Fast Inverse Square Root", 2003, whose constant this is).
/// The last step is held in double and rounded once, which makes the root of 1 exactly 1.
constexpr float FastInvSqrt(float x) {
    float const h = 0.5F * x;
    std::int32_t const half = std::bit_cast<std::int32_t>(x) >> 1;
    auto y = std::bit_cast<float>(0x5f375a86U - static_cast<std::uint32_t>(half));
    y = y * (1.5F - h * y * y);
    y = y * (1.5F - h * y * y);
    return static_cast<float>(y * (1.5 - static_cast<double>(h) * y * y));
}

/// The library's only square root, for both scalars: relative error below 2e-7 over the normal range of
/// float. Nothing is tested: the root of 0 is about 2.2426270e-20, that of infinity is -0, that of a negative
/// number has no meaning. A double argument is rounded to float by the caller, to infinity where it is too
/// large.
constexpr float FastSqrt(float x) { return 1.0F / FastInvSqrt(x); }

namespace detail {

/// The tolerance of the plane, box and sphere tests: one number for both scalars, compared in double.
inline constexpr double kContactTolerance = 0.0001;

/// The unsigned integer as wide as T.
template <class T>
using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;

/// 1 when the sign bit is set, as it is on -0, and for a NaN, whose sign bit differs by processor.
template <class T>
constexpr int SignBit(T x) {
    return static_cast<int>(std::bit_cast<Bits<T>>(x) >> (8 * sizeof(T) - 1)) | (x != x);
}

/// value, but at most bound; where one is a NaN, value stays. Without a branch, as Raise.
template <class T>
constexpr void Lower(T& value, T bound) {
    value = value > bound ? bound : value;
}

/// value, but at least bound; where one is a NaN, value stays.
template <class T>
constexpr void Raise(T& value, T bound) {
    value = bound > value ? bound : value;
}

/// -x, as the matrix and the quaternion take it: in float 0 - x, which leaves +0 positive; in double the sign
/// flips.
template <class T>
constexpr T Negate(T x) {
    if constexpr (std::is_same_v<T, float>) return 0.0F - x;
    return -x;
}

}  // namespace detail

/// x with its sign bit cleared: -0 becomes +0, a NaN stays one.
template <class T>
constexpr T Abs(T x) {
    return std::bit_cast<T>(std::bit_cast<detail::Bits<T>>(x) & (~detail::Bits<T>(0) >> 1));
}

/// 1 when |a - b| <= |a| * tolerance: relative to the first operand alone, so not symmetric; 0 for a NaN.
template <class T>
constexpr int IsEqual(T a, T b, T tolerance) {
    return Abs(a - b) <= Abs(a) * tolerance;
}

}  // namespace vertra
