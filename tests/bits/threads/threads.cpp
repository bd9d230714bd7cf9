// Runs every operation in two threads at once on the same constant arguments, under the thread sanitizer, and
// compares what they find with the result of one alone; see scripts/hostile.

#include "../cases.h"
#include "../operations.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string_view>
#include <thread>
#include <tuple>

namespace bits {
namespace {

constexpr int kCases = 14;  // each kind of number twice
int operations = 0;
int failures = 0;

/// What must be done before an object is shared: the line computes its normal when it is first asked.
void Prepare(auto&) {}
template <class T>
void Prepare(Line2D<T>& line) {
    line.ComputeNormal();
}

/// Not in the template, of which there are a thousand.
void Compare(std::string_view name, int number, std::function<void(std::uint64_t&)> const& run) {
    std::array<std::uint64_t, 3> hashes{};
    { std::jthread const first(run, std::ref(hashes[0])), second(run, std::ref(hashes[1])); }
    run(hashes[2]);
    if (hashes[0] == hashes[2] && hashes[1] == hashes[2]) return;
    std::printf("%.*s: case %d differs in a thread\n", int(name.size()), name.data(), number);
    ++failures;
}

struct Visitor {
    template <class F>
    void operator()(std::string_view name, F const& operation, Kind = Kind::arithmetic) const {
        using Operation = detail::Signature<F>;
        ++operations;
        for (int number = 0; number < kCases; ++number) {
            typename Operation::Arguments shared;
            Source source(number, false);
            Operation::Make(shared, source);
            std::apply([](auto&... argument) { (Prepare(argument), ...); }, shared);
            Compare(name, number, [&](std::uint64_t& hash) {
                typename Operation::Arguments own;
                Source again(number, false);
                Operation::Make(own, again);
                Sink sink(false);
                Operation::Run(operation, shared, own, sink);
                hash = sink.Hash();
            });
        }
    }
};

}  // namespace
}  // namespace bits

int main() {
    bits::VisitFamilies<float>([](auto) { return bits::Visitor(); });
    bits::VisitFamilies<double>([](auto) { return bits::Visitor(); });
    bits::Visitor visitor;
    bits::VisitCipher(visitor);
    std::printf("threads: %d operations, %d differences\n", bits::operations, bits::failures);
    return bits::failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
