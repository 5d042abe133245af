#include "StartTurns.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace korvane::bench {

namespace {

double Median(const std::vector<Seconds>& starts, double Seconds::*part) {
    std::vector<double> seconds;
    for (const Seconds& start : starts)
        seconds.push_back(start.*part);
    const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}

/// One line of the table. The floor's own line has the ratio 1.
class Line {
public:
    explicit Line(const std::vector<Seconds>& floor) : floor_(floor) {}

    void Print(const char* name, const std::vector<Seconds>& taken) const {
        std::printf("| %s |", name);
        PrintPart(taken, &Seconds::wall);
        if (HasProcessor()) PrintPart(taken, &Seconds::processor);
        std::printf("\n");
    }
    bool HasProcessor() const { return Median(floor_, &Seconds::processor) > 0; }

private:
    void PrintPart(const std::vector<Seconds>& taken, double Seconds::*part) const {
        const double seconds = Median(taken, part);
        std::printf(" %.0f ms | %.2f |", seconds * 1e3, seconds / Median(floor_, part));
    }

    const std::vector<Seconds>& floor_;
};

void Report(const std::vector<Start>& starts, const std::vector<std::vector<Seconds>>& taken) {
    const Line line(taken[0]);
    std::printf(line.HasProcessor()
                    ? "| start | wall clock | ratio | processor | ratio |\n| --- | --- | --- | --- | --- |\n"
                    : "| start | wall clock | ratio |\n| --- | --- | --- |\n");
    for (std::size_t i = 0; i < starts.size(); ++i)
        line.Print(starts[i].name, taken[i]);
}

} // namespace

void MeasureByTurns(const std::vector<Start>& starts, int rounds) {
    for (const Start& start : starts)
        start.measure(start.command);
    std::vector<std::vector<Seconds>> taken(starts.size());
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < starts.size(); ++i)
            taken[i].push_back(starts[i].measure(starts[i].command));
    Report(starts, taken);
}

void Fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

} // namespace korvane::bench
