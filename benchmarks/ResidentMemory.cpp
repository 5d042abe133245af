#include "ResidentMemory.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

namespace korvane::bench {

namespace {

long NumberAfter(const char* file, std::string_view title) {
    std::ifstream lines(file);
    for (std::string word; lines >> word;)
        if (long number = 0; word == title && lines >> number) return number;
    std::exit(1);
}

} // namespace

long ResidentKilobytes() {
    return NumberAfter("/proc/self/smaps_rollup", "Rss:");
}

void BeginPeak() {
    // The system forgets the peak so far.
    std::ofstream("/proc/self/clear_refs") << 5;
}

long PeakKilobytes() {
    return NumberAfter("/proc/self/status", "VmHWM:");
}

} // namespace korvane::bench
