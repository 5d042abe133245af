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
    /// Shows the list with the lines of a selected text added to it. Nothing is taken from it.
    virtual void Collect(TextView selection) = 0;
};

} // namespace korvane
