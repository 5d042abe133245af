#include "BenchProgram.h"
#include "Contest.h"
#include "LimitTable.h"
#include "RawFile.h"
#include "kept/KeptTables.h"
#include "table/TableFile.h"
#include "testing/MemoryBackground.h"

#include <chrono>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>

namespace korvane::bench {

namespace {

/// The floor copies the bytes into a new buffer and writes them to a new file at once.
void Save(benchmark::State& state) {
    const std::string& bytes = LimitTableBytes();
    const std::string path = LimitTablePath() + ".saved";
    BenchProgram program;
    program.Load();
    program.table.TxtDbFile = FromUtf8(path);
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        std::filesystem::remove(path);
        std::unique_ptr<char[]> copy;
        const double floor = SecondsOf([&] {
            copy = std::make_unique_for_overwrite<char[]>(bytes.size());
            std::memcpy(copy.get(), bytes.data(), bytes.size());
            WriteRaw(path, {copy.get(), bytes.size()});
        });
        copy.reset();
        std::filesystem::remove(path);
        contest.Round(floor, SecondsOf([&program] { SaveThisTable(program.tab); }));
    }
    state.counters["bytes_saved"] = static_cast<double>(std::filesystem::file_size(path));
    std::filesystem::remove(path);
}

/// The floor is the same save over the same file while nothing is kept. The work in the background isn't
/// measured, because the user doesn't wait for it.
void SaveAndKeep(benchmark::State& state) {
    const std::filesystem::path folder = std::filesystem::path(LimitTablePath() + ".kept");
    std::filesystem::create_directory(folder);
    BenchProgram program;
    program.Load();
    program.table.TxtDbFile = FromUtf8((folder / "table.tbx").string());
    SaveThisTable(program.tab);
    MemoryBackground background(program.files, program.clock);
    Contest contest(state);
    {
        KeptTables keeper(program.app, background, FromUtf8((folder / "kept").string()));
        for ([[maybe_unused]] auto _ : state) {
            const double floor = SecondsOf([&program] { SaveThisTable(program.tab); });
            program.app.SetPort<TableKeeper>(&keeper);
            contest.Round(floor, SecondsOf([&program] { SaveThisTable(program.tab); }));
            program.app.SetPort<TableKeeper>(nullptr);
            background.DoAll();
        }
    }
    background.End();
    std::filesystem::remove_all(folder);
}

/// The same for a table that has no file yet. Here keeping doesn't spare the deletion of an old file.
void SaveNewAndKeep(benchmark::State& state) {
    const std::filesystem::path folder = std::filesystem::path(LimitTablePath() + ".kept");
    std::filesystem::create_directory(folder);
    const std::filesystem::path path = folder / "table.tbx";
    BenchProgram program;
    program.Load();
    program.table.TxtDbFile = FromUtf8(path.string());
    MemoryBackground background(program.files, program.clock);
    Contest contest(state);
    auto keeper = std::make_unique<KeptTables>(program.app, background, FromUtf8((folder / "kept").string()));
    const auto save = [&](TableKeeper* with) {
        std::filesystem::remove(path);
        program.app.SetPort<TableKeeper>(with);
        const double seconds = SecondsOf([&program] { SaveThisTable(program.tab); });
        program.app.SetPort<TableKeeper>(nullptr);
        background.DoAll();
        return seconds;
    };
    bool floorFirst = false;
    for ([[maybe_unused]] auto _ : state) {
        // The second save of a round takes longer, whichever of the two it is.
        floorFirst = !floorFirst;
        const double first = save(floorFirst ? nullptr : keeper.get());
        const double second = save(floorFirst ? keeper.get() : nullptr);
        if (floorFirst)
            contest.Round(first, second);
        else
            contest.Round(second, first);
    }
    keeper.reset();
    background.End();
    std::filesystem::remove_all(folder);
}

/// What the user may notice of a draft: the snapshot of the table, and then the copies of what is changed
/// while the draft is written, for which a cell in each 64 rows is typed into. The floor is a save.
void Draft(benchmark::State& state) {
    const std::string path = LimitTablePath() + ".draft";
    BenchProgram program;
    program.Load();
    program.table.TxtDbFile = FromUtf8(path);
    MemoryBackground background(program.files, program.clock);
    Contest contest(state);
    {
        KeptTables keeper(program.app, background, FromUtf8(path + ".kept"));
        program.app.SetPort<TableKeeper>(&keeper);
        for ([[maybe_unused]] auto _ : state) {
            program.app.SetPort<TableKeeper>(nullptr);
            const double floor = SecondsOf([&program] { SaveThisTable(program.tab); });
            program.app.SetPort<TableKeeper>(&keeper);
            const Text typed = FromAscii(std::to_string(program.clock.Uptime().count()));
            {
                const WatchedCommand command(program.tab);
                program.grid.SetCellValue(Row{1}, Col{1}, typed);
                program.table.TableAltered = 1;
            }
            // The work is done later and not measured.
            contest.Round(floor, SecondsOf([&] {
                              background.PassWithoutWork(std::chrono::minutes(1));
                              for (Row row{1}; row <= program.grid.RowCount(); row = row + 64)
                                  program.grid.SetCellValue(row, Col{2}, typed);
                          }));
            background.DoAll();
        }
        program.app.SetPort<TableKeeper>(nullptr);
        keeper.GiveUp(program.tab);
    }
    background.End();
    std::filesystem::remove_all(path + ".kept");
    std::filesystem::remove(path);
}

/// A thousand cells are typed into, each as a command of its own. The floor is the same while nothing is
/// kept.
void TypeAndKeep(benchmark::State& state) {
    constexpr int kCells = 1000;
    const std::string path = LimitTablePath() + ".typed";
    BenchProgram program;
    program.Load();
    program.table.TxtDbFile = FromUtf8(path);
    MemoryBackground background(program.files, program.clock);
    Contest contest(state);
    auto keeper = std::make_unique<KeptTables>(program.app, background, FromUtf8(path + ".kept"));
    int typed = 0;
    const auto type = [&] {
        for (int cell = 1; cell <= kCells; ++cell) {
            const WatchedCommand command(program.tab);
            program.grid.SetCellValue(Row{cell}, Col{1}, FromAscii(std::to_string(++typed)));
            program.table.TableAltered = 1;
        }
    };
    for ([[maybe_unused]] auto _ : state) {
        program.app.SetPort<TableKeeper>(nullptr);
        const double floor = SecondsOf(type);
        program.app.SetPort<TableKeeper>(keeper.get());
        contest.Round(floor, SecondsOf(type));
    }
    program.app.SetPort<TableKeeper>(nullptr);
    keeper->GiveUp(program.tab);
    keeper.reset();
    background.End();
    std::filesystem::remove_all(path + ".kept");
}

BENCHMARK(TypeAndKeep)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(101);
BENCHMARK(SaveAndKeep)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(SaveNewAndKeep)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(Draft)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(Save)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace

} // namespace korvane::bench
