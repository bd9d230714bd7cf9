#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Vec3DComputesThreeComponentsAndDropsEveryW) {
    using T = TypeParam;
    using V = Vec3D<T>;
    T const p[] = {1, 2, 3}, n = kNaN<T>, s = 4;
    V const a(1, 2, 3, 9), b(5, 7, 11), o(0, 3, 4), x(2, 0, 0), y(0, 2, 0), l(1, 8, 5), q(4, 2, 9);
    V v = b;
    Vec4D<T> const v4(p, 4);
    Vec4D<T> to(5, 6, 7, 8);
    to = a;
    ExpectNear(0, "stored", to, Vec4D<T>(p, 8), Vec4D<T>(a), Vec4D<T>(p), V(p), a, V(p, 9), a, V(a, 9), a,
               V(v4), a, V() = v4, a, V() = p, a, V().Set(1, 2, 3), a, V(s), V(4, 4, 4), V(), V(0, 0, 0),
               V(a[0], a[1U], static_cast<T const*>(a)[2]), a, V(v[0], v[1U], static_cast<T*>(v)[2]), v);
    ExpectNear(0, "computed", a + b, V(6, 9, 14), V(a) += b, a + b, a - b, V(-4, -5, -8), V(a) -= b, a - b,
               +a, a, -a, V(-1, -2, -3), a * s, V(4, 8, 12), s * a, a * s, V(a) *= s, a * s, a / 3,
               a * (T(1) / 3), 385 / b, V(77, 55, 35), V(b) /= V(2, 0, -0.5), V(2.5, kInfinity<T>, -22),
               a ^ b, V(1, 4, -3), a * b, T(52), Distance(a, b), T(52), Len2(a), T(14),
               GetDistanceBetween2(a, b), T(105), Lo(V(n, 1, 3), V(1, n, 2)), V(n, 1, 2),
               Hi(V(n, 1, 3), V(1, n, 2)), V(1, n, 3), Lo(l, q), V(1, 2, 5), Lo(q, l), V(1, 2, 5), Hi(l, q),
               V(4, 8, 9), Hi(q, l), V(4, 8, 9));
    ExpectNear(kRootRounding, "roots", Len(a), T(3.74165739), GetDistanceBetween(a, b), T(10.2469508),
               Normalize(o), V(0, T(0.6), T(0.8)), Normalize(o / 8), V(0, T(0.6), T(0.8)),
               Normal(o, o + x, o + y), V(0, 0, 1), Normal(o, o + x, o + x + y, o + y), V(0, 0, 1),
               Normal(a, a, b), V());
    ExpectCopyAssignmentAndEquality<V>();
    static_assert(Normalize(V(4, 0, 0))[0U] == 1);
}
