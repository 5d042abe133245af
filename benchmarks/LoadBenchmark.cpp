#include "BenchProgram.h"
#include "Contest.h"
#include "LimitTable.h"
#include "Moment.h"
#include "RawFile.h"

#include <cstring>
#include <memory>

namespace korvane::bench {

namespace {

std::size_t CountCr(std::string_view bytes) {
    std::size_t count = 0;
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at != end; ++at, ++count) {
        at = static_cast<const char*>(std::memchr(at, '\r', static_cast<std::size_t>(end - at)));
        if (at == nullptr) break;
    }
    return count;
}

/// A load reads rows in two threads, so both are measured by the clock.
/// `floor` returns what it made, so that the time for freeing it isn't counted.
template <class Floor>
void HoldAgainst(const Floor& floor, benchmark::State& state) {
    LimitTablePath();
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        decltype(floor()) made;
        const double floorSeconds = ClockSecondsOf([&] { made = floor(); });
        made = {};
        const auto program = std::make_unique<BenchProgram>();
        contest.Round(floorSeconds, ClockSecondsOf([&program] { program->Load(); }));
    }
}

/// The floor reads the file into a new buffer and goes from each CR to the next with memchr.
void Load(benchmark::State& state) {
    const auto floor = [] {
        RawFile raw = ReadRaw(LimitTablePath());
        benchmark::DoNotOptimize(CountCr(raw.View()));
        return raw;
    };
    HoldAgainst(floor, state);
}

/// This floor reads the file as the program does, into large pages where the system has them. The difference
/// is the work on the bytes.
void LoadOverOwnReading(benchmark::State& state) {
    const auto floor = [] {
        auto bytes = NativeFileSystem(u"/").ReadAll(FromUtf8(LimitTablePath()));
        benchmark::DoNotOptimize(CountCr(bytes->View()));
        return bytes;
    };
    HoldAgainst(floor, state);
}

BENCHMARK(Load)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);
BENCHMARK(LoadOverOwnReading)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace

} // namespace korvane::bench
