#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <memory>
#include <span>

namespace korvane {

/// A few texts in one piece of memory, for a control that holds a hundred thousand rows of them.
class PackedTexts {
public:
    PackedTexts() = default;
    explicit PackedTexts(std::span<const TextView> texts);

    std::size_t Size() const;
    /// Empty after the last text. Valid as long as the texts are.
    TextView At(std::size_t index) const;

private:
    /// The number of texts, where each of them ends, and their characters.
    std::unique_ptr<char16_t[]> units_;
};

} // namespace korvane
