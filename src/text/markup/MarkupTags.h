#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <span>

namespace korvane {

/// What a tag does with the text between its two parts.
enum class TagLook : std::uint8_t { Italic, Bold, Underline, Strikethru, Raised, Lowered, Heading };

struct MarkupTag {
    TextView opening;
    TextView closing;
    /// The entry in the list of tags.
    TextView label;
    TagLook look;
    /// What a heading adds to the size of its characters.
    int larger = 0;
};

/// The tags in the order of their list. Only capitals count. Kept for compatibility: tags-in-capitals.
std::span<const MarkupTag> MarkupTags();

/// The two parts of the tag at that place of the list; empty ones outside of it.
struct TagPair {
    TextView HtmlTagOpen;
    TextView HtmlTagClose;
};
TagPair GetTagPair(int index);

} // namespace korvane
