#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, Rect2DMovesGrowsClipsAndCompares) {
    using T = TypeParam;
    using R = Rect2D<T>;
    using P = Position2D<T>;
    P const p(3, 4), q(10, 20);
    R const r(1, 2, 5, 8), o(0, 4, 6, 7), bad(kNaN<T>, 0, 1, 1);
    R s;
    T const low = 1.192087F,
            high =
                low + 100 * std::numeric_limits<float>::epsilon();  // low * 1e-5 < high - low < high * 1e-5
    auto const valid = [](T x, T y) { return R(1, 2, 1 + x, 2 + y).IsValid(); };
    ExpectNear(0, "made", R(), R(0, 0, 0, 0), R(p, q), R(3, 4, 10, 20), R(p, Dimension2D<T>(-2, 5)),
               R(3, 4, 1, 9), s = r, r, R(r), r, r.Size(), Dimension2D<T>(4, 6), r.Width(), T(4), r.Height(),
               T(6), R(5, 9, 2, 1).Center(), P(3.5, 5), r.topLeft, P(1, 2));
    ExpectNear(0, "moved", r + p, R(4, 6, 8, 12), p + r, r + p, R(r) += p, r + p, R(r).Offset(p), r + p,
               R(r).Offset(3, 4), r + p, R(r).Move(3, 4), r + p, r - p, R(-2, -2, 2, 4), p - r, r - p,
               R(r) -= p, r - p, R(r).Move(p), R(3, 4, 7, 10));
    ExpectNear(0, "grown", R(r).Inflate(1, 2, 3, 4), R(0, 0, 8, 12), R(r).Inflate(p, q), R(-2, -2, 15, 28),
               R(r).Inflate(3, 4), R(-2, -2, 8, 12), R(r).Inflate(p), R(-2, -2, 8, 12),
               R(r).Deflate(1, 2, 3, 4), R(2, 4, 2, 4), R(r).Deflate(p, q), R(4, 6, -5, -12),
               R(r).Deflate(3, 4), R(4, 6, 2, 4), R(r).Deflate(p), R(4, 6, 2, 4));
    ExpectNear(0, "combined", r & o, R(0, 2, 5, 7), o & r, r & o, R(r) &= o, r & o, r | o, R(1, 4, 6, 8),
               o | r, r | o, R(r) |= o, r | o, R(r).Clip(o), R(1, 4, 5, 7), R(r).Clip(R(20, 30, 40, 50)),
               R(5, 8, 5, 8), R(r).Clip(R(-9, -8, -7, -6)), R(-7, -6, -7, -6), R(5, 8, 1, 2).Clip(r),
               R(1, 2, 1, 2), R(5, 8, 1, 9).Repair(), R(1, 8, 5, 9), R(1, 9, 5, 8).Repair(), R(1, 8, 5, 9));
    ExpectNear(0, "equal to the right operand's tolerance, valid", R(low, 1, 1, low) == R(high, 1, 1, high),
               1, R(1, high, 1, 1) == R(1, low, 1, 1), 0, R(1, 1, 1, high) == R(1, 1, 1, low), 0,
               R(1, 1, 1, high) != R(1, 1, 1, low), 1, bad == bad, 1, bad != bad, 0, bad == R(bad), 0,
               valid(0, 0), 0, valid(0, 5), 1, valid(5, 0), 1, valid(-1, 5), 0, valid(5, -1), 0,
               valid(kNaN<T>, 0), 1);
    static_assert((R(0, 0, 4, 4) & R(1, 1, 2, 2)).Width() == 2 && !requires { r.IsValid(); });

    Random<T> random{1};
    auto [a, b, at] = std::tuple<R, R, P>();
    for (int i = 0; i < 5000; ++i) {
        random.Fill(a, b, at);
        a.Repair(), b.Repair(), a.Inflate(1, 1), b.Inflate(1, 1);
        R const both = R(a).Clip(b);
        int const in = std::clamp(at.x, a.topLeft.x, a.bottomRight.x) == at.x &&
                       std::clamp(at.y, a.topLeft.y, a.bottomRight.y) == at.y;
        int const meet = a.IsPointInside(both.topLeft) & b.IsPointInside(both.topLeft);
        ExpectNear(0, Inputs(a, b, at), a.IsPointInside(at), in, meet & both.IsPointInside(at),
                   in & b.IsPointInside(at), a.IsCollided(b), int(both.Width() > 0 && both.Height() > 0));
    }
}
