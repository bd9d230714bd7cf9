#include "bench.h"

#include <valgrind/callgrind.h>

#include <string_view>

namespace {

/// Longer arrays take the same instructions for an element.
constexpr int kManyCalls = 100000;

/// One pass of each form, each in a profile of its own: under callgrind, for scripts/instructions.
void CountInstructions() {
    CALLGRIND_START_INSTRUMENTATION;
    for (Pass const& pass : Passes()) {
        if (pass.calls > kManyCalls) continue;
        std::string const name = pass.name + '/' + std::to_string(pass.calls);
        CALLGRIND_ZERO_STATS;
        pass.run();
        CALLGRIND_DUMP_STATS_AT(name.c_str());
    }
}

}  // namespace

int main(int argc, char** argv) {
    RegisterMatrix();
    RegisterQuaternion();
    RegisterVector();
    RegisterSolid();
    RegisterSphere();
    RegisterPlanar();
    RegisterArrays();
    if (argc == 2 && std::string_view(argv[1]) == "--instructions") {
        CountInstructions();
        return EXIT_SUCCESS;
    }
    benchmark::AddCustomContext("compiler", VERTRA_BENCH_COMPILER);
    benchmark::AddCustomContext("flags", VERTRA_BENCH_FLAGS);
    benchmark::AddCustomContext("peers", VERTRA_BENCH_PEERS);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
