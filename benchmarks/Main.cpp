#include "MemoryBenchmark.h"

#include <benchmark/benchmark.h>

#include <string_view>

int main(int argc, char** argv) {
    using namespace korvane::bench;
    if (argc == 3 && std::string_view(argv[1]) == kResidentGrowthOption) return PrintResidentGrowth(argv[2]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
