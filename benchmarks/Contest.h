#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace korvane::bench {

/// Collects the times of a floor and of the work that is compared with it. They run by turns, and the report
/// has the medians of their processor times and the ratio of the two.
class Contest {
public:
    explicit Contest(benchmark::State& state) : state_(state) {}
    Contest(const Contest&) = delete;
    Contest& operator=(const Contest&) = delete;
    ~Contest() {
        state_.counters["floor_ms"] = Median(floors_) * 1000;
        state_.counters["work_ms"] = Median(works_) * 1000;
        state_.counters["ratio"] = Median(works_) / Median(floors_);
    }

    /// Takes the seconds of one round.
    void Round(double floor, double work) {
        floors_.push_back(floor);
        works_.push_back(work);
        state_.SetIterationTime(work);
    }

private:
    static double Median(std::vector<double> seconds) {
        const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
        std::nth_element(seconds.begin(), middle, seconds.end());
        return *middle;
    }

    benchmark::State& state_;
    std::vector<double> floors_;
    std::vector<double> works_;
};

} // namespace korvane::bench
