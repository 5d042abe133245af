#include "BenchProgram.h"

#include <benchmark/benchmark.h>

namespace korvane::bench {

namespace {

/// Reads what a view needs to paint 40 rows somewhere in the table.
void PaintScreen(benchmark::State& state) {
    BenchProgram program;
    program.Load();
    int top = 1;
    for ([[maybe_unused]] auto _ : state) {
        for (Row row{top}; row < Row{top + 40}; ++row)
            for (Col col{1}; col <= MaxColumns; ++col) {
                benchmark::DoNotOptimize(program.grid.CellText(row, col));
                benchmark::DoNotOptimize(program.grid.CellBackColor(row, col));
            }
        top = (top * 7919) % 32000 + 1;
    }
}

void SortByFirstColumn(benchmark::State& state) {
    BenchProgram program;
    program.Load();
    SortOrder order = SortOrder::Ascending;
    for ([[maybe_unused]] auto _ : state) {
        program.grid.SortByColumn(Col{1}, order);
        order = order == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
    }
}

/// Copies the texts of the first column to the second, cell by cell.
void RewriteColumn(benchmark::State& state) {
    BenchProgram program;
    program.Load();
    for ([[maybe_unused]] auto _ : state)
        for (Row row{1}; row <= kMaxRows; ++row)
            program.grid.SetCellValue(row, Col{2}, program.grid.CellValue(row, Col{1}) + u"!");
}

BENCHMARK(PaintScreen)->Unit(benchmark::kMicrosecond);
BENCHMARK(SortByFirstColumn)->Unit(benchmark::kMillisecond);
BENCHMARK(RewriteColumn)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace korvane::bench
