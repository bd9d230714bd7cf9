#pragma once

#include <vertra/numeric/vec4d.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
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

/// What an operation on single values is timed over: few enough for the first cache.
inline constexpr int kInputs = 256;

/// Hides from the compiler what becomes of a value: it has to be in memory by now.
template <class Value>
BENCHMARK_ALWAYS_INLINE inline void Consume(Value const& value) {
    Value const* const address = &value;
    benchmark::DoNotOptimize(address);
}

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
        auto const run = [body, calls = calls_, elements](benchmark::State& state) {
            for (auto _ : state) {
                for (int i = 0; i < calls; ++i) {
                    auto const result = body(i);
                    Consume(result);
                }
            }
            state.SetItemsProcessed(state.iterations() * calls * elements);
        };
        benchmark::RegisterBenchmark((name_ + '/' + library).c_str(), run);
    }

private:
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
