#include "BenchProgram.h"
#include "Contest.h"
#include "LimitTable.h"
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

/// `floor()` hands out what it made, so that freeing it isn't measured.
template <class Floor>
void HoldAgainst(const Floor& floor, benchmark::State& state) {
    LimitTablePath();
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        decltype(floor()) made;
        const double floorSeconds = SecondsOf([&] { made = floor(); });
        made = {};
        const auto program = std::make_unique<BenchProgram>();
        contest.Round(floorSeconds, SecondsOf([&program] { program->Load(); }));
    }
}

/// Floor: the file read into a fresh buffer, and memchr from each CR to the next.
void Load(benchmark::State& state) {
    const auto floor = [] {
        RawFile raw = ReadRaw(LimitTablePath());
        benchmark::DoNotOptimize(CountCr(raw.View()));
        return raw;
    };
    HoldAgainst(floor, state);
}

/// The same with the file read as the program does, into large pages where there are any: what is left is the
/// work on the bytes.
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
