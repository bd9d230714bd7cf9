#include "../support.h"

#include <bit>

using namespace support;

static_assert(FastSqrt(4) == 2 && detail::SignBit(-0.0) == 1 && Abs(-2.0F) == 2 &&
              IsEqual(2.0, 2.5, 0.25) == 1);

TEST(KernelTest, RootIsTrueOverTheNormalRangeAndDefinedBeyond) {
    std::mt19937 random(20240601);
    for (int i = 0; i < 200000; ++i) {
        auto const x = std::bit_cast<float>(std::uint32_t(0x00800000 + random() % 0x7f000000));
        ASSERT_NEAR(double(FastSqrt(x)) / std::sqrt(double(x)), 1, 2e-7) << std::hexfloat << x;
    }
    for (int k = -63; k < 64; ++k) EXPECT_EQ(FastSqrt(std::ldexp(1.0F, 2 * k)), std::ldexp(1.0F, k)) << k;
    ExpectNear(0, "not tested for, not converging, infinite, negative, NaN", FastSqrt(0), 2.24262704e-20F,
               FastSqrt(1e-40F), 2.35839048e-20F, FastSqrt(1e-38F), 1.00000003e-19F,
               FastSqrt(kInfinity<float>), -0.0F, FastSqrt(-1), 0.0F, FastSqrt(kNaN<float>), kNaN<float>);
}

TYPED_TEST(FloatAndDouble, KernelScalarAbsAndIsEqual) {
    using T = TypeParam;
    using Limits = std::numeric_limits<T>;
    for (T const x : {T(0), Limits::denorm_min(), T(1.5), Limits::max(), kInfinity<T>, kNaN<T>}) {
        T const minus = std::copysign(x, T(-1));
        ExpectNear(0, x, Abs(minus), x, Abs(x), x, detail::SignBit(minus), 1, detail::SignBit(Abs(minus)),
                   int(std::isnan(x)));
    }
    ExpectNear(0, "inclusive", IsEqual<T>(2, 2.5, 0.25), 1,
               IsEqual<T>(2, T(2.5) + Limits::epsilon() * 2, 0.25), 0);
    ExpectNear(0, "relative to the first", IsEqual<T>(-2.5, -2, 0.2F), 1, IsEqual<T>(-2, -2.5, 0.2F), 0);
    ExpectNear(0, "nothing is near 0", IsEqual<T>(0, Limits::min(), 1), 0, IsEqual<T>(0, -0.0, 0), 1);
    ExpectNear(0, "unordered", IsEqual<T>(1, kNaN<T>, 1), 0, IsEqual<T>(kNaN<T>, 1, 1), 0,
               IsEqual<T>(kInfinity<T>, kInfinity<T>, 1), 0);
}
