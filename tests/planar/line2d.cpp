#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Line2DKeepsItsNormalAndCrossesAsWholeNumbersSay) {
    using T = TypeParam;
    using L = Line2D<T>;
    using V = Vec2D<T>;
    L line(V(0, 0), V(2, 0)), other(V(7, 7), V(8, 9)), dot(V(1, 1), V(1, 1));
    auto [out, turned, p, q, r, s] = std::tuple<V, V, V, V, V, V>();
    auto const expect = [](L const& l, V const& normal, int valid, auto const&... rest) {
        ExpectNear(1e-30, "the normal and its state", l.normal, normal, l.normalValid, valid, rest...);
    };
    line.GetDirection(out), dot.GetDirection(turned);
    expect(L(), V(), 0), expect(line, V(), 0, out, V(1, 0), line.Length(), T(2), turned, V(), dot.Length(),
                                T(2.24262704e-20F));
    V const& normal = line.Normal();
    expect(line, V(0, -1), 1, &normal == &line.normal, true),
        expect(L(line), V(), 0, L(line).start, V(0, 0), L(line).end, V(2, 0));
    expect(other = line, V(0, -1), 1, other.end, V(2, 0)), other.SetPoints(V(1, 1), V(1, 5)),
        expect(other, V(0, -1), 0);
    T const distance = other.SignedDistance(V(3, 9));
    expect(other, V(1, 0), 1, distance, T(2)), other.SetPoints(0, 1, 4, 1), expect(other, V(1, 0), 0);
    int const side = other.ClassifyPoint(V(0, 9), 0);
    expect(other, V(0, -1), 1, side, 1), other.normal = V(3, 4);
    expect(other, V(3, 4), 1, other.SignedDistance(V(1, 2)), T(7), other.Normal(), V(3, 4)),
        other.ComputeNormal(), expect(other, V(0, -1), 1);
    auto const classify = [&](T y, T tolerance) { return int(line.ClassifyPoint(V(1, y), tolerance)); };
    ExpectNear(0, "sides", classify(-1, 0.5), 2, classify(1, 0.5), 1, classify(-1, 1), 0, classify(1, 1), 0,
               classify(kNaN<T>, 0), 0, classify(0, -1), 2);

    Random<T> random{1};
    auto const cross = [](V const& u, V const& v) { return int(u.x * v.y - u.y * v.x); };
    for (int i = 0; i < 20000; ++i) {
        random.Fill(p, q, r, s);
        L const a(p, q), b(r, s);
        int const d = cross(q - p, s - r), onA = cross(r - p, s - r), onB = cross(r - p, q - p);
        auto const within = [d](int n) { return d > 0 ? 0 <= n && n <= d : d <= n && n <= 0; };
        int const crossing = within(onA) ? (within(onB) ? 2 : 4) : (within(onB) ? 3 : 1),
                  expected = d != 0 ? crossing : (onA != 0 ? 5 : 0);
        out = V(9, 9);
        int const found = a.Intersection(b, &out), without = a.Intersection(b), cached = a.normalValid;
        T const length = std::hypot(q.x - p.x, q.y - p.y);
        ExpectNear(kRootRounding, Inputs(p, q, r, s), found, expected, without, expected, cached, 0, out,
                   d != 0 ? p + (q - p) * (T(onA) / T(d)) : V(9, 9), a.SignedDistance(r),
                   length == 0 ? 0 : T(onB) / length);
    }
}
