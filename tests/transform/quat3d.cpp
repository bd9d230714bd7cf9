#include "../support.h"

#include <glm/ext/quaternion_exponential.hpp>
#include <glm/gtc/quaternion.hpp>

using namespace support;

TYPED_TEST(FloatAndDouble, Quat3DEdgesOfConversionsAndFunctions) {
    using T = TypeParam;
    using Q = Quat3D<T>;
    using V = Vec4D<T>;
    T const n = kNaN<T>, quarter = 1.5707963705062866F, p[] = {4, 1, 2, 3},
            zero = sizeof(T) == 4 ? 0.0 : -0.0;
    T const root = T(0.70710678118654752), cosine = T(0.8660254037844386);
    Q q(1, 2, 3, 4);
    Q const unset, one(0, 0, 0, 1), nan(n, n, n, n), partly(n, 1, 2, 3);
    auto const axes = [](T ax, T by, T cz) { return Q(V(ax, 2, 3, 9), V(4, by, 6, 9), V(7, 8, cz, 9)); };
    auto angles = [v = V(9)](Q const& of) mutable { return of.GetPitchYawRoll(v.x, v.y, v.z), V(v); };
    auto axisAngle = [v = V(9)](Q const& of) mutable { return of.GetAxisAngle(v, v.w), V(v, v.w); };
    ExpectNear(0, "storage, length", q.w, p[0], q.x, p[1], q.y, p[2], q.z, p[3], Q(p), q, Q() = q, q, Q(q), q,
               unset, Q(0, 0, 0, 0), Conj(q), Q(-1, -2, -3, 4), UnitInvert(q), Conj(q), Conj(one),
               Q(zero, zero, zero, 1), Q().Adjust(), unset, Q(0, 0, 2, 0).Adjust(), Q(0, 0, 1, 0),
               Q(partly).Adjust(), partly, Invert(unset), nan);
    ExpectNear(0, "branches and ties of SetAxes", axes(1, 1, 1), Q(-0.5, 1, -0.5, 1), axes(1, -1, -1),
               Q(1, 1.5, 2.5, -0.5), axes(0, 0, 0), Q(5, 7, 0.5, -1), axes(0, 0, -3), Q(1.5, 1, 3.5, 1),
               axes(0, -3, 0), Q(2.5, 3.5, 1, -0.5), axes(-3, 0, 0), Q(2.5, 3.5, 1, -0.5));
    ExpectNear(0, "quarter turns", angles(Q(0.5, 1, 0.25, 1)), V(T(std::atan2(0.5, 0.375)), quarter, 0),
               angles(Q(0.5, -1, 0.25, 1)), V(T(std::atan2(1.5, 0.375)), -quarter, 0),
               angles(Q(0, 0.5, 0, 1)), V(0, quarter, 0), angles(Q(0, -0.5, 0, 1)).y, -quarter,
               angles(Q(0, 0, 0, n)), V(n, quarter, 0));
    ExpectNear(0, "axis and angle, Exp, Log", axisAngle(Q(0, 0, 0, 5)), V(1, 0, 0), axisAngle(partly),
               V(1, 0, 0), axisAngle(Q(1e25F, 0, 0, 0)), V(1, 0, 0), axisAngle(Q(0, 2, 0, 0)),
               V(0, 1, 0, 2 * T(std::acos(0.0))), axisAngle(Q(0, 0, 1, 2)), V(0, 0, 1, n), Exp(Q(0, 0, 0, 5)),
               one, Exp(partly), Q(n, 1, 2, n), Log(Q(0, 0, 0, -1)), unset, Log(partly), Q(n, 1, 2, 0),
               Exp(Q(T(0.9e-6), 0, 0, 9)).x, T(0.9e-6), Exp(Q(T(1.1e-6), 0, 0, 9)).x == T(1.1e-6),
               sizeof(T) == 4);
    ExpectNear(kRootRounding, "Arc, Slerp, SetAxisAngle", Arc(V(1, 0, 0), V(-1, 0, 0)).w * T(1e20F),
               T(1.12131352), Arc(V(3, 0, 0), V(0, 4, 0)), Q(0, 0, 12 * root, root),
               Slerp(one, Q(1, 0, 0, 0), 0.5, 2), Q(0.5, 0, 0, 0.5),
               Slerp(one, Q(cosine, 0, 0, 0.5), 0.5, 0.5), Q(0.5, 0, 0, cosine),
               Slerp(q, Q(-1, -2, -3, -4), 0.25, 1), q, Slerp(one, one, 0.5, 0), nan, Q(V(3, 0, 0, 4), 2).x,
               T(0.6 * std::sin(1.0)));
    static_assert((Q(1, 0, 0, 0) * Q(0, 1, 0, 0)).z == 1 && FromMatrix(Matrix3D<T>()).w == 1);
}

TYPED_TEST(FloatAndDouble, Quat3DTurnsAsTheTableOfSensesAndGlmSay) {
    using T = TypeParam;
    using Q = Quat3D<T>;
    using V = Vec4D<T>;
    using M = Matrix3D<T>;
    using G = glm::qua<T>;
    auto const ours = [](G const& q) { return Q(q.x, q.y, q.z, q.w); };
    auto const up = [](Q const& q, Q const& to) {
        return (Conj(to) * q).w < 0 ? Q(-q.x, -q.y, -q.z, -q.w) : q;
    };
    auto const sine = [](T angle) { return T(std::sin(double(angle / 2))); };
    auto const cosine = [](T angle) { return T(std::cos(double(float(angle / 2)))); };
    Random<T> random;
    auto [a, n, v, b, read] = std::tuple<M, V, V, Q, Q>();
    T angle;
    for (int i = 0; i < 1000; ++i) {
        random.Fill(n, v, a, b);
        V const axis(n), e(v.x * T(0.75), v.y * T(0.35), v.z * T(0.75)), f = Normalize(axis),
                                                                         g = Normalize(V(v));
        G const turn = glm::angleAxis(n.w, glm::normalize(Glm(n))), gb(b.w, b.x, b.y, b.z),
                other = glm::normalize(gb);
        auto const m = glm::mat4_cast(turn), back = glm::transpose(m);
        Q const q(axis, n.w), pyr(e.x, e.y, e.z), o = ours(other);
        M dirty(&m[0].x);
        for (int k : {3, 7, 11, 12, 13, 14, 15}) dirty.m[k] = 9;
        V x(7, 7, 7, 7), y(x, 7), z(x, 7), out(x, 7), angles;
        q.GetAxes(x, y, z), q.GetAxisAngle(out, angle), pyr.GetPitchYawRoll(angles.x, angles.y, angles.z),
            read = dirty;
        ExpectNear(kRootRounding, Inputs("senses", n, v, a), q, ours(turn), M().Rot(axis, n.w), m,
                   M(x, y, z, V(0, 0, 0, 1)), m, M(q.GetXAxis(), q.GetYAxis(), q.GetZAxis(), V(0, 0, 0, 1)),
                   m, ToMatrix(q), back, M(a).Rot(q), glm::make_mat4(a.m) * back, q * v,
                   glm::mat<3, 3, T>(back) * Glm(v), up(Q(x, y, z), q), q, up(FromMatrix(dirty), q), q,
                   up(read, q), q, up(FromMatrix(ToMatrix(q)), Conj(q)), Conj(q), x.w + y.w + z.w + out.w,
                   T(28), pyr, Q(V(0, 0, 1), e.z) * Q(V(0, 1, 0), e.y) * Q(V(1, 0, 0), e.x), ToMatrix(pyr),
                   M().Rot(-e));
        ExpectNear(1e-4, Inputs("inverses", n, v), angles, e, Q(V(out), angle), q);
        ExpectNear(0, Inputs("the double cosine is of a float", v),
                   V(Q(V(4, 0, 0), e.x).w, Q(e.x, 0, 0).w, Q(0, e.y, 0).w, Q(0, 0, e.z).w),
                   V(cosine(e.x), cosine(e.x), cosine(e.y), cosine(e.z)),
                   V(Q(V(4, 0, 0), e.x).x, Q(e.x, 0, 0).x, Q(0, e.y, 0).y, Q(0, 0, e.z).z),
                   V(sine(e.x), sine(e.x), sine(e.y), sine(e.z)));
        ExpectNear(kRootRounding, Inputs("algebra", b, n, v), q * b, ours(turn * gb), Invert(b),
                   ours(glm::inverse(gb)), Q(b).Adjust(), o, Exp(b), ours(glm::exp(gb)), Log(o),
                   ours(glm::log(other)), Exp(Log(o)), o, Slerp(q, o, v.w, T(1e-6)),
                   ours(glm::slerp(turn, other, v.w)), Slerp(q, o, v.w, 2),
                   ours(turn * (1 - v.w) + other * (glm::dot(turn, other) < 0 ? -v.w : v.w)));
        if (Abs(f * g) < T(0.99))
            ExpectNear(kRootRounding, Inputs(f, g), Arc(V(f, 5), V(g, 6)), Q(f ^ g, std::acos(f * g)));
    }
}
