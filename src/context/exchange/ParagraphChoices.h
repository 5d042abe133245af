#pragma once

#include <cstdint>

namespace korvane {

/// What the windows for paragraphs keep as long as the program runs.
struct ParagraphChoices {
    std::int16_t AlignListIndex = 0;
    std::int16_t RightIndentOn = 0;
    /// 1 gives lines a single height when their spacing is removed.
    std::int16_t SingleSpacingOnRemove = 0;
    float ParaSpaceBefore = 0;
    float ParaSpaceAfter = 0;
};

} // namespace korvane
