#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace korvane {

/// Numbers for names of which many rows have the same few. Number 0 is the empty name.
class NameNumbers {
public:
    std::uint32_t NumberOf(TextView name);
    const Text& Name(std::uint32_t number) const { return names_[number]; }
    void Clear();

private:
    std::vector<Text> names_{Text()};
    std::unordered_map<Text, std::uint32_t> numbers_{{Text(), 0}};
    /// Rows that follow one another mostly have the same name.
    std::uint32_t last_ = 0;
};

} // namespace korvane
