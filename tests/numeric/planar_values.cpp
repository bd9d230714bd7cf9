#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, PlanarValuesThreeTypesDifferInOperatorsEqualityAndNormalize) {
    using T = TypeParam;
    using V = Vec2D<T>;
    using P = Position2D<T>;
    using D = Dimension2D<T>;
    using V4 = Vec4D<T>;
    T const two[] = {5, 6}, n = kNaN<T>, infinite = kInfinity<T>, low = 1.192087F;
    T const high = low + 100 * std::numeric_limits<float>::epsilon();
    T s = 4;
    auto [v, p, d] = std::tuple(V(5, 6), P(5, 6), D(5, 6));
    auto const arithmetic = [&]<class A>(A const& a, A const& b, A const& zero) {
        ExpectNear(0, typeid(A).name(), A(two), a, A() = a, a, A(), zero, A(s), A(4, 4), a + b, A(7, 3),
                   A(a) += b, a + b, a - b, A(3, 9), A(a) -= b, a - b, a * s, A(20, 24), 4 * a, a * s,
                   A(a) *= s, a * s, a / 3, a * (T(1) / 3), A(a) /= 3, a / 3, a.x, T(5));
    };
    arithmetic(v, V(2, -3), V(0, 0)), arithmetic(p, P(2, -3), P(0, 0));
    ExpectNear(0, "not shared", v * V(2, -3), T(-8), -v, V(-5, -6), Len2(v), T(61), p * P(2, -3), P(10, -18),
               P(p) *= P(2, -3), P(10, -18), d.width, T(5), D(), D(0, 0), D(s), D(4, 4), D() = d, d,
               d.GetSize(), T(30), V(v[0U], v[1U]), v, V(std::as_const(v)[0U], std::as_const(v)[1U]), v,
               V(0, 1).IsZero() + V(1, 0).IsZero(), 0, V().IsZero(), 1);
    ExpectNear(kRootRounding, "roots", Len(v), T(7.81024968), Normalize(v), V(T(0.640184400), T(0.768221280)),
               Normalize(V(0.375, 0.5)), V(T(0.6), T(0.8)));
    static_assert(V(1, 2) * V(3, 4) == 11 && P(1, 2) * P(3, 4) == P(3, 8) && D(2, 3).GetSize() == 6);

    auto const same = [](auto const& a, auto const& b) { return (a != b) + (a == b) == 1 ? a == b : 9; };
    auto const equal = [&](T a, T b, int exact, int tolerant) {
        ExpectNear(0, Inputs(a, ' ', b), same(V(a, 2), V(b, 2)), exact, same(V(2, a), V(2, b)), exact,
                   same(P(a, 2), P(b, 2)), tolerant, same(P(2, a), P(2, b)), tolerant, same(D(a, 2), D(b, 2)),
                   tolerant, same(D(2, a), D(2, b)), tolerant);
    };
    equal(3, 3, 1, 1), equal(0, T(-0.0), 1, 1), equal(1000, T(1000.005), 0, 1), equal(0, T(1e-30), 0, 0),
        equal(1, n, 0, 0), equal(n, n, 0, 0);
    equal(low, high, 0, 0), equal(high, low, 0, 1);  // low * 1e-5 < high - low < high * 1e-5
    auto const unit = [](T x, V4 const& four, V const& plane) {
        ExpectNear(0, x, Normalize(V4(x, 2, 0)), four, Normalize(Vec3D<T>(x, 2, 0)), Vec3D<T>(),
                   Normalize(V(x, 2)), plane);
    };
    unit(1e25F, V4(1e25F, 2, 0), V()), unit(infinite, V4(infinite, 2, 0), V(n, 0)), unit(n, V4(n), V(n, 0));
    p.x = n;
    ExpectNear(0, "zero, and a NaN itself", Normalize(Vec3D<T>()), Vec3D<T>(), Normalize(V()), V(),
               same(p, p), 1);
}
