#include "../support.h"

namespace {

using namespace vertra;
using namespace support;
using std::equal_to, std::not_equal_to, std::less, std::less_equal, std::greater, std::greater_equal;

/// Neither the source of a V nor an operand beside one.
template <class V, class B>
concept Foreign = !std::constructible_from<V, B> && !std::is_assignable_v<V&, B> &&
                  Refuse<V&, B, std::plus<>, std::minus<>, equal_to<>, not_equal_to<>, less<>, less_equal<>,
                         greater<>, greater_equal<>>;

template <class T>
class Vec4DTest : public testing::Test {};
TYPED_TEST_SUITE(Vec4DTest, FloatAndDouble);

TYPED_TEST(Vec4DTest, FollowsTheRulesOfW) {
    using T = TypeParam;
    using V = Vec4D<T>;
    T const p[] = {1, 2, 3, 99};
    V v(5, 6, 7, 8);
    V const a(1, 2, 3, 4), b(2, 4, 8, 16);
    static_assert(sizeof(V) == 4 * sizeof(T) && offsetof(V, y) == sizeof(T) &&
                  offsetof(V, w) == 3 * sizeof(T) && Len(V(0, 0, 0, 2)) == 2 &&
                  (V(1, 0, 0) ^ V(0, 1, 0)) == V(0, 0, 1) && V(1, 2, 3, 4)[3U] == 4);
    static_assert(
        AllAre<V const&, decltype(v = a), decltype(v = p), decltype(v.Set(1, 2, 3)), decltype(v += a),
               decltype(v -= a), decltype(v *= 2), decltype(v /= a), decltype(v.SetLength(1))> &&
        AllAre<T&, decltype(v[0]), decltype(v[0U])> && AllAre<T const&, decltype(a[0]), decltype(a[0U])> &&
        !std::convertible_to<V const&, T*>);
    static_assert(Foreign<V, std::nullptr_t> && Foreign<V, Matrix3D<T>&> &&
                  Foreign<V, Vec4D<std::conditional_t<sizeof(T) == 4, double, float>>&> &&
                  Refuse<V&, int, std::plus<>, std::minus<>> &&
                  Refuse<V&, T*, std::plus<>, std::minus<>, equal_to<>, less<>> &&
                  !std::constructible_from<bool, V&> && !requires { v = 0; });

    auto const after = [](auto change) {
        V changed(5, 6, 7, 8);
        change(changed);
        return V(changed, changed.w);
    };
    ExpectNear(0, {}, V(), V(0, 0, 0, 0), V(2), V(2, 2, 2, 0), V(1, 2, 3), V(1, 2, 3, 0), V(p), V(1, 2, 3, 0),
               V(p, 5), V(1, 2, 3, 5), V(a), V(1, 2, 3, 0), V(a, a.w), V(1, 2, 3, 4),
               after([&](V& c) { c = p; }), V(1, 2, 3, 8), after([&](V& c) { c.Set(1, 2, 3); }),
               V(1, 2, 3, 8), after([&](V& c) { c += b; }), V(7, 10, 15, 24), after([&](V& c) { c -= b; }),
               V(3, 2, -1, -8), after([&](V& c) { c *= 2; }), V(10, 12, 14, 16), after([&](V& c) { c /= b; }),
               V(2.5, 1.5, 0.875, 0.5), after([&](V& c) { c /= V(b); }), V(2.5, 1.5, 0.875, 8),
               after([&](V& c) { c.SetLength(0); }), V(0, 0, 0, 8),
               V(v[0], v[1U], v[std::size_t(2)], static_cast<T*>(v)[3]), v,
               V(a[0], a[1U], a[std::size_t(2)], static_cast<T const*>(a)[3]), a);
    ExpectCopyAssignmentAndEquality<V>();
}

TYPED_TEST(Vec4DTest, ArithmeticAgreesWithGlmAndDropsW) {
    using T = TypeParam;
    using V = Vec4D<T>;
    Random<T> random;
    V a, b, c, d, out;
    for (int i = 0; i < 1000; ++i) {
        random.Fill(a, b, c, d, out);
        T const s = random() + T(4.5), w = out.w;
        auto const ga = Glm(a), gb = Glm(b), gc = Glm(c), gd = Glm(d), cross = glm::cross(ga, gb);
        glm::vec<4, T> const a4(ga, a.w), b4(gb, b.w);
        auto const unit = ga / glm::length(a4), normal = glm::normalize(glm::cross(gb - ga, gc - ga));
        CrossProduct(a, b, out);
        ExpectNear(kRootRounding, Inputs(a, b, c, d, s), a + b, ga + gb, a - b, ga - gb, +a, ga, -a, -ga,
                   a * s, ga * s, s * a, ga * s, a / s, ga / s, s / a, s / ga, a / b, ga / gb, a ^ b, cross,
                   out, V(&cross.x, w), Lo(a, b), glm::min(ga, gb), Hi(a, b), glm::max(ga, gb), Normalize(a),
                   unit, V(V(a, a.w).SetLength(s)), unit * s, Plane(a), glm::normalize(ga), Plane(a, s), unit,
                   Plane(a, b), unit, Plane(a, b, c), normal, Normal(a, b, c), normal, Normal(a, b, c, d),
                   glm::normalize(glm::cross(gc - ga, gd - gb)), a * b, glm::dot(a4, b4), Len2(a),
                   glm::dot(a4, a4), Len(a), glm::length(a4), Distance(a, b), glm::dot(ga, gb) + a.z,
                   GetDistanceBetween2(a, b), glm::dot(ga - gb, ga - gb), GetDistanceBetween(a, b),
                   glm::distance(ga, gb));
        ExpectNear(0, "float's root, one reciprocal", Len(a), T(FastSqrt(static_cast<float>(Len2(a)))),
                   Normalize(a), a * (1 / Len(a)));
    }
    T const nan = kNaN<T>;
    V const plane(0, 2, 0, 9), up(0, 1, 0), on(5, 0, 0, 1), down(0, -1, 0), nowhere(0, nan, 0);
    ExpectNear(0, "zero and unit lengths", Normalize(V()), V(), Normalize(V(0, 0, 0, 5)), V(), Plane(V()),
               V(), Normalize(V(0, -1, 0)), V(0, -1, 0), Normal(V(1, 2, 3), V(2, 4, 6), V(3, 6, 9)), V());
    ExpectNear(0, "lengths out of float's range", Normalize(V(1e25F, 2, 3, 4)), V(1e25F, 2, 3),
               Plane(V(1e25F, 0, 0)), V(-kInfinity<T>, nan, nan), Len(V(1e25F)), T(-0.0), Len(V(1e-30F)),
               T(2.24262704e-20F));
    ExpectNear(0, "a NaN leaves a in Lo and b in Hi", Lo(V(nan, 1, 3), V(1, nan, 2)), V(nan, 1, 2),
               Hi(V(nan, 1, 3), V(1, nan, 2)), V(1, nan, 3));
    ExpectNear(0, "on the plane is above, NaN below", Crosses(plane, up, down), 1, Crosses(plane, down, up),
               1, Crosses(plane, up, on), 0, Crosses(plane, on, down), 1, Crosses(plane, nowhere, down), 0,
               Crosses(plane, on, nowhere), 1);
}

TYPED_TEST(Vec4DTest, ComparesAllFourComponentsAtOnce) {
    using T = TypeParam;
    std::mt19937 random(20240601);
    T const values[] = {0, 0, 0, 1, 1, -1, kNaN<T>};
    Vec4D<T> a, b, s4;
    for (int i = 0; i < 20000; ++i) {
        for (T& x : Scalars(a)) x = values[random() % 7];
        for (T& x : Scalars(b)) x = values[random() % 3 + 2 * random() % 2];
        T const s = s4.x = s4.y = s4.z = s4.w = b.w;
        auto const check = [&](auto compare, auto ab, auto as, auto sa) {
            auto const all = [&](auto const& p, auto const& q) {
                return int(std::ranges::equal(Scalars(p), Scalars(q), compare));
            };
            ExpectNear(0, Inputs(typeid(compare).name(), a, b), ab, all(a, b), as, all(a, s4), sa,
                       all(s4, a));
        };
        check(equal_to<>(), a == b, a == s, s == a);
        check(equal_to<>(), (a != b) ^ 1, (a != s) ^ 1, (s != a) ^ 1);
        check(less<>(), a < b, a < s, s < a);
        check(less_equal<>(), a <= b, a <= s, s <= a);
        check(greater<>(), a > b, a > s, s > a);
        check(greater_equal<>(), a >= b, a >= s, s >= a);
        EXPECT_EQ(!a, a != 0) << a;
    }
}

}  // namespace
