#include "BenchProgram.h"
#include "Contest.h"
#include "ProceedingUser.h"
#include "dbops/commands/ColumnCommands.h"
#include "dbops/commands/RowCommands.h"
#include "dbops/commands/RowHeight.h"
#include "dbops/commands/RowLookCommands.h"
#include "dbops/commands/TickCommands.h"
#include "dbops/rules/RowColours.h"
#include "dbops/windows/frmRowColour.h"
#include "dbops/windows/frmSetRowHeight.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvane::bench {

namespace {

using Preparation = void (*)(BenchProgram&);

constexpr std::size_t kRows = 32'767;
constexpr std::size_t kCells = kRows * 24;

/// As many numbers as the command changes, with a copy of what they were.
void CopyAndChange(std::size_t count) {
    std::vector<std::uint64_t> numbers(count);
    std::vector<std::uint64_t> before = numbers;
    benchmark::DoNotOptimize(before.data());
    for (std::uint64_t& number : numbers)
        ++number;
    benchmark::DoNotOptimize(numbers.data());
}

/// Measures `work` on the table at the limit against `CopyAndChange` of `changes` numbers. The table is
/// loaded again for each round, because a command that ran before would have nothing to do.
void Measure(benchmark::State& state, ProceedingUser user, Preparation prepare,
             void (*work)(const TabContext&), std::size_t changes) {
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        BenchProgram program;
        App app{{program.files, program.messages, program.clipboard, program.clock, program.screen,
                 program.shell, program.instance, user, [] { return nullptr; }}};
        const TabContext tab{app, program.table, program.host, &program.history};
        program.Load();
        prepare(program);
        program.history.EndStep();
        program.messages.QueueAnswer(Answer::Yes);
        const double floor = SecondsOf([changes] { CopyAndChange(changes); });
        contest.Round(floor, SecondsOf([&] {
                          const TableStep step(program.history);
                          work(tab);
                      }));
        if (!program.history.Undo()) state.SkipWithError("the command changed nothing");
    }
}

void Nothing(BenchProgram&) {}

constexpr int kRed = 3;

void PaintRows(BenchProgram& program) {
    const RowColours red = RowColourChoiceAt(kRed)->ByDialog(Colour{0});
    for (Row row{1}; row <= program.grid.RowCount(); row = row + 8) {
        program.grid.SetRowBackColor(row, red.back);
        program.grid.SetRowForeColor(row, red.text);
    }
}

/// One row in eight has the colours that are searched for.
void SelectRowsByColour(benchmark::State& state) {
    ProceedingUser user;
    user.On<frmRowColour>([](frmRowColour& form) {
        form.lstColourOptions.SetListIndex(kRed);
        form.cmdSelect.Press();
    });
    Measure(state, user, &PaintRows, &mnuFormat_RowColour_Clack, kRows);
}

/// One row in ten has the attribute that is searched for.
void FilterToAttribute(benchmark::State& state) {
    ProceedingUser user;
    user.On<frmRowColour>([](frmRowColour& form) {
        form.optAttribute[static_cast<std::size_t>(CellFlag::Bold)].Press();
        form.cmdFilterToAttribute.Press();
    });
    Measure(state, user, &Nothing, &mnuFormat_RowColour_Clack, kRows);
}

void SetRowHeights(benchmark::State& state) {
    constexpr int kOtherHeight = 40;
    ProceedingUser user;
    user.On<frmSetRowHeight>([](frmSetRowHeight& form) {
        form.cboRowHeight.SetListIndex(kOtherHeight - 1);
        form.cmdProceed.Press();
    });
    Measure(state, user, &Nothing, &mnuEdit_SetRowHeight_Clack, kRows);
}

/// One row in four is ticked already.
void TickAll(benchmark::State& state) {
    Measure(state, {}, &Nothing, &mnuSelAll_TickBoxes_Clack, kRows);
}

/// One row in four is ticked.
void MarkTickedRows(benchmark::State& state) {
    Measure(state, {}, &Nothing, &mnuDel_CheckedRows_Clack, kRows);
}

void MoveRow(benchmark::State& state) {
    const auto goToTheMiddle = [](BenchProgram& program) { program.grid.SetCurRow(Row{16000}); };
    Measure(state, {}, goToTheMiddle, &mnuRowDown_Clack, kRows);
}

/// The texts of all columns move, and those of the last column are dropped.
void InsertColumn(benchmark::State& state) {
    Measure(state, {}, &Nothing, &mnuEdit_InsertColumn_Clack, kCells);
}

void RemoveColumn(benchmark::State& state) {
    Measure(state, {}, &Nothing, &mnuEdit_DeleteColumn_Clack, kCells);
}

BENCHMARK(SelectRowsByColour)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(FilterToAttribute)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(SetRowHeights)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(TickAll)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(MarkTickedRows)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(MoveRow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(InsertColumn)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(RemoveColumn)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace

} // namespace korvane::bench
