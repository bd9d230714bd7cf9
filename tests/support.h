#pragma once

#include <vertra/interop/ostream.h>
#include <vertra/vertra.h>

#include <glm/glm.hpp>
#include <glm/gtc/type_ptr.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <span>

/// What the tests share. Every type of the library, and of glm, is a row of scalars: it is printed, filled
/// with random numbers and compared as one.
namespace support {

using namespace vertra;

/// To read or, where the object is not const, to write.
template <template <class> class Shape, std::floating_point T>
std::span<T> Scalars(Shape<T> const& shape) {
    return {const_cast<T*>(reinterpret_cast<T const*>(&shape)), sizeof(shape) / sizeof(T)};
}
template <class A>
auto Scalars(A const& a) {
    if constexpr (requires { glm::value_ptr(a); }) {
        return std::span(glm::value_ptr(a), sizeof(a) / sizeof(*glm::value_ptr(a)));
    } else {
        return std::span(&a, 1);
    }
}

/// The tests of what both scalars have.
template <class T>
class FloatAndDouble : public testing::Test {};
using EitherScalar = testing::Types<float, double>;
TYPED_TEST_SUITE(FloatAndDouble, EitherScalar);

template <class T>
inline constexpr T kNaN = std::numeric_limits<T>::quiet_NaN();
template <class T>
inline constexpr T kInfinity = std::numeric_limits<T>::infinity();
/// What a few operations in T keep, and what the square root keeps in either scalar.
template <class T>
inline constexpr double kRounding = 256 * std::numeric_limits<T>::epsilon();
inline constexpr double kRootRounding = kRounding<float>;

/// x, y, z for glm, and the inputs of a property for its message.
inline constexpr auto Glm = [](auto const& v) { return glm::make_vec3(&v.x); };
inline constexpr auto Inputs = [](auto const&... inputs) { return (testing::Message() << ... << inputs); };

/// Each result and the judgement that follows it, by their scalars: within the tolerance, which is relative
/// where both are above 1, and at 0 the same bits, any NaN standing for any other. Both are of one
/// type, unless glm judges. Its vectors of three ask for a w of 0; its matrices take columns for what we call
/// rows, which makes the same sixteen numbers, and our a * b its b * a.
template <class What = char const*, class A, class B, class... Rest>
void ExpectNear(double tolerance, What const& what, A const& got, B const& judge, Rest const&... rest) {
    static_assert(std::same_as<A, B> || requires { glm::value_ptr(judge); });
    auto const same = [=](double s, double t) {
        if (s == t) return tolerance > 0 || std::signbit(s) == std::signbit(t);
        double const smaller = std::min(std::abs(s), std::abs(t));  // finite, if either is
        return std::abs(s - t) <= tolerance * std::max(1.0, smaller) || (std::isnan(s) && std::isnan(t));
    };
    auto const p = Scalars(got);
    auto const q = Scalars(judge);
    EXPECT_TRUE(std::equal(q.begin(), q.end(), p.begin(), same) && (p.size() == q.size() || p.back() == 0))
        << testing::PrintToString(std::vector(p.begin(), p.end())) << " is not "
        << testing::PrintToString(std::vector(q.begin(), q.end())) << ", " << sizeof...(rest) / 2
        << " results from the last: " << what;
    if constexpr (sizeof...(rest) > 0) ExpectNear(tolerance, what, rest...);
}

/// Numbers from -4 to 4 in multiples of 1 / steps, the same in every run. With a small power of two for
/// steps, products of a few are exact and ties come up.
template <class T>
struct Random {
    int steps = 1000;
    std::mt19937 engine{20240601};
    T operator()() { return T(int(engine() % unsigned(8 * steps + 1)) - 4 * steps) / T(steps); }
    /// Every scalar, each w included.
    void Fill(auto&... shapes) { (std::ranges::generate(Scalars(shapes), std::ref(*this)), ...); }
};

/// A copy has every w at 0, assignment leaves each w of its target, and equality looks at every scalar,
/// exactly, and fails on a NaN. In all shapes each fourth scalar is a w.
template <class Shape>
void ExpectCopyAssignmentAndEquality() {
    Shape source, target, a, b;
    auto const from = Scalars(source), to = Scalars(target);
    for (std::size_t i = 0; i < from.size(); ++i)
        to[i] = -(Scalars(a)[i] = Scalars(b)[i] = from[i] = static_cast<float>(i + 1));
    Shape const copy(source);
    target = source;
    target = static_cast<Shape const&>(target);
    for (std::size_t i = 0; i < from.size(); ++i) {
        auto const same = Scalars(b)[i];
        EXPECT_TRUE(i % 4 == 3 ? Scalars(copy)[i] == 0 && to[i] == -from[i]
                               : Scalars(copy)[i] == to[i] && to[i] == from[i]);
        for (auto const other : {from[i] + 64, kNaN<decltype(+same)>, same}) {
            Scalars(a)[i] = other;
            EXPECT_TRUE((a == b) == (other == same) && (a != b) == (other != same)) << a << b;
        }
    }
}

/// Image i, 0 to 23, of a vector under turns of the axes and mirrors.
template <class T>
Vec4D<T> Image(Vec4D<T> const& v, int i) {
    Vec4D<T> image;
    for (int k = 0; k < 3; ++k) image[(k + i) % 3] = (i / 3 >> k & 1) != 0 ? -v[k] : v[k];
    return image;
}

/// The point of the segment from a to b nearest to p.
inline constexpr auto Closest = [](auto const& a, auto const& b, auto const& p) {
    return a + (b - a) * glm::clamp(glm::dot(p - a, b - a) / glm::dot(b - a, b - a), 0.0, 1.0);
};

}  // namespace support
