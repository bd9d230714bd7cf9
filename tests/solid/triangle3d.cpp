#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Triangle3DEdgesAndProperties) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using A = Triangle3D<T>;
    V const o, x(1, 0, 0, 9), y(0, 1, 0, 9), above(0.25, 0.25, 5, 9);
    A const u(o, x, y), flat(0, 0, 0, 1, 1, 1, 2, 2, 2),
        minus(0, 0, 0, -1, T(-0.0), T(-0.0), T(-0.0), 1, T(-0.0));
    A t, triangles[6];

    V out(0, 0, 0, 7), corners[8], d, p;
    auto const pierce = [](A const& a, V h) { return a.Intersects(V(1), V(0, 0, 1), h) && h == V(1, 1, 0); };
    static_assert(pierce(A(0, 0, 0, 4, 0, 0, 0, 4, 0), V()) && A()[2U].z == 1);
    ExpectCopyAssignmentAndEquality<A>();
    ExpectNear(0, "default, no area", Normal(t), V(1, 1, 1), t[0], V(1, 0, 0), t[1U], V(0, 1, 0),
               t[std::size_t(2)], V(0, 0, 1), u[1U], V(1, 0, 0), u[std::size_t(2)], V(0, 1, 0), Normal(flat),
               V(), IsInsideTriangle(flat, V(1, 1, 1)), 0, IsFrontFacing(flat, x), 1);
    ExpectNear(kRootRounding, "plane", Plane3D<T>(A(x * 4, y * 4, V(0, 0, 4))),
               Plane3D<T>(V(T(0.57735027)), T(-2.3094011)));
    ExpectNear(0, {}, TrianglePlaneIntersectsWithLine(u, above, x, out), 0, u.Intersects(above, x, out), 0,
               u.Intersects(Line3D<T>(above, above + x), out), 0);
    EXPECT_TRUE(out == V(0, 0, 0, 7) &&
                TrianglePlaneIntersectsWithLine(u, V(0, 0, 1), V(1, 0, -1e-30F), out));
    EXPECT_TRUE(out == V(1 / T(1e-30F), 0, 0, 7) && !u.Intersects(V(3, 3, 1), V(0, 0, 1), out));
    EXPECT_TRUE(out == V(3, 3, 0, 7) && !u.Intersects(Line3D<T>(0.25, 0.25, 1, 0.25, 0.25, 0), out));
    EXPECT_TRUE(out == V(0.25, 0.25, 0, 7)) << "a hit on the end is written";
    auto const in = [&](V const& q) { return 2 * IsInsideTriangle(u, q) + IsInsideTriangleFast(u, q); };
    for (int i = 0; i < 3; ++i)
        ExpectNear(0, i, in(u[i]), int(i == 0), in((u[i] + u[(i + 1) % 3]) / 2), int(i != 1));
    ExpectNear(0, "-0 is negative, on the line is neither side", IsInsideTriangleFast(minus, y / 2), 0,
               IsInsideTriangleFast(A(o, -x, y), y / 2), 1, IsOnTheSameSide(x, y, o, x * 2), 0);
    ExpectNear(0, "facing", IsFrontFacing(A(o, x * 1e-9F, y * 1e-9F), V(0, 0, std::numeric_limits<T>::min())),
               0, IsFrontFacing(u, V(1, 1, 0, 9)), 1, IsFrontFacing(u, V(0, 0, 1, -9)), 0,
               IsFrontFacing(u, V(kNaN<T>)), 0);
    ExpectNear(0, "a tie", GetClosestPoint(u, above), y / 4, GetClosestPoint(A(y, o, x), above), x / 4,
               GetClosestPoint(A(x, y, o), above), x / 4);
    int const faces[] = {0, 2, 1, 0, 1, 4, 0, 4, 2, 6, 4, 7, 6, 7, 2, 7, 5, 3};
    for (A& triangle : triangles) triangle[0].w = triangle[1].w = triangle[2].w = 7;
    AABBox3D<T>(2, 4, 8, 10, 16, 20).GetEdges(corners).GetFacePlanes(triangles);
    for (int i = 0; i < 18; ++i) EXPECT_EQ(triangles[i / 3][i % 3], V(corners[faces[i]], 7)) << i;

    Random<T> random;
    AABBox3D<T> const cube(-1, -1, -1, 1, 1, 1), reset;
    for (int i = 0; i < 4000; ++i) {
        random.Fill(t, d, p, out);
        T const b = random() / 3, c = random() / 3, ahead = random(), w = out.w,
                least = std::min({b, c, 1 - b - c});
        glm::dvec3 const g[] = {Glm(t[0]), Glm(t[1]), Glm(t[2])}, gp = Glm(p),
                         n = glm::cross(g[1] - g[0], g[2] - g[0]),
                         sides[] = {Closest(g[0], g[1], gp), Closest(g[1], g[2], gp),
                                    Closest(g[2], g[0], gp)};
        auto const nearest = std::ranges::min(sides, {}, [&](auto const& q) { return glm::distance(q, gp); });
        double const slope = glm::dot(n, glm::dvec3(Glm(d)));
        ExpectNear(1e-3, Inputs(t, p), Normal(t), n, GetClosestPoint(t, p), nearest);
        EXPECT_FALSE(t.Intersects(reset)) << t;
        if (glm::length(n) < 2 || std::abs(slope) < 1 || std::abs(least) < 0.02 || std::abs(ahead) < 0.02)
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
    // A corner on a face, a side on an edge, the plane on a corner, and a side on an edge without area; and
    // which way is out.
    A const touches[] = {A(1, 0.5, 0.5, 2, 0, 1, 2, 1, 0), A(2, 0, 0.5, 0, 2, -0.5, 3, 3, 0),
                         A(9, -3, -3, -3, 9, -3, -3, -3, 9), A(2, 0, 0.5, 0, 2, -0.5, 1, 1, 0)};
    V const away[] = {x, x + y, V(1), x + y};
    for (int i = 0; i < 4 * 3 * 24; ++i) {
        auto const at = [&](int k, T far) {
            return Image(touches[i % 4][(i / 4 + k) % 3] + away[i % 4] * far, i / 12);
        };
        auto const meets = [&](T far) { return A(at(0, far), at(1, far), at(2, far)).Intersects(cube); };
        EXPECT_TRUE(meets(0) == 1 && meets(std::ldexp(T(1), -20)) == 0) << i;
    }
}
