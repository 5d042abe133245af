#include "BenchProgram.h"
#include "ProceedingUser.h"
#include "dbops/commands/ColumnCommands.h"
#include "dbops/commands/RowCommands.h"
#include "dbops/commands/RowHeight.h"
#include "dbops/commands/RowLookCommands.h"
#include "dbops/commands/TickCommands.h"
#include "dbops/windows/frmRowColour.h"
#include "dbops/windows/frmSetRowHeight.h"

#include <benchmark/benchmark.h>

#include <functional>

namespace korvane::bench {

namespace {

/// Measures `work` on the table at the limit, with `prepare` outside the time.
void Measure(benchmark::State& state, ProceedingUser user, const std::function<void(BenchProgram&)>& prepare,
             void (*work)(const TabContext&)) {
    BenchProgram program;
    program.Load();
    App app{{program.files, program.messages, program.clipboard, program.clock, program.screen, program.shell,
             program.instance, user, [] { return nullptr; }}};
    const TabContext tab{app, program.table, program.host, &program.history};
    for ([[maybe_unused]] auto _ : state) {
        program.messages.QueueAnswer(Answer::Yes);
        prepare(program);
        state.SetIterationTime(SecondsOf([&] {
            const TableStep step(program.history);
            work(tab);
        }));
    }
}

void Nothing(BenchProgram&) {}

void TickHalf(BenchProgram& program) {
    for (Row row{1}; row <= program.grid.RowCount(); row = row + 2)
        program.grid.SetCellCheck(row, 1);
}

void SelectRowsByColour(benchmark::State& state) {
    ProceedingUser user;
    user.On<frmRowColour>([](frmRowColour& form) { form.cmdSelect.Press(); });
    Measure(state, user, Nothing, &mnuFormat_RowColour_Clack);
}

void FilterToAttribute(benchmark::State& state) {
    ProceedingUser user;
    user.On<frmRowColour>([](frmRowColour& form) { form.cmdFilterToAttribute.Press(); });
    Measure(state, user, Nothing, &mnuFormat_RowColour_Clack);
}

void SetRowHeights(benchmark::State& state) {
    ProceedingUser user;
    user.On<frmSetRowHeight>([](frmSetRowHeight& form) { form.cmdProceed.Press(); });
    Measure(state, user, Nothing, &mnuEdit_SetRowHeight_Clack);
}

void TickAll(benchmark::State& state) {
    Measure(state, {}, Nothing, &mnuSelAll_TickBoxes_Clack);
}

void MarkTickedRows(benchmark::State& state) {
    Measure(state, {}, TickHalf, &mnuDel_CheckedRows_Clack);
}

void MoveRow(benchmark::State& state) {
    Measure(
        state, {}, [](BenchProgram& program) { program.grid.SetCurRow(Row{16000}); }, &mnuRowDown_Clack);
}

/// Of a table that has 24 columns again each time: the texts of all columns move and the last one's go.
void InsertColumn(benchmark::State& state) {
    Measure(
        state, {}, [](BenchProgram& program) { program.grid.SetCurCol(Col{1}); },
        &mnuEdit_InsertColumn_Clack);
}

void RemoveColumn(benchmark::State& state) {
    Measure(
        state, {},
        [](BenchProgram& program) {
            program.Load();
            program.grid.SetCurCol(Col{1});
        },
        &mnuEdit_DeleteColumn_Clack);
}

BENCHMARK(SelectRowsByColour)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(FilterToAttribute)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(SetRowHeights)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(TickAll)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(MarkTickedRows)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(MoveRow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(InsertColumn)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(RemoveColumn)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(11);

} // namespace

} // namespace korvane::bench
