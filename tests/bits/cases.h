#pragma once

#include "operations.h"

#include <bit>
#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <limits>

/// The arguments of the operations, case by case, and what takes their results: see operations.h.
namespace bits {

/// A sequence of words, the same everywhere (G. Steele, D. Lea, C. Flood, "Fast Splittable Pseudorandom
/// Number Generators", 2014).
class Random {
public:
    explicit Random(std::uint64_t seed) : state(seed) {}
    std::uint64_t operator()() {
        std::uint64_t z = state += 0x9E3779B97F4A7C15;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
        return z ^ (z >> 31);
    }

private:
    std::uint64_t state;
};

/// The arguments of one case; cases take turns among seven kinds of numbers. Nothing is inlined into the
/// thousand operations, which compile the faster for it.
class Source {
public:
    Source(int number, bool print_)
        : random(static_cast<std::uint64_t>(number)), center(random()), kind(number % 7), print(print_) {}
    template <class T>
    [[gnu::noinline]] void Scalars(T* scalars, std::size_t count) {
        for (; count > 0; --count, ++scalars) {
            *scalars = Draw<T>();
            if (print) std::printf(" %.17g", static_cast<double>(*scalars));
        }
    }
    [[gnu::noinline]] unsigned int Word() {
        auto const word = static_cast<unsigned int>(random() >> 32);
        if (print) std::printf(" %u", word);
        return word;
    }

private:
    template <class T>
    T Draw() {
        constexpr int kExponent = std::numeric_limits<T>::digits - 1;  // where the exponent begins
        constexpr std::uint64_t kBias = std::numeric_limits<T>::max_exponent - 1;
        constexpr std::uint64_t kSign = std::uint64_t(1) << (8 * sizeof(T) - 1);
        constexpr std::uint64_t kMantissa = (std::uint64_t(1) << kExponent) - 1;
        std::uint64_t const word = random();
        auto const number = static_cast<int>(word >> 40);
        auto const withExponent = [&](std::uint64_t biased) {
            std::uint64_t const sign = word << 3 & kSign;
            return std::bit_cast<T>(
                static_cast<vertra::detail::Bits<T>>(sign | biased << kExponent | (word >> 8 & kMantissa)));
        };
        switch (kind) {
            case 0: return static_cast<T>(number % 65 - 32) / 8;              // eighths: sums are exact
            case 1: return static_cast<T>(number % 4 - 1) / 2;                // ties
            case 2: return static_cast<T>(number & 0xFFFF) / 32768 - T(0.5);  // around 0 to 1
            case 3: return withExponent(kBias - 4 + (word & 7));              // around 1
            case 4: return withExponent((center & kBias) + kBias / 2 + (word & 3));  // alike, and far from 1
            case 5: return std::bit_cast<T>(static_cast<vertra::detail::Bits<T>>(word));  // any pattern
            default:
                return (word & 3) == 0 ? Special<T>(word >> 40) : withExponent(kBias - 2 + (word >> 2 & 3));
        }
    }
    template <class T>
    static T Special(std::uint64_t word) {
        using Limits = std::numeric_limits<T>;
        constexpr T kFloatMax = std::numeric_limits<float>::max();
        constexpr T kSpecials[] = {T(0),          -T(0),  Limits::infinity(),   -Limits::infinity(),
                                   T(1e-20F),     T(-1),  Limits::denorm_min(), -Limits::denorm_min(),
                                   Limits::min(), T(1),   Limits::min() / 4,    Limits::quiet_NaN(),
                                   Limits::max(), T(1e9), -Limits::max(),       kFloatMax};
        return kSpecials[word % std::size(kSpecials)];
    }

    Random random;
    std::uint64_t center;
    int kind;
    bool print;
};

class Sink {
public:
    explicit Sink(bool print_) : print(print_) {}
    template <class T>
    [[gnu::noinline]] void Scalars(T const* scalars, std::size_t count) {
        for (; count > 0; --count, ++scalars) {
            bool const isNumber = *scalars == *scalars;  // the sign and payload of a NaN differ by processor
            Add(isNumber ? std::bit_cast<vertra::detail::Bits<T>>(*scalars) : ~std::uint64_t(0));
            if (print) std::printf(isNumber ? " %.17g" : " nan", static_cast<double>(*scalars));
        }
    }
    [[gnu::noinline]] void Number(std::int64_t number) {
        Add(static_cast<std::uint64_t>(number));
        if (print) std::printf(" %" PRId64, number);
    }
    std::uint64_t Hash() const { return hash; }
    int Results() const { return results; }

private:
    void Add(std::uint64_t word) {
        hash = (hash ^ word) * 0x9E3779B97F4A7C15;
        hash ^= hash >> 32;
        ++results;
    }

    std::uint64_t hash = 0;
    int results = 0;
    bool print;
};

}  // namespace bits
