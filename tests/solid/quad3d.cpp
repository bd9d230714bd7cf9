#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Quad3DIsTwoTrianglesSplitJoinedAndHit) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using Q = Quad3D<T>;
    using F = Triangle3D<T>;
    V const a(1, 2, 3), b(5, 6, 7), c(9, 10, 11), d(13, 14, 15), e(17, 18, 19), nines(9, 9, 9),
        right(1, 0, 0), corner(1, 1, 0), up(0, 0, 1);
    Q const with(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16), refused(nines, nines, nines, nines),
        folded(V(), right, corner, V(0, 1, 1)), square(V(), right, corner, V(0, 1, 0));
    F const abc(a, b, c);
    F first, second, near(c, d, a), beside(e, a, b), marked(d, b, a);
    first[1].w = second[2].w = 7, near[0].x = std::nextafter(T(9), T(0)),
    beside[1].w = beside[2].w = marked[1].w = marked[2].w = 3;
    GetTrianglesFromQuad(with, first, second);
    auto const join = [&](F const& f, F const& g, Q const& expected) {
        Q q(refused);
        q.vertex[2].w = 7;
        ExpectNear(0, Inputs(f, g), ConstructFromTriangles(q, f, g), int(&expected != &refused));
        ExpectNear(0, Inputs(f, g), Q(q), Q(expected), q.vertex[2].w, T(7));
    };
    join(abc, abc, refused), join(abc, F(a, d, e), refused), join(abc, F(d, e, V()), refused),
        join(abc, near, refused), join(abc, beside, refused);
    join(abc, F(b, c, a), Q(a, c, b, c)), join(F(a, b, a), F(b, d, a), Q(a, V(), b, d)),
        join(F(a, a, b), F(a, d, b), Q(a, b, a, b)), join(beside, marked, Q(a, b, b, a));
    int const orders[6][3] = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
    for (auto const& [i, j, k] : orders) {
        V const one[] = {a, b, c}, two[] = {c, d, a};
        for (auto const& [l, m, n] : orders)
            join(F(one[i], one[j], one[k]), F(two[l], two[m], two[n]),
                 i == 0 || (i == 1 && j == 0) ? Q(a, b, c, d) : Q(c, b, a, d));
    }
    auto const last = [&](V const& direction, V hit) {
        return folded.Intersects(V(5, 4, 3), direction, hit) == 0 ? hit : V();
    };
    ExpectNear(0, "corners, last plane hit", Q(), Q(V(), V(), V(), V()), Q(with), Q(a, b, c, d), F(first),
               abc, F(second), F(c, d, a), V(first[1].w, second[2].w, with.vertex[3].w), V(7, 7, 16),
               last(up, nines), V(5, 4, -1), last(V(0, 1, 1), nines), V(5, 1, 0), last(corner, nines), nines);
    ExpectNear(0, "fronts, planes, diagonal", IsFrontFacing(folded, -up), 1,
               IsFrontFacing(folded, V(0, -1, -0.5)), 0, IsFrontFacing(folded, V(-1, 0, 0.5)), 0,
               square.IsCoPlanar(), 1, folded.IsCoPlanar(), 0, Q(V(), right, corner, right * 2).IsCoPlanar(),
               0, IsInsideQuadFast(square, corner * T(0.5)), 1);
    ExpectCopyAssignmentAndEquality<Q>();
    static_assert(Q().IsCoPlanar() == 1);

    Random<T> random{1};
    auto [o, u, v] = std::tuple<V, V, V>();
    for (int i = 0; i < 10000; ++i) {
        random.Fill(o, u, v);
        V const n = u ^ v, across = n + u;
        Q const flat(o, o + u * 3, o + (u + v) * 3, o + v * 3);
        int const s = i % 6 - 1, t = i / 6 % 6 - 1, inside = 0 < s && s < 3 && 0 < t && t < 3 && s != t;
        V const p = o + u * T(s) + v * T(t);
        V x(9, 9, 9, 9), y(x, 9), z(x, 9);
        ExpectNear(0, Inputs(o, u, v, s, t), IsInsideQuad(flat, p), int(inside && n != 0));
        if (n == 0 || s % 3 == 0 || t % 3 == 0 || s == t)
            continue;  // what takes a division hits no edge exactly
        ExpectNear(0, Inputs(o, u, v, s, t), IsInsideQuadFast(flat, p), inside,
                   flat.Intersects(p + across * 3, across, x), inside,
                   flat.Intersects(Line3D<T>(p + across, p - across * 2), y), inside,
                   flat.Intersects(Line3D<T>(p + across, p + across * 2), z), 0);
        ExpectNear(1e-4, Inputs(o, u, v, s, t), x, V(p, 9), y, V(p, 9), z, V(p, 9));
    }
}
