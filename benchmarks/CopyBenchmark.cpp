#include "BenchProgram.h"
#include "Contest.h"
#include "LimitTable.h"
#include "ProceedingUser.h"
#include "dbops/commands/CopyCommands.h"
#include "dbops/windows/frmDelimiterType.h"

#include <cstdlib>
#include <cstring>
#include <memory>

namespace korvane::bench {

namespace {

/// The floor copies the file's bytes into a new buffer. The copied text has nearly twice as many bytes.
void CopyTable(benchmark::State& state) {
    const std::string& file = LimitTableBytes();
    BenchProgram program;
    program.Load();
    ProceedingUser user;
    user.On<frmDelimiterType>([](frmDelimiterType& form) { form.cmdProceed.Press(); });
    App app{{program.files, program.messages, program.clipboard, program.clock, program.screen, program.shell,
             program.instance, user, [] { return nullptr; }}};
    app.Settings.DelimiterString = u"\t";
    const TabContext tab{app, program.table, program.host};
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        const double floor = SecondsOf([&file] {
            const auto copy = std::make_unique_for_overwrite<char[]>(file.size());
            benchmark::DoNotOptimize(std::memcpy(copy.get(), file.data(), file.size()));
        });
        const double work = SecondsOf([&tab] { mnuCopyTableToClipboard_Clack(tab); });
        const Text copied = program.clipboard.GetText();
        if (!copied.ends_with(u"\r\n\r\n")) std::abort();
        state.counters["bytes_copied"] = static_cast<double>(copied.size() * sizeof(char16_t));
        program.clipboard.Clear();
        contest.Round(floor, work);
    }
}

BENCHMARK(CopyTable)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace

} // namespace korvane::bench
