#pragma once

#include "Moment.h"

#include <vector>

namespace korvane::bench {

/// The processor time of all threads of this process.
double ProcessorSeconds();

/// How long each round of a work took.
struct Times {
    std::vector<double> wall;
    std::vector<double> processor;

    template <class Work>
    void Add(const Work& work) {
        const double processorStart = ProcessorSeconds();
        const std::int64_t start = NanosecondsNow();
        work();
        wall.push_back(static_cast<double>(NanosecondsNow() - start) * 1e-9);
        processor.push_back(ProcessorSeconds() - processorStart);
    }
};

void PrintHead();
/// One line of the table that `PrintHead` begins.
void Print(const char* what, const Times& times);

} // namespace korvane::bench
