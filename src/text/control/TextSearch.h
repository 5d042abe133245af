#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace korvane {

/// What is looked for in a text, and how.
struct TextSearch {
    Text pattern{};
    bool matchCase = false;
    bool wholeWords = false;
    bool up = false;

    /// The first place at or after `from`; upwards, the last one that ends at or before it. Nothing when
    /// there is none.
    std::optional<std::size_t> Find(TextView text, std::size_t from) const;
    /// All places from the beginning on, of which none is in another.
    std::vector<std::size_t> FindAll(TextView text) const;
    /// Whether the text is just what is looked for.
    bool Is(TextView text) const;
};

} // namespace korvane
