#pragma once

#include <string>
#include <vector>

namespace korvane::bench {

/// How long a program took by the clock, and how much of the processor's time; 0 where that isn't known.
struct Seconds {
    double wall = 0;
    double processor = 0;
};

/// One of the programs that are started by turns. The first one is the floor.
struct Start {
    const char* name;
    std::vector<std::string> command;
    Seconds (*measure)(const std::vector<std::string>& command);
};

/// Runs the programs by turns and prints a table of the medians. The first start of each one isn't counted.
/// It brings all files into memory.
void MeasureByTurns(const std::vector<Start>& starts, int rounds);

/// Ends the benchmark.
[[noreturn]] void Fail(const char* what);

} // namespace korvane::bench
