#pragma once

#include "common/text/Text.h"

#include <span>

namespace korvane {

class TextControl;

/// A look for whole paragraphs, under a name that people know. Lengths are in twips.
struct TextStyle {
    TextView name;
    int points;
    bool bold = false;
    bool italic = false;
    int before = 0;
    int after = 0;
    int left = 0;
};

std::span<const TextStyle> TextStyles();
/// The style of which the first selected paragraph has the look; nullptr if it has another look.
const TextStyle* StyleOf(const TextControl& control);
/// Gives the look to the selected paragraphs, in one step to undo.
void ApplyStyle(TextControl& control, const TextStyle& style);

} // namespace korvane
