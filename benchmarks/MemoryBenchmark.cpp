#include "MemoryBenchmark.h"

#include "BenchProgram.h"
#include "LimitTable.h"
#include "ResidentMemory.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace korvane::bench {

namespace {

double ResidentGrowth() {
    const std::string command = std::filesystem::read_symlink("/proc/self/exe").string() + " " +
                                kResidentGrowthOption + " " + LimitTablePath();
    FILE* const output = popen(command.c_str(), "r");
    double bytes = 0;
    if (output == nullptr || std::fscanf(output, "%lf", &bytes) != 1 || pclose(output) != 0) std::exit(1);
    return bytes;
}

/// The floor is the size of the file.
void Memory(benchmark::State& state) {
    const auto fileSize = static_cast<double>(LimitTableBytes().size());
    double growth = 0;
    for ([[maybe_unused]] auto _ : state)
        growth = ResidentGrowth();
    state.counters["floor_MB"] = fileSize / 1e6;
    state.counters["resident_MB"] = growth / 1e6;
    state.counters["ratio"] = growth / fileSize;
}

BENCHMARK(Memory)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int PrintResidentGrowth(const std::string& path) {
    BenchProgram program;
    const long before = ResidentKilobytes();
    program.Load(path);
    std::printf("%ld\n", (ResidentKilobytes() - before) * 1024);
    return 0;
}

} // namespace korvane::bench
