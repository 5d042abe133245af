#include "BenchProgram.h"
#include "Contest.h"
#include "LimitTable.h"
#include "grid/Grid.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace korvane::bench {

namespace {

/// The floor is one memmem over the file's bytes. No cell contains the text, so both search everything.
void Find(benchmark::State& state, const std::string& text) {
    const std::string& file = LimitTableBytes();
    BenchProgram program;
    program.Load();
    const Text part = FromAscii(text);
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        const void* inFile = nullptr;
        const double floor =
            SecondsOf([&] { inFile = memmem(file.data(), file.size(), text.data(), text.size()); });
        std::optional<CellPosition> inTable;
        const double work = SecondsOf([&] { inTable = program.grid.FindText(part, {Row{1}, Col{1}}); });
        if (inFile != nullptr || inTable) std::abort();
        contest.Round(floor, work);
    }
}

BENCHMARK_CAPTURE(Find, rare_letters, std::string("Quixotic"))
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(41);
BENCHMARK_CAPTURE(Find, common_letters, std::string("the garden is about to return"))
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(41);
BENCHMARK_CAPTURE(Find, two_letters, std::string("tx"))
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(41);

} // namespace

} // namespace korvane::bench
