#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Vec4DArithmeticFollowsTheRulesOfWAndAgreesWithGlm) {
    using T = TypeParam;
    using V = Vec4D<T>;
    Random<T> random;
    V a, b, c, d, out(5, 6, 7, 8);
    V const e(5, 6, 7, 8), plane(0, 2, 0, 9), up(0, 1, 0), on(5, 0, 0, 1), none(0, kNaN<T>, 0), zero(T(-0.0));
    static_assert(Len(V(0, 0, 0, 2)) == 2 && (V(1, 0, 0) ^ V(0, 1, 0)) == V(0, 0, 1));
    ExpectCopyAssignmentAndEquality<V>();
    ExpectNear(0, "made", V(), V(0, 0, 0, 0), V(2), V(2, 2, 2, 0), V(1, 2, 3), V(1, 2, 3, 0), V(&e.x),
               V(5, 6, 7, 0), V(&e.x, 9), V(5, 6, 7, 9), V(e), V(5, 6, 7, 0), V(e, e.w), e,
               V(e[0], e[1U], e[std::size_t(2)], static_cast<T const*>(e)[3]), e,
               V(out[0], out[1U], out[std::size_t(2)], static_cast<T*>(out)[3]), e);
    for (int i = 0; i < 1000; ++i) {
        random.Fill(a, b, c, d, out);
        T const s = random() + T(4.5), w = out.w;
        auto const ga = Glm(a), gb = Glm(b), gc = Glm(c), gd = Glm(d), cross = glm::cross(ga, gb);
        glm::vec<4, T> const a4(ga, a.w), b4(gb, b.w), set(gb, a.w);
        auto const unit = ga / glm::length(a4), normal = glm::normalize(glm::cross(gb - ga, gc - ga));
        CrossProduct(a, b, out);
        ExpectNear(kRootRounding, Inputs(a, b, c, d, s), a + b, ga + gb, a - b, ga - gb, +a, ga, -a, -ga,
                   a * s, ga * s, s * a, ga * s, a / s, ga / s, s / a, s / ga, a / b, ga / gb, a ^ b, cross,
                   out, V(&cross.x, w), Lo(a, b), glm::min(ga, gb), Hi(a, b), glm::max(ga, gb), Normalize(a),
                   unit, Plane(a), glm::normalize(ga), Plane(a, s), unit, Plane(a, b), unit, Plane(a, b, c),
                   normal, Normal(a, b, c), normal, Normal(a, b, c, d),
                   glm::normalize(glm::cross(gc - ga, gd - gb)), V(a, a.w) = &b.x, set,
                   V(a, a.w).Set(b.x, b.y, b.z), set, V(a, a.w) += b, a4 + b4, V(a, a.w) -= b, a4 - b4,
                   V(a, a.w) *= s, a4 * s, V(a, a.w) /= b, a4 / b4, V(a, a.w) /= V(b),
                   glm::vec<4, T>(ga / gb, a.w), V(a, a.w).SetLength(s), glm::vec<4, T>(unit * s, a.w), a * b,
                   glm::dot(a4, b4), Len2(a), glm::dot(a4, a4), Len(a), glm::length(a4), Distance(a, b),
                   glm::dot(ga, gb) + a.z, GetDistanceBetween2(a, b), glm::dot(ga - gb, ga - gb),
                   GetDistanceBetween(a, b), glm::distance(ga, gb));
        ExpectNear(0, "float's root, one reciprocal", Len(a), T(FastSqrt(static_cast<float>(Len2(a)))),
                   Normalize(a), a * (1 / Len(a)));
    }
    ExpectNear(0, "zero and unit lengths", Normalize(V()), V(), Normalize(V(0, 0, 0, 5)), V(), Plane(V()),
               V(), Normalize(up), up, Normal(V(1, 2, 3), V(2, 4, 6), V(3, 6, 9)), V());
    ExpectNear(0, "out of float's range", Normalize(V(1e25F, 2, 3, 4)), V(1e25F, 2, 3), Plane(V(1e25F, 0, 0)),
               V(-kInfinity<T>, kNaN<T>, kNaN<T>), Len(V(1e25F)), T(-0.0), Len(V(1e-30F)),
               T(2.24262704e-20F));
    ExpectNear(0, "a NaN or a tie leaves a in Lo, b in Hi", Lo(none, e), V(0, kNaN<T>, 0), Lo(e, none),
               V(0, 6, 0), Hi(none, e), V(5, 6, 7), Hi(e, none), V(5, kNaN<T>, 7), Lo(V(), zero), V(),
               Hi(V(), zero), zero);
    auto const crosses = []<class A>(A const& normal, A const& above, A const& at, A const& nan) {
        ExpectNear(0, "on the plane is above, NaN below", Crosses(normal, above, -above), 1,
                   Crosses(normal, -above, above), 1, Crosses(normal, above, at), 0,
                   Crosses(normal, at, -above), 1, Crosses(normal, nan, -above), 0, Crosses(normal, at, nan),
                   1);
    };
    crosses(plane, up, on, none), crosses(Vec3D<T>(0, 2, 0), Vec3D<T>(up), Vec3D<T>(on), Vec3D<T>(none));
}

TYPED_TEST(FloatAndDouble, VectorsCompareAllComponentsAtOnce) {
    using T = TypeParam;
    std::mt19937 random(20240601);
    T const values[] = {0, 0, 0, 1, 1, -1, kNaN<T>};
    auto const compare = [&]<class V>(V a, V b, V all) {
        for (T& x : Scalars(a)) x = values[random() % 7];
        for (T& x : Scalars(b)) x = values[random() % 7];
        T const s = b.z;
        std::ranges::fill(Scalars(all), s);
        auto const check = [&](auto... is) {
            auto const each = [](auto f, V const& p, V const& q) {
                return int(std::ranges::equal(Scalars(p), Scalars(q), f));
            };
            (ExpectNear(0, Inputs(typeid(is).name(), a, b), is(a, b), each(is, a, b), is(a, s),
                        each(is, a, all), is(s, a), each(is, all, a)),
             ...);
        };
        check(std::equal_to<>(), std::less<>(), std::less_equal<>(), std::greater<>(),
              std::greater_equal<>());
        ExpectNear(0, Inputs(a, b), a != b, 1 - (a == b), a != s, 1 - (a == s), s != a, 1 - (s == a), !a,
                   std::same_as<V, Vec3D<T>> ? a == 0 : a != 0);
    };
    for (int i = 0; i < 20000; ++i) compare(Vec4D<T>(), {}, {}), compare(Vec3D<T>(), {}, {});
}
