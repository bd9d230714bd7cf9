// Goes through every input where there are few enough: see scripts/exhaust.

#include <vertra/vertra.h>

#include <mpfr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <mutex>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using namespace vertra;

/// A NaN is as good as any other.
bool IsSame(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) || (a != a && b != b);
}

/// Runs check(word, tally) for every multiple of step below 2^32, on all processors, each with a tally of its
/// own; returns the tallies. A terminal sees how far it is.
template <class Tally, class Check>
std::vector<Tally> ForAllWords(char const* what, std::uint32_t step, Check check) {
    constexpr std::uint32_t kBlocks = 1U << 12;
    constexpr std::uint64_t kBlock = (std::uint64_t(1) << 32) / kBlocks;
    std::vector<Tally> tallies(std::max(1U, std::thread::hardware_concurrency()));
    std::atomic<std::uint32_t> next = 0;
    std::atomic<std::uint32_t> done = 0;
    auto const begin = std::chrono::steady_clock::now();
    auto const work = [&](Tally& result) {
        Tally tally{};
        for (std::uint32_t block = next++; block < kBlocks; block = next++, ++done)
            for (std::uint64_t i = 0; i < kBlock; i += step)
                check(static_cast<std::uint32_t>(block * kBlock + i), tally);
        result = tally;
    };
    std::vector<std::thread> threads;
    threads.reserve(tallies.size());
    for (Tally& tally : tallies) threads.emplace_back(work, std::ref(tally));
    for (std::uint32_t now = 0; isatty(STDERR_FILENO) && (now = done) < kBlocks;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        double const seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
        std::uint64_t const checked = now * kBlock / step;
        double const rate = double(checked) / seconds;
        std::fprintf(stderr, "\r%s: %3u %%, %.0f million a second, %.0f s left  ", what, now * 100 / kBlocks,
                     rate / 1e6, now == 0 ? 0.0 : seconds * (kBlocks - now) / now);
    }
    for (std::thread& thread : threads) thread.join();
    if (isatty(STDERR_FILENO)) std::fputs("\r\033[K", stderr);
    return tallies;
}

/// FastSqrt as its contract tells it.
float PlainRoot(float x) {
    std::int32_t bits = 0;
    std::memcpy(&bits, &x, sizeof x);
    std::uint32_t const estimate = 0x5f375a86 - static_cast<std::uint32_t>(bits >> 1);
    float y = 0;
    std::memcpy(&y, &estimate, sizeof y);
    float const h = x * 0.5F;
    for (int step = 0; step < 2; ++step) y = y * (1.5F - (h * y) * y);
    double const wide = y;
    return 1 / static_cast<float>(wide * (1.5 - double(h) * wide * wide));
}

struct RootTally {
    std::uint64_t inlineDiffers = 0;
    std::uint64_t exportedDiffers = 0;
    double error = 0;
    float worst = 0;
};

/// The square root over all floats: inlined here, exported by the library, and transcribed above.
bool CheckKernel() {
    double (*const volatile exported)(Vec2D<double> const&) = &Len<double>;
    auto const tallies = ForAllWords<RootTally>("kernel", 1, [&](std::uint32_t word, RootTally& tally) {
        auto const x = std::bit_cast<float>(word);
        float const root = FastSqrt(x);
        tally.inlineDiffers += !IsSame(root, PlainRoot(x));
        if (word > 0x7F800000) return;              // negative or a NaN
        double const judge = std::sqrt(double(x));  // its square rounds to x
        tally.exportedDiffers += !IsSame(static_cast<float>(exported(Vec2D<double>(judge, 0))), root);
        if (!std::isnormal(x)) return;
        double const error = std::abs(double(root) - judge) / judge;
        if (error > tally.error) tally.error = error, tally.worst = x;
    });
    RootTally total;
    for (RootTally const& tally : tallies) {
        total.inlineDiffers += tally.inlineDiffers;
        total.exportedDiffers += tally.exportedDiffers;
        if (tally.error > total.error) total.error = tally.error, total.worst = tally.worst;
    }
    std::printf(
        "kernel: %llu of 2^32 differ from the transcription, %llu of those from 0 on from the export\n",
        static_cast<unsigned long long>(total.inlineDiffers),
        static_cast<unsigned long long>(total.exportedDiffers));
    std::printf("kernel: worst relative error %.4g, at %a\n", total.error, double(total.worst));
    return total.inlineDiffers == 0 && total.exportedDiffers == 0 && total.error < 2e-7;
}

using Unary = int (*)(mpfr_t, mpfr_t const, mpfr_rnd_t);

/// What the library calls, what it is judged by, and who settles near-ties. The second argument is atan2's.
struct Function {
    char const* name;
    double (*called)(double, double);
    long double (*judge)(long double, long double);
    int (*settle)(mpfr_t, mpfr_t const, mpfr_t const, mpfr_rnd_t);
};

template <Unary f>
int Settle(mpfr_t result, mpfr_t const x, mpfr_t const /*second*/, mpfr_rnd_t rounding) {
    return f(result, x, rounding);
}

// clang-format off
constexpr Function kFunctions[] = {
    {"sin", [](double x, double) { return std::sin(x); }, [](long double x, long double) { return std::sin(x); }, Settle<mpfr_sin>},
    {"cos", [](double x, double) { return std::cos(x); }, [](long double x, long double) { return std::cos(x); }, Settle<mpfr_cos>},
    {"tan", [](double x, double) { return std::tan(x); }, [](long double x, long double) { return std::tan(x); }, Settle<mpfr_tan>},
    {"asin", [](double x, double) { return std::asin(x); }, [](long double x, long double) { return std::asin(x); }, Settle<mpfr_asin>},
    {"acos", [](double x, double) { return std::acos(x); }, [](long double x, long double) { return std::acos(x); }, Settle<mpfr_acos>},
    {"atan2", [](double y, double x) { return std::atan2(y, x); }, [](long double y, long double x) { return std::atan2(y, x); }, mpfr_atan2},
};
// clang-format on

/// The correctly rounded float, and what the correctly rounded double gives that is rounded once more.
struct Exact {
    float value;
    float ofDouble;
};
Exact Settled(Function const& function, float x, float second) {
    mpfr_t a, b, result;
    mpfr_inits2(300, a, b, result, nullptr);
    mpfr_set_flt(a, x, MPFR_RNDN);
    mpfr_set_flt(b, second, MPFR_RNDN);
    function.settle(result, a, b, MPFR_RNDN);
    Exact const exact{mpfr_get_flt(result, MPFR_RNDN), static_cast<float>(mpfr_get_d(result, MPFR_RNDN))};
    mpfr_clears(a, b, result, nullptr);
    return exact;
}

/// Whether the value lies so near to the middle between two floats that its own error may decide.
bool IsNearTie(long double value, long double error) {
    auto const rounded = static_cast<float>(value);
    float const infinity = std::numeric_limits<float>::infinity();
    float const next = std::nextafter(rounded, value > rounded ? infinity : -infinity);
    long double const middle = (static_cast<long double>(rounded) + next) / 2;
    return std::abs(value - middle) <= std::abs(value) * error;
}

/// Each float function over all floats; atan2 with a second argument from a hash of the first. In a sample
/// long double judges every input; in the full run it is asked where the double lies within 2^-40 of a tie,
/// so that a platform whose double is worse than that shows in the sample alone. At most two inputs of a
/// function may miss the correctly rounded float, and only where the correctly rounded double lies in the
/// middle between two floats, so that it misses as well.
bool CheckTrigonometry(bool sample) {
    bool good = true;
    for (Function const& function : kFunctions) {
        std::mutex mutex;
        int avoidable = 0;
        std::vector<std::array<float, 2>> misses;
        ForAllWords<char>(function.name, sample ? 64 : 1, [&](std::uint32_t word, char&) {
            if (sample) word += word * 0x9E3779B1U >> 26;  // one of the 64, not always the first
            auto const x = std::bit_cast<float>(word);
            auto const second = std::bit_cast<float>((word * 0x85EBCA6BU ^ word >> 15) * 0xC2B2AE35U);
            double const called = function.called(x, second);
            if (called != called) return;
            if (!sample && std::abs(called) >= double(std::numeric_limits<float>::min())) {
                auto const fraction =
                    static_cast<std::int64_t>(std::bit_cast<std::uint64_t>(called) & 0x1FFFFFFF);
                if (std::abs(fraction - 0x10000000) > 1 << 13) return;
            }
            auto const got = static_cast<float>(called);
            long double const judge = function.judge(x, second);
            if (!IsNearTie(judge, 0x1p-58L) && IsSame(static_cast<float>(judge), got)) return;
            Exact const exact = Settled(function, x, second);
            if (IsSame(exact.value, got)) return;
            std::lock_guard const lock(mutex);
            misses.push_back({x, second});
            avoidable += !IsSame(exact.ofDouble, got);
        });
        std::printf("trig: %s of 2^%d inputs: %zu not correctly rounded, %d of them avoidably", function.name,
                    sample ? 26 : 32, misses.size(), avoidable);
        for (auto const& [x, second] : misses) std::printf(" %a %a", double(x), double(second));
        std::puts("");
        std::fflush(stdout);
        good &= misses.size() <= 2 && avoidable == 0;
    }
    return good;
}

struct WordTally {
    std::uint64_t changed = 0;
    std::uint64_t wrong = 0;
};

/// Packed words to colours and back, and every pair of bytes through what saturates; known is the number of
/// words that do not come back.
template <class T>
bool CheckColour(char const* scalar, std::uint64_t known) {
    using Colour = Color3D<T>;
    std::array<unsigned int, 256>
        returned{};  // what byte b comes back as: b, or one less where the product falls short
    for (unsigned int b = 0; b < 256; ++b)
        returned[b] = static_cast<unsigned int>(std::trunc(double(T(b) * (T(1) / T(255))) * 255));
    auto const tallies = ForAllWords<WordTally>("colour", 1, [&](std::uint32_t word, WordTally& tally) {
        auto const packed = static_cast<unsigned int>(Colour(word));
        tally.changed += packed != word;
        for (int shift = 0; shift < 32; shift += 8)
            tally.wrong += (packed >> shift & 0xFF) != returned[word >> shift & 0xFF];
    });
    WordTally total;
    for (WordTally const& tally : tallies) total = {total.changed + tally.changed, total.wrong + tally.wrong};
    for (unsigned int b = 0; b < 256; ++b) total.wrong += b - returned[b] > 1;

    std::uint64_t unsaturated = 0;
    auto const expect = [&](T got, double wanted) {
        unsaturated +=
            !(0 <= got && got <= 1 && std::abs(255 * double(got) - std::clamp(wanted, 0.0, 255.0)) < 1e-4);
    };
    for (unsigned int i = 0; i < 256; ++i) {
        for (unsigned int j = 0; j < 256; ++j) {
            Colour const a(i * 0x01010101U), b(j * 0x01010101U);
            T const s = b.r;
            auto const expectAll = [&](Colour const& c, double wanted) {
                for (T const channel : {c.r, c.g, c.b, c.a}) expect(channel, wanted);
            };
            double const p = i, q = j;
            expectAll(a + b, p + q);
            expectAll(a - b, p - q);
            expectAll(a * b, p * q / 255);
            expectAll(a * s, p * q / 255);
            expectAll(s * a, p * q / 255);
            if (j > 0) expectAll(a / s, 255 * p / q);
            if (i > 0) expectAll(s / a, 255 * q / p);
            expectAll(PixelShaderAdaptive(a, b, b), 2 * std::min(p * q / 255, 255.0));
            expectAll(PixelShaderSimpleAdaptive(a, a, b), p + p * q / 255);
            Colour c(a);
            expectAll(c += b, p + q);
            expectAll(c = a, p), expectAll(c -= b, p - q);
            expectAll(c = a, p), expectAll(c *= b, p * q / 255);
            expectAll(c = a, p), expectAll(c *= static_cast<int>(j), p * q);
            if (j > 0) expectAll(c = a, p), expectAll(c /= static_cast<int>(j), p / q);
            c = a;
            AdjustBrightness(s, c);
            expect(c.r, p + q), expect(c.g, p + q), expect(c.b, p + q), expect(c.a, p);
        }
    }
    std::printf(
        "colour: %s: %llu of 2^32 words come back one step lower in a channel, %llu wrong; %llu results "
        "wrong\n",
        scalar, static_cast<unsigned long long>(total.changed), static_cast<unsigned long long>(total.wrong),
        static_cast<unsigned long long>(unsaturated));
    return total.changed == known && total.wrong == 0 && unsaturated == 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string_view> const arguments(argv + 1, argv + argc);
    bool const sample = arguments.size() == 2 && arguments[1] == "--sample";
    if (arguments.size() == 1 || sample) {
        if (arguments[0] == "kernel") return CheckKernel() ? 0 : 1;
        if (arguments[0] == "trig") return CheckTrigonometry(sample) ? 0 : 1;
        if (arguments[0] == "colour") {
            bool const good = CheckColour<float>("float", 0);
            return CheckColour<double>("double", 1397944320) && good ? 0 : 1;
        }
    }
    std::fputs("usage: exhaust kernel | trig [--sample] | colour\n", stderr);
    return 2;
}
