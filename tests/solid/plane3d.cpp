#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Plane3DEdgesAndProperties) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using P = Plane3D<T>;
    V const y(0, 2, 0, 9), at(1, 3, 1, 9), one(1, 1, 1, 1);
    V out(0, 0, 0, 7), along(out, 7), p, q, r;
    P const up(V(0, 1, 0), 0), right(V(1, 0, 0), 0), y6(V(0, 2, 0), -6), y3(V(0, 1, 0), -3), far(V(1e25F), 4);
    P skew(V(2, 4, 8), 16), unit(V(3, 0, 0), 10), a, b, c;
    T const in = T(0.0001), above = std::nextafter(in, T(1)), x = std::nextafter(1e-8F, 0.0F), nan = kNaN<T>;
    static_assert(P().Distance(V(0, 5, 0)) == 5 && EIR_BEHIND == 0 && EIR_IN_FRONT == 1 &&
                  EIR_ON_PLANE == 2 && EIR_STRADDLING == 3 && EIR_CUT == 4);
    ExpectCopyAssignmentAndEquality<P>();
    unit.normal.w = 4, skew.normal.w = 2;
    unit.NormalizePlane();
    ExpectNear(0, "as they are", P(), up, P(y, at), y6, P(0, 2, 0, 1, 3, 1), y6, P().SetPlane(y, -6), y6);
    ExpectNear(0, "unit", P(V(0, 3, 0), V(0, 3, 1), V(1, 3, 0)), y3, P(one, one, one), P(V(), T(-0.0)),
               P(right).SetPlane(V(y), at), y3, P(y, -6).NormalizePlane(), y3, P(V(), 2).NormalizePlane(),
               P(V(), 2 * (1 / T(2.24262704e-20F))), P(far).NormalizePlane(), far);
    ExpectNear(kRootRounding, "w counts", unit.normal, V(T(0.6), 0, 0, 4), unit.distance, T(2),
               skew.Distance(one), T(32), skew.GetMemberPoint(), V(-32, -64, -128));
    ExpectNear(0, "one coordinate of three", skew.SolveForX(1, 2), T(-18), skew.SolveForY(1, 2), T(-8.5),
               skew.SolveForZ(1, 2), T(-3.25), P(V(0, 1, 1), 0).SolveForX(1, 2), T(0),
               P(V(1, 0, 1), 0).SolveForY(1, 2), T(0), P(V(1, 1, 0), 0).SolveForZ(1, 2), T(0));
    ExpectNear(0, "the tolerance and NaN", up.ClassifyPoint(V(0, in, 0)), EIR_ON_PLANE,
               up.ClassifyPoint(V(0, -in, 0)), EIR_ON_PLANE, up.ClassifyPoint(V(nan)), EIR_ON_PLANE,
               up.ClassifyPoint(V(0, above, 0)), EIR_IN_FRONT, up.ClassifyPoint(V(0, -above, 0)), EIR_BEHIND);
    ExpectNear(0, "facing", IsFrontFacing(up, V(1, 0, 0)), 1, IsFrontFacing(up, V(nan)), 0,
               IsFrontFacing(skew, V(0, 1, 0, -2)), 1, IsFrontFacing(skew, V(0, 0.5, 0, -0.75)), 0);
    ExpectNear(0, "parallel", up.Intersects(V(1, 0, 1), at, out), 0,
               up.Intersects(Line3D<T>(0, 1, 0, 1, 1, 0), out), 0,
               up.Intersects(right, P(V(1, 1, 0), 1), out), 0, up.Intersects(up, along, out), 0,
               P(V(x, 0, 0), 1).Intersects(up, along, out), 0);
    EXPECT_TRUE(out == V(0, 0, 0, 7) && along == out &&
                P(V(1e-8F, 0, 0), 1).Intersects(up, along, out) == 1 &&
                P(V(2, 0, 0), 1).Intersects(P(V(1, 0, 0), 3), along, out) && out == V(-3, 0, 0, 7));
    EXPECT_TRUE(!up.Intersects(Line3D<T>(1, 1, 0, 1, 0, 0), out) && out == V(1, 0, 0, 7)) << "at the end";
    EXPECT_TRUE(up.Intersects(Line3D<T>(2, 1, 0, 2, -1, 0), out) && out == V(2, 0, 0, 7));
    EXPECT_TRUE(skew.Intersects(V(1, 0, 0, 1), V(0, 0, 0, 2), out) && out == V(-5, 0, 0, 7) &&
                skew.RecalculateDistance(one) == -16 && up.Intersects(right, P(V(0, 0, 1), -2), out) == 1 &&
                out == V(0, 0, 2, 7));

    Random<T> random;
    Matrix3D<T> m;
    for (int i = 0; i < 1000; ++i) {
        random.Fill(a, b, c, p, q, r, out, along, m);
        auto const near = [&](auto const&... all) { ExpectNear(0.01, Inputs(a, b, c, p, q, r, m), all...); };
        auto const off = [](V const& from, auto const&... by) { return V(by.Distance(V(from))..., 0, 0); };
        P const through(p, q, r), ua(Normalize(V(a.normal)), a.distance),
            ub(Normalize(V(b.normal)), b.distance);
        V const ab = a.normal ^ b.normal, uab = ua.normal ^ ub.normal;
        T const w = out.w, v = along.w;
        near(off(p, through), V(), off(q, through), V(), off(r, through), V(), Len(through.normal), T(1));
        if (std::abs(a.normal * V(p)) > 0.5 && a.Intersects(V(p), V(q), out))
            near(off(out, a), V(), (out - q) ^ p, V());
        if (std::abs(ab * V(c.normal)) > 0.5 && a.Intersects(b, c, out))
            near(off(out, a, b), V(), off(out, c), V());
        if (Len(ab) > 1 && ua.Intersects(ub, along, out)) near(off(out, ua, ub), V(), along, V(uab, v));

        P image(a * m), inPlace(a);
        near(out.w, w, image.normal, glm::mat<3, 3, T>(glm::make_mat4(m.m)) * Glm(a.normal),
             off(a.GetMemberPoint() * m, image), V(), Transpose(m) * a, image);
        image.normal.w = (V(a.normal) *= m).w;
        near(inPlace *= m, image);
    }
}
