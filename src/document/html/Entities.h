#pragma once

#include "common/text/Text.h"

#include <string_view>

namespace korvane::doc::html {

/// Takes the reference at the beginning of the text (`&amp;`, `&#8364;`) away and adds the characters that it
/// means. One that makes no sense is text.
void TakeReference(std::string_view& rest, Text& text);

/// The text of an attribute's value.
Text Unescaped(std::string_view value);

} // namespace korvane::doc::html
