#include "../support.h"

#include <vertra/solid/triangle3d.h>

namespace {

using namespace vertra;
using namespace support;

template <class T>
class Triangle3DTest : public testing::Test {};
TYPED_TEST_SUITE(Triangle3DTest, FloatAndDouble);

TYPED_TEST(Triangle3DTest, EdgesOfEachOperation) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using A = Triangle3D<T>;
    V const o, x(1, 0, 0, 9), y(0, 1, 0, 9), above(0.25, 0.25, 5, 9);
    A a, triangles[6];
    A const t(o, x, y), flat(0, 0, 0, 1, 1, 1, 2, 2, 2),
        minus(0, 0, 0, -1, T(-0.0), T(-0.0), T(-0.0), 1, T(-0.0));
    V out(0, 0, 0, 7), corners[8];
    static_assert(sizeof(A) == 12 * sizeof(T) && [] {
        V hit(0, 0, 0, 7);
        return A(0, 0, 0, 4, 0, 0, 0, 4, 0).Intersects(Line3D<T>(1, 1, 1, 1, 1, -1), hit) &&
               hit == V(1, 1, 0, 7);
    }());
    static_assert(AllAre<A const&, decltype(a = t), decltype(a.Set(o, x, y))> &&
                  AllAre<V&, decltype(a[0]), decltype(a[0U])> &&
                  AllAre<V const&, decltype(t[0]), decltype(t[0U])>);
    ExpectCopyAssignmentAndEquality<A>();
    ExpectNear(0, "default, no area", Normal(a), V(1, 1, 1), a[0], V(1, 0, 0), a[1U], V(0, 1, 0),
               Normal(flat), V(), IsInsideTriangle(flat, V(1, 1, 1)), 0, IsFrontFacing(flat, x), 1);
    ExpectNear(kRootRounding, "plane", Plane3D<T>(A(x * 4, y * 4, V(0, 0, 4))),
               Plane3D<T>(V(T(0.57735027)), T(-2.3094011)));
    EXPECT_TRUE(!t.Intersects(above, x, out) && !t.Intersects(Line3D<T>(above, above + x), out) &&
                out == V(0, 0, 0, 7))
        << "parallel";
    EXPECT_TRUE(TrianglePlaneIntersectsWithLine(t, V(0, 0, 1), V(1, 0, -1e-30F), out) &&
                out == V(1 / T(1e-30F), 0, 0, 7))
        << "hardly parallel";
    EXPECT_TRUE(!t.Intersects(V(3, 3, 1), V(0, 0, 1), out) && out == V(3, 3, 0, 7)) << "outside";
    EXPECT_TRUE(!t.Intersects(Line3D<T>(0.25, 0.25, 1, 0.25, 0.25, 0), out) && out == V(0.25, 0.25, 0, 7))
        << "a hit on the end";
    for (int i = 0; i < 3; ++i) {
        V const side = (t[i] + t[(i + 1) % 3]) / 2;
        ExpectNear(0, i, IsInsideTriangle(t, t[i]), 0, IsInsideTriangle(t, side), 0,
                   IsInsideTriangleFast(t, t[i]), int(i == 0), IsInsideTriangleFast(t, side), int(i != 1));
    }
    ExpectNear(0, "-0 is negative, on the line is neither side", IsInsideTriangleFast(minus, y / 2), 0,
               IsInsideTriangleFast(A(o, -x, y), y / 2), 1, IsOnTheSameSide(x, y, o, x * 2), 0);
    ExpectNear(0, "facing", IsFrontFacing(t, V(1, 1, 0, 9)), 1, IsFrontFacing(t, V(0, 0, 1, -9)), 0,
               IsFrontFacing(t, V(0, 0, kNaN<T>)), 0);
    ExpectNear(0, "as far from two sides", GetClosestPoint(t, above), y / 4,
               GetClosestPoint(A(y, o, x), above), x / 4, GetClosestPoint(A(x, y, o), above), x / 4);
    int const faces[] = {0, 2, 1, 0, 1, 4, 0, 4, 2, 6, 4, 7, 6, 7, 2, 7, 5, 3};
    for (A& triangle : triangles) triangle[0].w = triangle[1].w = triangle[2].w = 7;
    AABBox3D<T>(2, 4, 8, 10, 16, 20).GetEdges(corners).GetFacePlanes(triangles);
    for (int i = 0; i < 18; ++i) EXPECT_EQ(triangles[i / 3][i % 3], V(corners[faces[i]], 7)) << i;
}

TYPED_TEST(Triangle3DTest, PropertiesOfRandomTriangles) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using A = Triangle3D<T>;
    Random<T> random;
    A t;
    AABBox3D<T> box;
    AABBox3D<T> const cube(-1, -1, -1, 1, 1, 1), reset;
    V d, p, out;
    for (int i = 0; i < 4000; ++i) {
        random.Fill(t, box, d, p, out);
        T const b = random() / 3, c = random() / 3, ahead = random(), w = out.w,
                least = std::min({b, c, 1 - b - c});
        glm::dvec3 const g[] = {Glm(t[0]), Glm(t[1]), Glm(t[2])}, gp = Glm(p),
                         normal = glm::cross(g[1] - g[0], g[2] - g[0]);
        glm::dvec3 const sides[] = {Closest(g[0], g[1], gp), Closest(g[1], g[2], gp),
                                    Closest(g[2], g[0], gp)};
        ExpectNear(1e-4, Inputs(t, p), Normal(t), normal, GetClosestPoint(t, p),
                   std::ranges::min(sides, {}, [&](auto const& q) { return glm::distance(q, gp); }));
        EXPECT_TRUE(AgreesWithClipping(t.Intersects(box.Repair()), box, t[0], t[1], t[2]) &&
                    !t.Intersects(reset))
            << t << box;

        double const slope = glm::dot(normal, glm::dvec3(Glm(d)));
        if (glm::length(normal) < 2 ||
            std::min({std::abs(least), std::abs(ahead), T(std::abs(slope) / 50)}) < 0.02)
            continue;
        V const hit = t[0] + (t[1] - t[0]) * b + (t[2] - t[0]) * c, start = hit - d * T(0.75);
        int const inside = least > 0;
        auto const inputs = Inputs(t, d, hit, ' ', ahead);
        ExpectNear(0, inputs, IsInsideTriangle(t, hit), inside,
                   IsInsideTriangleFast(t, hit + Normal(t) * ahead), inside, IsFrontFacing(t, d),
                   int(slope <= 0), t.Intersects(start, d, out), inside);
        ExpectNear(1e-3, inputs, out, V(hit, w), t.Intersects(Line3D<T>(start, hit + d * ahead), out),
                   int(inside && ahead > 0));
    }
    // Touches: a corner on a face, a side on an edge, the plane on a corner, a side on an edge without area;
    // and where is out.
    A const touches[] = {A(1, 0.5, 0.5, 2, 0, 1, 2, 1, 0), A(2, 0, 0.5, 0, 2, -0.5, 3, 3, 0),
                         A(9, -3, -3, -3, 9, -3, -3, -3, 9), A(2, 0, 0.5, 0, 2, -0.5, 1, 1, 0)};
    V const away[] = {V(1, 0, 0), V(1, 1, 0), V(1, 1, 1), V(1, 1, 0)};
    for (int i = 0; i < 4 * 3 * 24; ++i) {
        auto const vertex = [&](int k, T shift) {
            return Image(touches[i % 4][(i / 4 + k) % 3] + away[i % 4] * shift, i / 12);
        };
        auto const meets = [&](T shift) {
            return A(vertex(0, shift), vertex(1, shift), vertex(2, shift)).Intersects(cube);
        };
        EXPECT_TRUE(meets(0) == 1 && meets(std::ldexp(T(1), -20)) == 0) << i;
    }
}

}  // namespace
