#include "BenchProgram.h"
#include "Contest.h"
#include "LimitTable.h"
#include "ProceedingUser.h"
#include "RawFile.h"
#include "context/ports/SystemFileDialog.h"
#include "dbops/commands/ExcelExport.h"
#include "dbops/windows/frmChooseRange.h"
#include "platform/xls/XlsSpreadsheet.h"

#include <cstring>
#include <filesystem>
#include <memory>
#include <string>

namespace korvane::bench {

namespace {

/// Always chooses the same file.
class OneFile final : public SystemFileDialog {
public:
    explicit OneFile(const std::string& path) : path_(FromUtf8(path)) {}
    std::optional<Text> Choose(const Request&) override { return path_; }

private:
    Text path_;
};

/// The floor copies the bytes of the exported file into a new buffer and writes them to a new file at once.
void ExportXls(benchmark::State& state) {
    const std::string path = LimitTablePath() + ".xls";
    OneFile dialog(path);
    BenchProgram program;
    program.Load();
    ProceedingUser user;
    user.On<frmChooseRange>([](frmChooseRange& form) { form.cmdProceed.Press(); });
    App app{{program.files, program.messages, program.clipboard, program.clock, program.screen, program.shell,
             program.instance, user, [] { return nullptr; }, CodePage::Windows1252(), nullptr,
             [&program] { return std::make_unique<XlsSpreadsheet>(program.files, program.shell); }}};
    app.SetPort<SystemFileDialog>(&dialog);
    const TabContext tab{app, program.table, program.host};
    mnuExport_Excel_Clack(tab);
    const RawFile exported = ReadRaw(path);
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        std::filesystem::remove(path);
        std::unique_ptr<char[]> copy;
        const double floor = SecondsOf([&] {
            copy = std::make_unique_for_overwrite<char[]>(exported.size);
            std::memcpy(copy.get(), exported.bytes.get(), exported.size);
            WriteRaw(path, {copy.get(), exported.size});
        });
        copy.reset();
        std::filesystem::remove(path);
        contest.Round(floor, SecondsOf([&tab] { mnuExport_Excel_Clack(tab); }));
    }
    state.counters["bytes_written"] = static_cast<double>(std::filesystem::file_size(path));
    std::filesystem::remove(path);
}

BENCHMARK(ExportXls)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(7);

} // namespace

} // namespace korvane::bench
