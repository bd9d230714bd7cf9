#pragma once

#include <vertra/numeric/vec4d.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// The rooms; each registers its operations.
void RegisterMatrix();
void RegisterQuaternion();
void RegisterVector();
void RegisterSolid();
void RegisterSphere();
void RegisterPlanar();
void RegisterArrays();

/// Whether the callers are optimised; latency and large arrays say nothing where they are not.
#ifdef __OPTIMIZE__
inline constexpr bool kOptimised = true;
#else
inline constexpr bool kOptimised = false;
#endif

/// What an operation on single values is timed over: few enough for the first cache.
inline constexpr int kInputs = 256;

/// Hides from the compiler what becomes of a value: it has to be in memory by now.
template <class Value>
BENCHMARK_ALWAYS_INLINE inline void Consume(Value const& value) {
    Value const* const address = &value;
    benchmark::DoNotOptimize(address);
}

/// Of a peer that has float alone.
template <class T>
inline constexpr bool kFloat = std::is_same_v<T, float>;

/// Values that live until the program ends, since the operations run after they were registered.
template <class Value>
Value const* Keep(std::vector<Value> values) {
    static std::deque<std::vector<Value>> kept;
    return kept.emplace_back(std::move(values)).data();
}

/// The scalars of our values in a peer's type, as many as both hold.
template <class Peer, template <class> class Ours, class T>
Peer const* As(Ours<T> const* ours, int count) {
    std::vector<Peer> peers(static_cast<std::size_t>(count));
    for (Peer& peer : peers) {
        auto const* const scalars = reinterpret_cast<T const*>(ours++);
        std::copy_n(scalars, std::min(sizeof(Peer), sizeof(Ours<T>)) / sizeof(T),
                    reinterpret_cast<T*>(&peer));
    }
    return Keep(std::move(peers));
}

/// Random scalars between -1 and 1, the same in every run.
template <class T>
class Random {
public:
    T Scalar() { return distribution_(engine_); }
    vertra::Vec4D<T> Point() {
        T const x = Scalar();
        T const y = Scalar();
        return vertra::Vec4D<T>(x, y, Scalar());
    }

private:
    std::mt19937 engine_{20240601};
    std::uniform_real_distribution<T> distribution_{-1, 1};
};

/// A pass over all calls of one library's form of an operation, for who counts its instructions.
struct Pass {
    std::string name;
    int calls;
    std::function<void()> run;
};
inline std::vector<Pass>& Passes() {
    static std::vector<Pass> passes;
    return passes;
}

/// Some bits of a result, read where Consume has put it: of the first and the last of its first `scalars`
/// scalars.
template <class T, class Result>
BENCHMARK_ALWAYS_INLINE inline int SomeBits(Result const& result, int scalars) {
    if constexpr (std::is_arithmetic_v<Result>) {
        int bits = 0;
        std::memcpy(&bits, &result, std::min(sizeof(bits), sizeof(result)));
        return bits;
    } else {
        auto const* const bytes = reinterpret_cast<char const*>(&result);
        int first = 0;
        int last = 0;
        std::memcpy(&first, bytes, sizeof(first));
        std::memcpy(&last, bytes + sizeof(T) * static_cast<std::size_t>(scalars - 1), sizeof(last));
        return first | last;
    }
}

/// A row of the table over T. The library that joins first sets the results; one that joins later and gives
/// others ends the program.
template <class T>
class Operation {
public:
    /// Timed over `calls` calls. Of each result the first `scalars` scalars are compared, their error
    /// relative to the largest of them. Where tolerance is 0 the results are yes or no, and one in ten
    /// thousand may differ, as rounding has it on a boundary.
    Operation(std::string const& name, int calls, int scalars, double tolerance)
        : name_(name + (sizeof(T) == 4 ? ", float" : ", double")),
          calls_(calls),
          scalars_(scalars),
          tolerance_(tolerance) {}

    /// body(i) makes call i, which does the work on `elements` elements, and returns the result. A library
    /// may join in several forms, told apart by further words: the table shows its fastest. Results are
    /// compared as toOurs turns them.
    template <class Body, class ToOurs = std::identity>
    void Add(std::string const& library, Body body, int elements = 1, ToOurs toOurs = {}) {
        Check(library, [&](int i) { return toOurs(body(i)); });
        std::string const form = name_ + '/' + library;
        auto const independent = [body, calls = calls_] { Independent(body, calls); };
        Register(form + "/throughput", independent, elements);
        Passes().push_back({form, calls_ * elements, independent});
        if (kOptimised && elements == 1) {
            auto const chained = [body, calls = calls_, scalars = scalars_] {
                Chained(body, calls, scalars);
            };
            Register(form + "/latency", chained, elements);
        }
    }

private:
    template <class Run>
    void Register(std::string const& name, Run run, int elements) {
        auto const timed = [run, items = calls_ * elements](benchmark::State& state) {
            for (auto _ : state) run();
            state.SetItemsProcessed(state.iterations() * items);
        };
        benchmark::RegisterBenchmark(name.c_str(), timed);
    }

    /// Calls that know nothing of each other: the processor works on several at once.
    template <class Body>
    [[gnu::noinline]] static void Independent(Body body, int calls) {
        for (int i = 0; i < calls; ++i) {
            auto const result = body(i);
            Consume(result);
        }
    }

    /// Each call waits for the result before: that makes the next index, by adding some of its bits under a
    /// mask which is zero but which the compiler does not know.
    template <class Body>
    [[gnu::noinline]] static void Chained(Body body, int calls, int scalars) {
        int zero = 0;
        benchmark::DoNotOptimize(zero);
        int const mask = zero;
        int next = 0;
        for (int i = 0; i < calls; ++i) {
            auto result = body(i + next);
            Consume(result);
            next = SomeBits<T>(result, scalars) & mask;
        }
    }

    template <class Body>
    void Check(std::string const& library, Body const& body) {
        bool const first = expected_.empty();
        int wrong = 0;
        for (int i = 0; i < calls_; ++i) {
            auto const result = body(i);
            std::vector<double> numbers;
            if constexpr (std::is_arithmetic_v<decltype(result)>) {
                numbers.push_back(static_cast<double>(result));
            } else {
                auto const* const scalars = reinterpret_cast<T const*>(&result);
                numbers.assign(scalars, scalars + scalars_);
            }
            if (first) expected_.push_back(numbers);
            wrong += Differs(numbers, expected_[static_cast<std::size_t>(i)]);
        }
        if (wrong > (tolerance_ == 0 ? calls_ / 10000 : 0)) {
            std::cerr << name_ << ": " << library << " gives other results in " << wrong << " of " << calls_
                      << " calls\n";
            std::exit(EXIT_FAILURE);
        }
    }

    int Differs(std::vector<double> const& numbers, std::vector<double> const& expected) const {
        double scale = 0;
        double error = 0;
        for (std::size_t c = 0; c < numbers.size(); ++c) {
            scale = std::max(scale, std::abs(expected[c]));
            error = std::max(error, std::abs(numbers[c] - expected[c]));
        }
        return !(error <= scale * tolerance_);
    }

    std::string name_;
    int calls_;
    int scalars_;
    double tolerance_;
    std::vector<std::vector<double>> expected_;
};
