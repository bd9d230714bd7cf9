#include "../support.h"

#include <glm/gtc/matrix_transform.hpp>

using namespace support;

TYPED_TEST(FloatAndDouble, Matrix3DEdgesOfEachOperation) {
    using T = TypeParam;
    using M = Matrix3D<T>;
    using V = Vec4D<T>;
    M m(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16), other;
    M const c(m), swap(0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
    V const row(1, 2, 3, 4);
    T const s = 7, n = kNaN<T>, zero = sizeof(T) == 4 ? T(0) : T(-0.0), quarter = T(1.5707963267948966),
            tiny = T(1e-15), rest = std::sqrt(T(1e-30F) - tiny * tiny);
    static_assert((M().Trans(1, 2, 3) * M().Scale(2)).Row(3) == V(2, 4, 6) &&
                  Det(Invert(M().Scale(2, 4, 8))) == 0.015625);
    ExpectNear(0, {}, M(other = c.m), m, M(other = c), m, M(other = s), M(s),
               M(row, V(5, 6, 7, 8), V(9, 10, 11, 12), V(13, 14, 15, 16)),
               M(1, 2, 3, 0, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16), M(m).Eye(), M(), M(m).LoadIdentity(),
               M(), m.Row(1), V(5, 6, 7), c.Row(3), V(13, 14, 15), m.Column(1), V(2, 6, 10), c.Column(3),
               V(4, 8, 12), c.GetScale(), V(1, 6, 11), c.GetTranslation(), V(13, 14, 15),
               V(m[4], m[5U], m[std::size_t(6)], static_cast<T const*>(c)[7]), V(5, 6, 7, 8),
               static_cast<T*>(m)[8], T(9), (-M(T(0))).m[3], zero, M(T(0)).Left().m[11], zero);
    ExpectNear(0, "exact inverses", Invert(M()), M(), Invert(M().Scale(2, 4, 8)), M().Scale(0.5, 0.25, 0.125),
               Invert(swap), swap, Invert(M(0, -1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1)).m[1], T(-1));
    ExpectNear(0, "no inverse", Invert(M(T(0))), M(n),
               Invert(M(1, 2, 3, 4, 1, 2, 3, 4, 0, 0, 1, 0, 0, 0, 0, 1)), M(n),
               Invert(M(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0)),
               M(n, n, n, n, n, n, n, n, n, n, n, n, n, n, n, kInfinity<T>));
    // Of 2 and -2 the upper is the pivot: the lower would leave 1 - x * (1 / x), with x 41 in float and 49 in
    // double, where 0 stands.
    for (T const x : {T(41), T(49)})
        ExpectNear(0, x, Invert(M(0, 0, 1, 0, 2, 0, 0, 0, -2, x, 0, 0, 0, 0, 0, 1)).Row(0), V(0, 0.5, 0));
    ExpectNear(0, "an axis at the limit is none", M(m).Rot(V(tiny, rest, 0), 0, 1), m,
               M(m).Rot(V(0, 0, 0, 1), s), m);
    ExpectNear(1e-3, "one above is one", M().Rot(V(tiny * T(1.0001), 0, 0), 0, 1), M().XRot(0, 1));
    ExpectNear(0, "view from the target, up along the view", M(m).Look(row, row, V(0, 1, 0)),
               M(0, 0, 0, 4, 0, 0, 0, 8, 0, 0, 0, 12, 0, 0, 0, 16), M().Look(V(0, 0, 4), V(), V(0, 0, 1)),
               M(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, -4, 1));
    auto const tilted = [](T e) { return M(0, -1, 0, 0, 0, 0, 0, 0, e, 1, 0, 0, 0, 0, 0, 1).GetRotation(); };
    ExpectNear(1e-3, "a cosine of 4.9e-4, of 6.0e-4, of none", tilted(1 - std::ldexp(T(2), -24)),
               V(0, quarter, -quarter), tilted(1 - std::ldexp(T(3), -24)), V(-quarter, quarter, 0), tilted(2),
               V(0, n, -quarter));
}

TYPED_TEST(FloatAndDouble, Matrix3DArithmeticAndBuildersAgreeWithGlm) {
    using T = TypeParam;
    using M = Matrix3D<T>;
    using V = Vec4D<T>;
    using G = glm::mat<4, 4, T>;
    Random<T> random;
    M a, m;
    V v, w, up;
    T const quarter = T(1.5707963267948966);
    glm::vec<3, T> const x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
    for (int i = 0; i < 1000; ++i) {
        random.Fill(a, m, v, w, up);
        T const l = v.x, r = l + 2, b = v.y, t = b + 3, n = v.z + 5, f = n + 7, turn = v.w, s = w.y + 5;
        V const angles = v * T(0.37);
        auto const gv = Glm(v), gw = Glm(w);
        G const ga = glm::make_mat4(a.m), g = glm::make_mat4(m.m);
        glm::vec<4, T> const point(gv, 1), image = g * point;
        auto const kept = [&](G scaled) {  // column 3 as it was
            for (int j = 0; j < 4; ++j) scaled[j][3] = g[j][3];
            return scaled;
        };
        ExpectNear(kRounding<T>, Inputs(a, m, v, s), m * s, kept(g * s), s * m, kept(g * s), m / s,
                   kept(g / s), s / m, kept(s / g), M(m) *= s, g * s, M(m) /= s, g / s, m + a, g + ga,
                   M(m) += a, g + ga, m - a, g - ga, M(m) -= a, g - ga, -m, -g, Transpose(m),
                   glm::transpose(g), m * a, ga * g, M(m) *= a, ga * g, m * m, g * g, v * m,
                   glm::vec<3, T>(image), V(v) *= m, image, m * v, glm::vec<3, T>(point * g), Det(m),
                   glm::determinant(g));
        if (std::abs(Det(m)) > 1)
            ExpectNear(100 * kRounding<T>, m, Invert(m), glm::inverse(g), m * Invert(m), M());
        ExpectNear(4 * kRootRounding, Inputs(m, v, w, up), M(m).Ortho(l, r, b, t, n, f),
                   g * glm::ortho(l, r, b, t, n, f), M(m).Frustum(l, r, b, t, n, f),
                   g * glm::frustum(l, r, b, t, n, f), M(m).PerspectiveFOV(1, 3, n, f),
                   g * glm::perspective(T(1), T(3), n, f), M(m).Left(), glm::scale(g, {1, 1, -1}),
                   M(m).XRot(turn), glm::rotate(g, turn, x), M(m).YRot(turn), glm::rotate(g, turn, y),
                   M(m).ZRot(turn), glm::rotate(g, turn, z), M(m).Rot(w, turn), glm::rotate(g, turn, gw),
                   M(m).Rot(w * 1000, turn), glm::rotate(g, turn, gw), M(m).Rot(v),
                   glm::rotate(glm::rotate(glm::rotate(g, l, x), b, y), v.z, z),
                   M(m).Rot({2, 0, 0, 9}, w.x, s), M(m).XRot(w.x, s), M(m).Rot({0, 1, 0, 9}, w.x, s),
                   M(m).YRot(w.x, s), M(m).Rot({0, 0, 3, 9}, w.x, s), M(m).ZRot(w.x, s), M(m).Trans(v),
                   glm::translate(g, gv), M(m).Scale(v), glm::scale(g, gv), M(m).Scale(l),
                   glm::scale(g, {l, l, l}), M(m).Look(v, w, up), glm::lookAt(gv, gw, Glm(up)) * g);
        ExpectNear(64 * kRounding<T>, angles, M().Rot(angles).GetRotation(), angles,
                   M().Rot(V(l, quarter, angles.z - l)).GetRotation(), V(0, quarter, angles.z),
                   M().Rot(V(l, -quarter, angles.z + l)).GetRotation(), V(0, -quarter, angles.z));
    }
}
