#include "bench.h"

int main(int argc, char** argv) {
    RegisterMatrix();
    RegisterQuaternion();
    RegisterVector();
    RegisterSolid();
    RegisterSphere();
    RegisterPlanar();
    benchmark::AddCustomContext("compiler", VERTRA_BENCH_COMPILER);
    benchmark::AddCustomContext("flags", VERTRA_BENCH_FLAGS);
    benchmark::AddCustomContext("peers", VERTRA_BENCH_PEERS);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
