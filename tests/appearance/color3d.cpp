#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Color3DStoresAsItIsPacksIntoBytesAndSaturates) {
    using T = TypeParam;
    using C = Color3D<T>;
    using V = Vec4D<T>;
    // What comes back from 1/255 and 255 in double as the byte below.
    unsigned const lower[] = {33, 37,  41,  45,  49,  53,  57,  61,  66,  74,  82,  90,
                              98, 106, 114, 122, 132, 148, 164, 180, 196, 212, 228, 244};
    for (unsigned byte = 0; byte < 256; ++byte) {
        C const c(byte * 0x01010101U);
        unsigned const lost = sizeof(T) == 8 && std::ranges::count(lower, byte) != 0;
        ExpectNear(0, byte, static_cast<unsigned>(c), (byte - lost) * 0x01010101U, c.r,
                   T(byte) * T(0.00392156862745098));
    }
    T const p[] = {1, 2, 3, 4};
    C const set(p), packed(0x11223344U), half(0.5, 0, 0, 0), near(T(0.501), 0, 0, 0), next(T(0.502), 0, 0, 0);
    C v = set;
    AdjustRChannel(5, v), AdjustGChannel(6, v), AdjustBChannel(7, v), AdjustAChannel(8, v);
    auto const pack = [](T b) { return int(static_cast<unsigned>(C(0, 0, b, 0))); };
    ExpectNear(0, "stored, packed", C(1, 2, 3, 4), set, C(set), set, C(0U) = set, set, C(0U) = p, set,
               C(0U) = 0x11223344U, packed, FromVector(V(1, 2, 3, 4)), set, ToVector(set), V(1, 2, 3),
               V(set.Red(), set.Green(), set.Blue(), set.Alpha()), V(1, 2, 3, 4),
               C(set[0], set[1U], set[std::size_t(2)], static_cast<T const*>(set)[3]), set,
               C(v[0], v[1U], v[std::size_t(2)], static_cast<T*>(v)[3]), C(5, 6, 7, 8), C(0.5, 0, -1, 2) / 0,
               C(1, kNaN<T>, 0, 1), static_cast<unsigned>(packed), 0x11223344U, pack(1), 255, pack(0.5), 127,
               pack(1.5), 126, pack(-0.5), 129, pack(kNaN<T>), 0, pack(kInfinity<T>), 0, pack(-kInfinity<T>),
               0, pack(T(1e18)), 0, half == half, 1, half == near, 1, half != near, 0, half == next, 0,
               half != next, 1);
    static_assert(C(0xFF00FF00U).g == 1 && (C(1, 0, 1, 0) + C(1, 1, 0, 0))[0] == 1);

    auto const held = [](T x) { return std::clamp(x, T(0), T(1)); };
    Random<T> random{4};
    C a, b, c;
    for (int i = 0; i < 4000; ++i) {
        random.Fill(a, b, c);
        T const s = random() + T(4.125), x = a[i % 4], y = b[i % 4], z = c[i % 4];
        v = a, AdjustBrightness(s - 4, v);
        auto const at = [i](C const& of) { return of[i % 4]; };
        ExpectNear(0, Inputs(a, b, c, s), at(a + b), held(x + y), at(C(a) += b), held(x + y), at(a - b),
                   held(x - y), at(C(a) -= b), held(x - y), at(a * b), held(x * y), at(C(a) *= b),
                   held(x * y), at(a * s), held(x * s), at(s * a), held(x * s), at(a / s), held(x * (1 / s)),
                   at(s / a), held(s / x), at(C(a) *= -3), held(x * -3), at(C(a) /= 3), held(x * (T(1) / 3)),
                   at(a * 2), held(x * 2), at(0.5 * a), held(x / 2), at(a / 2U), held(x / 2), at(2 / a),
                   held(2 / x), at(PixelShaderAdaptive(a, b, c)), held(held(x * y) + held(x * z)),
                   at(PixelShaderSimpleAdaptive(a, b, c)), held(x + held(y * z)), at(v),
                   i % 4 == 3 ? x : held(x + (s - 4)));
    }
}
