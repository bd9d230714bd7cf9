#include "../support.h"

#include <vertra/interop/eigen.h>
#include <vertra/interop/fmt.h>
#include <vertra/interop/glm.h>
#include <vertra/interop/hash.h>
#include <vertra/interop/imath.h>
#include <vertra/interop/spans.h>

#include <iomanip>
#include <sstream>
#include <string>

namespace {

using namespace support;

template <class X> concept Spans = requires(X&& x) { Span(std::forward<X>(x)); };

std::string Text(auto const&... parts) {
    std::ostringstream out;
    (out << ... << parts);
    return out.str();
}

TYPED_TEST(FloatAndDouble, InteropOneTextForStreamsAndFormats) {
    using T = TypeParam;
    Vec4D<T> const v(1, T(-0.1), T(1e20), 4);
    auto const expect = [](auto const& x, std::string const& text) {
        EXPECT_EQ(Text(x), text);
        EXPECT_EQ(fmt::format("{}", x), text);
    };
    expect(v, "(1, -0.1, 1e+20, 4)");
    expect(Vec3D<T>(-std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN(), T(-0.0)),
           "(-inf, nan, -0)");
    expect(Matrix3D<T>(), "(1, 0, 0, 0)\n(0, 1, 0, 0)\n(0, 0, 1, 0)\n(0, 0, 0, 1)");
    expect(Quat3D<T>(1, 2, 3, 4), "(w: 4, x: 1, y: 2, z: 3)");
    expect(BSphere3D<T>(Vec4D<T>(1), 2), "(center: (1, 1, 1, 0), radius: 2)");
    expect(Triangle3D<T>(), "((1, 0, 0, 0), (0, 1, 0, 0), (0, 0, 1, 0))");
    expect(Quad3D<T>(1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 1, 2, 3, 4, 5, 6),
           "((1, 2, 3, 4), (5, 6, 7, 8), (9, 0, 1, 2), (3, 4, 5, 6))");
    expect(Rect2D<T>(1, 2, 3, 4), "(topLeft: (1, 2), bottomRight: (3, 4))");
    expect(Color3D<T>(1, T(0.5), 0, 1), "(1, 0.5, 0, 1)");
    EXPECT_EQ(fmt::format("{}", Light3D<T>()).substr(0, 33), "(type: 3, diffuse: (1, 1, 1, 0), ");
    EXPECT_NE(Text(Material3D<T>()).find(", texture1: 0x0, "), std::string::npos);
    EXPECT_EQ(fmt::format("{:.1f} {:>{}}{:}", Vec2D<T>(1, 2), Vec2D<T>(3, 4), 3, Vec2D<T>()),
              "(1.0, 2.0) (  3,   4)(0, 0)");
    EXPECT_EQ(fmt::format("{:a}", Vec2D<T>(1, T(-0.75))), "(0x1p+0, -0x1.8p-1)");
    EXPECT_EQ(Text(std::fixed, std::setprecision(1), std::setw(4), Vec2D<T>(1, 2)), "( 1.0,  2.0)");
    EXPECT_EQ(Text(std::setw(3), Vec2D<T>(1, 2), 5), "(  1,   2)5");
    for (T const written : {T(1) / 3, std::numeric_limits<T>::max(), std::numeric_limits<T>::denorm_min()})
        EXPECT_EQ(T(std::stold(Text(Vec2D<T>(written)).substr(1))), written);
    EXPECT_THROW((void)fmt::format(fmt::runtime("{:d}"), v), fmt::format_error);
}

TYPED_TEST(FloatAndDouble, InteropHashesAreThoseOfEquals) {
    using T = TypeParam;
    auto const expect = [](auto const& a, auto const& b, bool same) {
        std::hash<std::remove_cvref_t<decltype(a)>> const hash;
        EXPECT_EQ(hash(a) == hash(b), same) << a << b;
    };
    expect(Vec4D<T>(), Vec4D<T>(T(-0.0), T(-0.0), T(-0.0), T(-0.0)), true);
    expect(Vec4D<T>(1, 2, 3), Vec4D<T>(1, 2, 3, 1), false);
    expect(Vec2D<T>(1, 2), Vec2D<T>(2, 1), false);
    expect(Line3D<T>(0, 0, 0, 1, 1, 1), Line3D<T>(T(-0.0), 0, 0, 1, 1, 1), true);
    expect(Triangle3D<T>(1, 2, 3, 4, 5, 6, 7, 8, 9), Triangle3D<T>(1, 2, 3, 4, 5, 6, 7, 8, 8), false);
    expect(Color3D<T>(T(0.5), 0, 0, 1), Color3D<T>(T(0.501), 0, 0, 1), true);
    expect(Color3D<T>(T(0.5), 0, 0, 1), Color3D<T>(T(0.51), 0, 0, 1), false);
    Material3D<T> a, b;
    a.diffuse.r = T(0.997);
    b.diffuse.r = T(0.9999);
    expect(a, b, true);
    b.texture2 = reinterpret_cast<ITexture2D<T>*>(&a);
    expect(a, b, false);
}

TYPED_TEST(FloatAndDouble, InteropSpansAreTheFields) {
    using T = TypeParam;
    Triangle3D<T> triangle;
    Span(triangle)[7] = 5;
    EXPECT_TRUE(triangle.vertex[1].w == 5 && Span(triangle).size() == 12);
    static_assert(Spans<Vec2D<T>&> && !Spans<Vec2D<T>> && !Spans<Light3D<T>&>);
}

/// By a peer's conversions, and its own ways to take a point through a matrix and to turn a vector.
template <class T>
void ExpectConverts(auto const& to, auto const& from, auto const& move, auto const& turn) {
    Random<T> random;
    auto [v, p, axis, flat] = std::tuple<Vec4D<T>, Vec3D<T>, Vec3D<T>, Vec2D<T>>();
    auto [m, q, other, color] = std::tuple<Matrix3D<T>, Quat3D<T>, Quat3D<T>, Color3D<T>>();
    for (int i = 0; i < 100; ++i) {
        random.Fill(v, p, axis, flat, m, q, other, color);
        auto const back = from(to(color));  // as a vector from those that have no color
        ExpectNear(0, "round", from(to(v)), v, from(to(p)), p, from(to(flat)), flat, from(to(m)), m,
                   from(to(q)), q, Color3D<T>(Span(back).data()), color);

        for (int e = 3; e < 16; e += 4) m.m[e] = e == 15 ? 1 : 0;
        Quat3D<T> const turned = Quat3D<T>().SetAxisAngle(Normalize(Vec4D<T>(axis)), v.x);
        ExpectNear(1e-5, Inputs(p, m, q, other, axis, v), from(to(q) * to(other)), q * other,
                   from(move(to(p), to(m))), Vec3D<T>(Vec4D<T>(p) * m), from(turn(to(p), to(turned))),
                   Vec3D<T>(Vec4D<T>(p) * Matrix3D<T>().Rot(axis, v.x)));
    }
}

TYPED_TEST(FloatAndDouble, InteropConversionsGoRoundExactlyAndTurnTheSameWay) {
    using T = TypeParam;
    auto const turn = [](auto const& p, auto const& q) { return q * p; };
    ExpectConverts<T>([](auto const& x) { return ToGlm(x); }, [](auto const& x) { return FromGlm(x); },
                      [](auto const& p, auto const& m) { return glm::vec<3, T>(m * glm::vec<4, T>(p, 1)); },
                      turn);
    ExpectConverts<T>(
        [](auto const& x) { return ToEigen(x); }, [](auto const& x) { return FromEigen(x); },
        [](auto const& p, auto const& m) { return (m * p.homogeneous()).eval().hnormalized().eval(); }, turn);
    ExpectConverts<T>([](auto const& x) { return ToImath(x); }, [](auto const& x) { return FromImath(x); },
                      [](auto const& p, auto const& m) { return p * m; },
                      [](auto const& p, auto const& q) { return q.rotateVector(p); });
}

}  // namespace
