#include "BenchProgram.h"
#include "Contest.h"
#include "LimitTable.h"
#include "RawFile.h"
#include "table/TableFile.h"

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

BENCHMARK(Save)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace

} // namespace korvane::bench
