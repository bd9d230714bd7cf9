#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Sphere3DContactIsStrictAndGrowthKeepsTheCenter) {
    using T = TypeParam;
    using S = Sphere3D<T>;
    using B = BSphere3D<T>;
    using V = Vec4D<T>;
    V const zero, right(1, 0, 0, 9), nines(9, 9, 9);
    auto [a, b, box, plane, o, p, n, velocity] = std::tuple<S, S, AABBox3D<T>, Plane3D<T>, V, V, V, V>();
    B ball(V(1, 2, 3, 4), 5), kept;
    // Against the unit sphere, and a line along x, through the origin: a sphere at x = 3 and this height.
    auto const sweep = [&](T y, V const& v, T radius = 1) {
        return Collides(S(V(3, y, 0), radius), v, S(zero, 1), zero);
    };
    auto const line = [&](T y, V hit) {
        return S(V(3, y, 0), 2).Intersects(zero, right, hit) == 1 ? hit : nines;
    };
    ExpectNear(1e-30, "values", a, S(zero, 0), kept, B(zero, 0), S(ball), S(V(1, 2, 3), 5), B(S(ball)), ball,
               S(zero, 1).SurfaceArea(), T(12.566370964050293), S(zero, 3).SurfaceArea(),
               T(12.566370964050293 * 3 * 3), S(zero, 1).Volume(), T(4.188790310878122), S(zero, 3).Volume(),
               T(4.188790310878122 * 3 * 3 * 3));
    ExpectNear(0, "apart, towards, grazing, missing, touching, overlapping", sweep(0, right), T(-5),
               sweep(0, -right), T(1), sweep(2, -right), T(3), sweep(T(2.00001), -right), T(3),
               sweep(T(2.0001), -right), T(-1), sweep(0, right, 2), T(-6), sweep(0, right, T(2.5)), T(0),
               sweep(kNaN<T>, -right), kNaN<T>);
    ExpectNear(0, "hit, graze, miss", line(0, zero), V(1, 0, 0), line(2, zero), V(3, 0, 0),
               line(T(2.00001), zero), V(3, 0, 0), line(T(2.0001), zero), nines);
    ExpectCopyAssignmentAndEquality<S>(), ExpectCopyAssignmentAndEquality<B>();
    static_assert(Collides(S(V(9, 0, 0), 1), V(), S(), V(1, 0, 0)) == 8);

    Random<T> random{2}, fine;
    for (int i = 0; i < 5000; ++i) {
        random.Fill(a, b, box, plane, p);
        box.Repair(), kept.center.w = 7;
        T const r = a.radius, s = r + b.radius, side = plane.normal * a.center + plane.distance;
        V const c(a.center), near = Hi(Lo(c, box.max), box.min), middle = (box.min + box.max) * T(0.5);
        auto const to = [&](V const& q) { return std::sqrt(Len2(q - c)); };
        auto const in = [&](V const& q, T radius) { return int(radius * radius > Len2(q - c)); };
        auto const grown = [&](T radius, V const& q) { return in(q, radius) == 1 ? radius : to(q); };
        kept.Reset(p, 3), kept.FitAround(box), kept.Add(p), kept.Add(box), kept.Add(B(b)), kept.Reset();
        ExpectNear(0, Inputs(a, b, box, plane, p), a.IsInside(p), in(p, r), a.Intersects(b), in(b.center, s),
                   B(a).Intersects(B(b)), in(b.center, s), B(a).Intersects(box), int(near == c) | in(near, r),
                   int(plane.ClassifySphere(a)), -r >= side ? 0 : (side >= r ? 1 : 3), a.Intersects(plane),
                   int(-r < side && side < r), kept.center.w, T(7));
        ExpectNear(kRootRounding, Inputs(a, b, box, p), B(a).Add(p), B(c, grown(r, p)), B(a).Add(box),
                   B(c, grown(grown(r, box.max), box.min)), B(a).Add(B(b)),
                   B(c, std::max(r, to(b.center) + b.radius)), B(a).FitAround(box), B(box), B(box),
                   B(middle, std::sqrt(Len2(box.max - middle))), B(a).Reset(p, 3), B(p, 3), B(a).Reset(), B(),
                   a.GetClosestPointOnSurface(p), V(p) == c ? c : c + (p - c) * (r / to(p)));

        fine.Fill(a, b, o, n, velocity);
        V const unit(Normalize(V(n)), 9);
        // How far along n a point is that distance from another for the first time; NaN where it never is.
        auto const first = [&, n = n](V const& way, double distance) {
            glm::dvec3 const d = Glm(way), u = glm::normalize(glm::dvec3(Glm(n))), off = glm::cross(d, u);
            return T(glm::dot(d, u) - std::sqrt(distance * distance - glm::dot(off, off)));
        };
        T const reach = a.radius + b.radius, touch = first(b.center - a.center, reach),
                enter = first(b.center - o, b.radius);
        bool const hits = enter == enter, overlap = reach * reach > Len2(a.center - b.center);
        V hit(5, 6, 7, 8);
        ExpectNear(1e-3, Inputs(a, b, o, n), b.Intersects(o, unit, hit), int(hits),
                   Collides(a, velocity + unit, b, velocity), overlap ? 0 : (touch == touch ? touch : -1));
        ExpectNear(1e-3, Inputs(b, o, n), hit, V(hits ? o + unit * enter : V(5, 6, 7), 8));
    }
}
