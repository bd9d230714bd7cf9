#include "../support.h"

#include <vertra/numeric/vec3d.h>

namespace {

using namespace vertra;
using namespace support;

template <class T>
class Vec3DTest : public testing::Test {};
TYPED_TEST_SUITE(Vec3DTest, FloatAndDouble);

TYPED_TEST(Vec3DTest, ComputesAndComparesThreeComponentsAndDropsEveryW) {
    using T = TypeParam;
    using V = Vec3D<T>;
    T const p[] = {1, 2, 3}, n = kNaN<T>, s = 4, values[] = {0, 1, n};
    V const a(1, 2, 3, 9), b(5, 7, 11), o(0, 3, 4), x(2, 0, 0), y(0, 2, 0);
    V v = b;
    Vec4D<T> const v4(p, 4);
    Vec4D<T> to(5, 6, 7, 8);
    to = a;
    ExpectNear(0, "stored", to, Vec4D<T>(p, 8), Vec4D<T>(a), Vec4D<T>(p), V(p), a, V(p, 9), a, V(a, 9), a,
               V(v4), a, V() = v4, a, V() = p, a, V().Set(1, 2, 3), a, V(s), V(4, 4, 4), V(), V(0, 0, 0),
               V(a[0], a[1U], static_cast<T const*>(a)[2]), a, V(v[0], v[1U], static_cast<T*>(v)[2]), v);
    ExpectNear(0, "computed", a + b, V(6, 9, 14), V(a) += b, a + b, a - b, V(-4, -5, -8), V(a) -= b, a - b,
               +a, a, -a, V(-1, -2, -3), a * s, V(4, 8, 12), s * a, a * s, V(a) *= s, a * s, a / 3,
               a * (T(1) / 3), 12 / a, V(12, 6, 4), V(b) /= V(2, 0, -0.5), V(2.5, kInfinity<T>, -22), a ^ b,
               V(1, 4, -3), a * b, T(52), Distance(a, b), T(52), Len2(a), T(14), GetDistanceBetween2(a, b),
               T(105), Lo(V(n, 1, 3), V(1, n, 2)), V(n, 1, 2), Hi(V(n, 1, 3), V(1, n, 2)), V(1, n, 3));
    ExpectNear(kRootRounding, "roots", Len(a), T(3.74165739), GetDistanceBetween(a, b), T(10.2469508),
               Normalize(o), V(0, T(0.6), T(0.8)), Normal(o, o + x, o + y), V(0, 0, 1),
               Normal(o, o + x, o + x + y, o + y), V(0, 0, 1), Normal(a, a, b), V());
    ExpectCopyAssignmentAndEquality<V>();
    static_assert(sizeof(V) == 3 * sizeof(T) && offsetof(V, z) == 2 * sizeof(T) &&
                  Normalize(V(4, 0, 0))[0U] == 1 && !requires { a / a; });
    static_assert(AllAre<V const&, decltype(v = a), decltype(v = v4), decltype(v = p), decltype(v += a),
                         decltype(v -= a), decltype(v *= s), decltype(v /= a), decltype(v.Set(s, s, s))>);

    for (int code = 0; code < 2187; ++code) {
        auto next = [&, rest = code]() mutable { return values[std::exchange(rest, rest / 3) % 3]; };
        V const c(next(), next(), next()), d(next(), next(), next());
        T const t = next();
        auto const check = [&](auto... is) {
            (ExpectNear(0, Inputs(typeid(is).name(), c, d, t), is(c, d),
                        int(is(c.x, d.x) && is(c.y, d.y) && is(c.z, d.z)), is(c, t),
                        int(is(c.x, t) && is(c.y, t) && is(c.z, t)), is(t, c),
                        int(is(t, c.x) && is(t, c.y) && is(t, c.z))),
             ...);
        };
        check(std::equal_to<>(), std::less<>(), std::less_equal<>(), std::greater<>(),
              std::greater_equal<>());
        ExpectNear(0, Inputs(c, d, t), c != d, 1 - (c == d), c != t, 1 - (c == t), t != c, 1 - (t == c), !c,
                   c == 0, Crosses(b - x, c, d), ((b - x) * c >= 0) ^ ((b - x) * d >= 0));
    }
}

}  // namespace
