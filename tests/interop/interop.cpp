#include <vertra/interop/eigen.h>
#include <vertra/interop/fmt.h>
#include <vertra/interop/glm.h>
#include <vertra/interop/hash.h>
#include <vertra/interop/imath.h>
#include <vertra/interop/ostream.h>
#include <vertra/interop/spans.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>
#include <string>

namespace {

using namespace vertra;

template <class X> concept Spans = requires(X&& x) { Span(std::forward<X>(x)); };

template <class T>
class Interop : public testing::Test {
public:
    static std::string Text(auto const&... parts) {
        std::ostringstream out;
        (out << ... << parts);
        return out.str();
    }
    T Scalar() { return T(int(random() % 4001) - 2000) / T(1000); }
    std::mt19937 random{20240601};
};
using FloatAndDouble = testing::Types<float, double>;
TYPED_TEST_SUITE(Interop, FloatAndDouble);

TYPED_TEST(Interop, OneTextForStreamsAndFormats) {
    using T = TypeParam;
    Vec4D<T> const v(1, T(-0.1), T(1e20), 4);
    auto const expect = [](auto const& x, std::string const& text) {
        EXPECT_EQ(TestFixture::Text(x), text);
        EXPECT_EQ(fmt::format("{}", x), text);
    };
    expect(v, "(1, -0.1, 1e+20, 4)");
    expect(Vec3D<T>(-std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN(), T(-0.0)),
           "(-inf, nan, -0)");
    expect(Matrix3D<T>(), "(1, 0, 0, 0)\n(0, 1, 0, 0)\n(0, 0, 1, 0)\n(0, 0, 0, 1)");
    expect(Quat3D<T>(1, 2, 3, 4), "(w: 4, x: 1, y: 2, z: 3)");
    expect(BSphere3D<T>(Vec4D<T>(1), 2), "(center: (1, 1, 1, 0), radius: 2)");
    expect(Triangle3D<T>(), "((1, 0, 0, 0), (0, 1, 0, 0), (0, 0, 1, 0))");
    expect(Rect2D<T>(1, 2, 3, 4), "(topLeft: (1, 2), bottomRight: (3, 4))");
    expect(Color3D<T>(1, T(0.5), 0, 1), "(1, 0.5, 0, 1)");
    EXPECT_EQ(fmt::format("{}", Light3D<T>()).substr(0, 33), "(type: 3, diffuse: (1, 1, 1, 0), ");
    EXPECT_NE(this->Text(Material3D<T>()).find(", texture1: 0x0, "), std::string::npos);
    EXPECT_EQ(fmt::format("{:.1f} {:>{}}", Vec2D<T>(1, 2), Vec2D<T>(3, 4), 3), "(1.0, 2.0) (  3,   4)");
    EXPECT_EQ(fmt::format("{:a}", Vec2D<T>(1, T(-0.75))), "(0x1p+0, -0x1.8p-1)");
    EXPECT_EQ(this->Text(std::fixed, std::setprecision(1), std::setw(4), Vec2D<T>(1, 2)), "( 1.0,  2.0)");
    EXPECT_EQ(this->Text(std::setw(3), Vec2D<T>(1, 2), 5), "(  1,   2)5");
    EXPECT_THROW((void)fmt::format(fmt::runtime("{:d}"), v), fmt::format_error);
}

TYPED_TEST(Interop, DigitsReadBackExactly) {
    for (int i = 0; i < 10000; ++i) {
        TypeParam written = 0;
        auto const bits = std::uint64_t{this->random()} << 32 | this->random();
        std::memcpy(&written, &bits, sizeof written);
        if (std::isnan(written)) continue;
        std::string const text = this->Text(Vec2D<TypeParam>(written));
        double const read = std::strtod(text.c_str() + 1, nullptr);
        EXPECT_EQ(static_cast<TypeParam>(read), written) << text;
    }
}

TYPED_TEST(Interop, HashesAreThoseOfEquals) {
    using T = TypeParam;
    auto const expect = [](auto const& a, auto const& b, bool same) {
        std::hash<std::remove_cvref_t<decltype(a)>> const hash;
        EXPECT_EQ(hash(a) == hash(b), same) << a << b;
    };
    expect(Vec4D<T>(), Vec4D<T>(T(-0.0), T(-0.0), T(-0.0), T(-0.0)), true);
    expect(Vec4D<T>(1, 2, 3), Vec4D<T>(1, 2, 3, 1), false);
    expect(Vec2D<T>(1, 2), Vec2D<T>(2, 1), false);
    expect(Line3D<T>(0, 0, 0, 1, 1, 1), Line3D<T>(T(-0.0), 0, 0, 1, 1, 1), true);
    expect(Quad3D<T>(1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4, 5, 6, 7),
           Quad3D<T>(1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4, 5, 6, 8), false);
    expect(Color3D<T>(T(0.5), 0, 0, 1), Color3D<T>(T(0.501), 0, 0, 1), true);
    expect(Color3D<T>(T(0.5), 0, 0, 1), Color3D<T>(T(0.51), 0, 0, 1), false);
    Material3D<T> a, b;
    a.diffuse.r = T(0.997);
    b.diffuse.r = T(0.9999);
    expect(a, b, true);
    b.texture2 = reinterpret_cast<ITexture2D<T>*>(&a);
    expect(a, b, false);
}

TYPED_TEST(Interop, SpansAreTheFields) {
    using T = TypeParam;
    Triangle3D<T> triangle;
    Span(triangle)[7] = 5;
    EXPECT_TRUE(triangle.vertex[1].w == 5 && Span(triangle).size() == 12);
    static_assert(Spans<Vec2D<T>&> && !Spans<Vec2D<T>> && !Spans<Light3D<T>&>);
}

// The peers, each with its own ways to take a point through a matrix and to turn a vector by a quaternion.
template <class T>
struct Glm {
    static auto To(auto const& x) { return ToGlm(x); }
    static auto From(auto const& x) { return FromGlm(x); }
    static auto Move(auto const& p, auto const& m) { return glm::vec<3, T>(m * glm::vec<4, T>(p, 1)); }
    static auto Turn(auto const& p, auto const& q) { return q * p; }
    using Scalar = T;
};
template <class T>
struct OfEigen {
    static auto To(auto const& x) { return ToEigen(x); }
    static auto From(auto const& x) { return FromEigen(x); }
    static auto Move(auto const& p, auto const& m) {
        return (m * p.homogeneous()).eval().hnormalized().eval();
    }
    static auto Turn(auto const& p, auto const& q) { return (q * p).eval(); }
    using Scalar = T;
};
template <class T>
struct OfImath {
    static auto To(auto const& x) { return ToImath(x); }
    static auto From(auto const& x) { return FromImath(x); }
    static auto Move(auto const& p, auto const& m) { return p * m; }
    static auto Turn(auto const& p, auto const& q) { return q.rotateVector(p); }
    using Scalar = T;
};
template <class Peer>
class Conversion : public Interop<typename Peer::Scalar> {};
using Peers =
    testing::Types<Glm<float>, Glm<double>, OfEigen<float>, OfEigen<double>, OfImath<float>, OfImath<double>>;
TYPED_TEST_SUITE(Conversion, Peers);

TYPED_TEST(Conversion, GoesRoundExactlyAndTurnsTheSameWay) {
    using P = TypeParam;
    using T = typename P::Scalar;
    auto const near = [](auto const& a, auto const& b, double tolerance) {
        for (std::size_t i = 0; i < Span(a).size(); ++i)
            EXPECT_NEAR(Span(a)[i], Span(b)[i], tolerance) << a << '\n' << b;
    };
    for (int i = 0; i < 100; ++i) {
        Vec4D<T> v;
        Vec3D<T> p, axis;
        Vec2D<T> flat;
        Matrix3D<T> m, turn;
        Quat3D<T> q, other;
        Color3D<T> color;
        auto const fill = [&](auto&... xs) {
            (std::ranges::generate(Span(xs), [&] { return this->Scalar(); }), ...);
        };
        fill(v, p, axis, flat, m, q, other, color);
        auto const round = [&](auto const&... xs) { (near(P::From(P::To(xs)), xs, 0), ...); };
        round(v, p, flat, m, q);
        auto const back = P::From(P::To(color));  // as a vector from those that have no color
        near(Color3D<T>(Span(back).data()), color, 0);
        near(P::From(P::To(q) * P::To(other)), q * other, 1e-5);

        for (int e = 3; e < 16; e += 4) m.m[e] = e == 15 ? 1 : 0;
        near(P::From(P::Move(P::To(p), P::To(m))), Vec3D<T>(Vec4D<T>(p) * m), 1e-5);
        q.SetAxisAngle(Normalize(Vec4D<T>(axis)), v.x);
        turn.Rot(axis, v.x);
        near(P::From(P::Turn(P::To(p), P::To(q))), Vec3D<T>(Vec4D<T>(p) * turn), 1e-5);
    }
}

}  // namespace
