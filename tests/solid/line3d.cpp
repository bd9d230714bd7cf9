#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Line3DCarriesWAndAgreesWithGlm) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using L = Line3D<T>;
    Random<T> random;
    V p;
    L line, a, b, set;
    V const c(1, 2, 3, 4), d(10, 20, 30, 40);
    static_assert(Len2(L()) == 3 && V(L()) == V(1, 1, 1) && Len(L(0, 0, 1, 0, 4, 1)) == 4);
    ExpectCopyAssignmentAndEquality<L>();
    a = L(c, d);
    a.start.w = b.end.w = set.end.w = 5;
    b.SetPoints(7, 2, 5, 4, 5, 6), set.SetPoints(d, c);
    ExpectNear(0, {}, L(c, d), L(1, 2, 3, 10, 20, 30), a + b, L(8, 4, 8, 14, 25, 36), a - b,
               L(-6, 0, -2, 6, 15, 24), set.start, V(d), set.end, V(c, 5), V(std::as_const(a)), V(9, 18, 27),
               std::as_const(a).Midpoint(), V(5.5, 11, 16.5));
    a += b, set -= b;
    ExpectNear(0, {}, a.start, V(8, 4, 8, 5), a.end, V(14, 25, 36, 5), set.start, V(3, 18, 25), set.end,
               V(-3, -3, -3));

    L const two(0, 0, 0, 2, 0, 0), point(c, c);
    T const tiny = T(0.125) / (1 << 27), less = std::nextafter(T(4), T(0)), nan = kNaN<T>;
    ExpectNear(0, "strictly between", IsPointBetweenStartAndEnd(V(1, 1, 0, 9), two), 1,
               IsPointBetweenStartAndEnd(V(), two), 0, IsPointBetweenStartAndEnd(V(2, 0, 0), two), 0,
               IsPointBetweenStartAndEnd(c, point), 0);
    ExpectNear(0, "a detour, below 0, in float", IsPointInsideLine(V(1, 0, 0, 9), two, tiny), 1,
               IsPointInsideLine(V(4, 0, 0), two, 4), 0, IsPointInsideLine(V(4, 0, 0), two, 5), 1,
               IsPointInsideLine(V(7, 0, 0), L(0, 0, 0, 8, 0, 0), tiny), 0,
               IsPointInsideLine(V(tiny, 0, 0), L(V(), V()), 2 * tiny), 0);
    ExpectNear(0, "a tangent, a point, NaN", IsIntersectingWithSphere(two, V(0, 4, 0, 9), 4, nan), 1,
               IsIntersectingWithSphere(two, V(0, 4, 0), less, 0), 0,
               IsIntersectingWithSphere(point, V(1, 6, 3), 4, 0), 1,
               IsIntersectingWithSphere(point, V(1, 6, 3), less, 0), 0,
               IsIntersectingWithSphere(two, V(nan, 0, 0), 1, 0), 1);
    ExpectNear(0, "clamped to the ends", GetClosestPoint(two, V(5, 6, 7, 8)), two.end,
               GetClosestPoint(two, V(-5, 6, 7, 8)), V(), GetClosestPoint(point, d), V(c));
    for (int i = 0; i < 2000; ++i) {
        random.Fill(line, p);
        glm::dvec3 const from = Glm(line.start), to = Glm(line.end), at = Glm(p);
        T const radius = random() + 5,
                distance = T(glm::length(glm::cross(at - from, to - from)) / glm::length(to - from));
        int const meets = IsIntersectingWithSphere(line, p, radius, 0);
        ExpectNear(4 * kRootRounding, Inputs(line, p, radius), GetClosestPoint(line, p),
                   Closest(from, to, at), Len(line), T(glm::distance(from, to)), meets,
                   std::abs(distance - radius) < 1e-3 ? meets : int(distance < radius));
    }
}
