#include "../support.h"

namespace {

using namespace vertra;
using namespace support;

template <class T>
class Line3DTest : public testing::Test {};
TYPED_TEST_SUITE(Line3DTest, FloatAndDouble);

TYPED_TEST(Line3DTest, CarriesWAndDropsItFromResults) {
    using V = Vec4D<TypeParam>;
    using L = Line3D<TypeParam>;
    V const p(1, 2, 3, 4), q(10, 20, 30, 40);
    L a(p, q), b(p, q), set;
    static_assert(sizeof(L) == 8 * sizeof(p.x) && offsetof(L, end) == sizeof(p) && Len2(L()) == 3 &&
                  V(L()) == V(1, 1, 1) && Len(L(0, 0, 1, 0, 4, 1)) == 4);
    static_assert(
        AllAre<L const&, decltype(a = b), decltype(a += b), decltype(a -= b), decltype(a.SetPoints(p, q))> &&
        AllAre<int (L::*)(L const&), decltype(&L::operator==), decltype(&L::operator!=)>);
    ExpectCopyAssignmentAndEquality<L>();
    a.start.w = b.end.w = set.end.w = 5;
    set.SetPoints(q, p);
    ExpectNear(0, {}, a + b, L(2, 4, 6, 20, 40, 60), a - b, L(V(), V()), set.start, V(10, 20, 30), set.end,
               V(1, 2, 3, 5), V(std::as_const(a)), V(9, 18, 27), std::as_const(a).Midpoint(),
               V(5.5, 11, 16.5));
    b.SetPoints(1, 2, 3, 4, 5, 6);
    a += b, set -= b;
    ExpectNear(0, {}, a.start, V(2, 4, 6, 5), a.end, V(14, 25, 36, 5), set.start, V(9, 18, 27), set.end,
               V(-3, -3, -3));
}

TYPED_TEST(Line3DTest, PointsAndSpheresBesideIt) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using L = Line3D<T>;
    L line(0, 0, 0, 2, 0, 0);
    L const point(1, 2, 3, 1, 2, 3);
    T const tiny = T(0.125) / (1 << 27), less = std::nextafter(T(4), T(0)), nan = kNaN<T>;
    V p(1, 1, 0, 9);
    ExpectNear(0, "between", IsPointBetweenStartAndEnd(p, line), 1, IsPointBetweenStartAndEnd(V(), line), 0,
               IsPointBetweenStartAndEnd(V(2, 0, 0), line), 0, IsPointBetweenStartAndEnd(V(1, 2, 3), point),
               0);
    ExpectNear(0, "a detour, below 0, narrowed to float", IsPointInsideLine(V(1, 0, 0, 9), line, tiny), 1,
               IsPointInsideLine(V(1, 0, 0), line, 0), 0, IsPointInsideLine(V(4, 0, 0), line, 4), 0,
               IsPointInsideLine(V(7, 0, 0), L(0, 0, 0, 8, 0, 0), tiny), 0,
               IsPointInsideLine(V(tiny, 0, 0), L(V(), V()), 2 * tiny), 0);
    ExpectNear(0, "a tangent, a point, NaN", IsIntersectingWithSphere(line, V(0, 4, 0, 9), 4, nan), 1,
               IsIntersectingWithSphere(line, V(0, 4, 0), less, 0), 0,
               IsIntersectingWithSphere(point, V(1, 6, 3), 4, 0), 1,
               IsIntersectingWithSphere(point, V(1, 6, 3), less, 0), 0,
               IsIntersectingWithSphere(line, V(nan, 0, 0), 1, 0), 1);
    ExpectNear(0, "clamped to the ends", GetClosestPoint(line, V(5, 6, 7, 8)), V(2, 0, 0),
               GetClosestPoint(line, V(-5, 6, 7, 8)), V(), GetClosestPoint(point, V(5, 6, 7)), V(1, 2, 3));
    Random<T> random;
    for (int i = 0; i < 2000; ++i) {
        random.Fill(line, p);
        glm::dvec3 const a = Glm(line.start), b = Glm(line.end), c = Glm(p);
        T const radius = random() + 5,
                distance = T(glm::length(glm::cross(c - a, b - a)) / glm::length(b - a));
        int const meets = IsIntersectingWithSphere(line, p, radius, 0);
        ExpectNear(4 * kRootRounding, Inputs(line, p, radius), GetClosestPoint(line, p), Closest(a, b, c),
                   Len(line), T(glm::distance(a, b)), meets,
                   std::abs(distance - radius) < 1e-3 ? meets : int(distance < radius));
    }
}

}  // namespace
