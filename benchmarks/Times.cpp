#include "Times.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace korvane::bench {

namespace {

double Quantile(std::vector<double> seconds, double part) {
    std::sort(seconds.begin(), seconds.end());
    return seconds[static_cast<std::size_t>(part * static_cast<double>(seconds.size() - 1))];
}

} // namespace

double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void PrintHead() {
    std::printf("| what | processor, median | processor, longest | wall clock, median |\n");
    std::printf("| --- | --- | --- | --- |\n");
}

void Print(const char* what, const Times& times) {
    std::printf("| %s | %.1f ms | %.1f ms | %.1f ms |\n", what, Quantile(times.processor, 0.5) * 1e3,
                Quantile(times.processor, 1) * 1e3, Quantile(times.wall, 0.5) * 1e3);
    std::fflush(stdout);
}

} // namespace korvane::bench
