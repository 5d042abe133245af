#pragma once

#include "common/text/Text.h"

#include <optional>

namespace korvane {

/// The list of words and phrases for repeated use.
class WordList {
public:
    virtual ~WordList() = default;
    /// What the user took from the list; nothing when the list was only closed.
    virtual std::optional<Text> Choose() = 0;
};

} // namespace korvane
