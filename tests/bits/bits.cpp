// Hashes the results of every operation, to be compared with those of another compiler or processor.
//
//     bits                                   the hash of each family and scalar
//     bits --operations                      the hash of each operation
//     bits --cases FAMILY SCALAR OPERATION   every case of an operation: its arguments and its results
//     bits --up | --down | --zero            the hash of each family and scalar, rounded another way

#include "cases.h"
#include "operations.h"

#include <algorithm>
#include <cfenv>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

namespace bits {
namespace {

/// Of every operation, at least: some have one result a case, a matrix has sixteen.
constexpr int kResults = 200'000;
constexpr int kCases = 20'000;

/// What the command line asks for.
struct Request {
    bool operations = false;
    std::string_view family, scalar, operation;  // of which to print the cases, or none
};

/// The visitor of a family, in one of the scalars.
class Visitor {
public:
    Visitor(Request const& request_, std::string_view family_, std::string_view scalar_)
        : request(request_), family(family_), scalar(scalar_) {}
    Visitor(Visitor const&) = delete;
    Visitor& operator=(Visitor const&) = delete;
    ~Visitor() {
        if (!request.operations && request.operation.empty())
            std::printf("%s %s %016" PRIx64 "\n", family.data(), scalar.data(), hash);
    }

    template <class F>
    void operator()(std::string_view name, F const&, Kind kind = Kind::arithmetic) {
        if (kind == kTrigonometric && scalar == "double") return;
        RunCases(name, [](Source& source, Sink& sink) { Run(F(), source, sink); });
    }

private:
    void RunCases(std::string_view name, void (*run)(Source&, Sink&)) {
        bool const print = !request.operation.empty();
        if (print && (family != request.family || scalar != request.scalar || name != request.operation))
            return;
        Sink sink(print);
        for (int number = 0; number < kCases || sink.Results() < kResults; ++number) {
            Source source(number, print);
            if (print) std::printf("case %d:", number);
            run(source, sink);
            if (print) std::puts("");
        }
        hash = hash * 31 + sink.Hash();
        if (request.operations)
            std::printf("%s %s %s\t%016" PRIx64 "\n", family.data(), scalar.data(), name.data(), sink.Hash());
    }

    Request const& request;
    std::string_view family, scalar;
    std::uint64_t hash = 0;
};

}  // namespace
}  // namespace bits

int main(int argc, char** argv) {
    std::vector<std::string_view> const arguments(argv + 1, argv + argc);
    constexpr std::pair<std::string_view, int> kRoundings[] = {
        {"--up", FE_UPWARD}, {"--down", FE_DOWNWARD}, {"--zero", FE_TOWARDZERO}};
    bits::Request request;
    auto const* const rounding = std::ranges::find(kRoundings, arguments.size() == 1 ? arguments[0] : "",
                                                   &std::pair<std::string_view, int>::first);
    if (rounding != std::end(kRoundings)) {
        std::fesetround(rounding->second);
    } else if (arguments.size() == 1 && arguments[0] == "--operations") {
        request.operations = true;
    } else if (arguments.size() == 4 && arguments[0] == "--cases") {
        request = {false, arguments[1], arguments[2], arguments[3]};
    } else if (!arguments.empty()) {
        std::fputs("usage: bits [--operations | --cases FAMILY SCALAR OPERATION | --up | --down | --zero]\n",
                   stderr);
        return 2;
    }
    bits::VisitFamilies<float>([&](auto family) { return bits::Visitor(request, family, "float"); });
    bits::VisitFamilies<double>([&](auto family) { return bits::Visitor(request, family, "double"); });
    bits::Visitor cipher(request, "cipher", "bytes");
    bits::VisitCipher(cipher);
}
