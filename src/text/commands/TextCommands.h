#pragma once

#include "common/text/Text.h"

#include <optional>

namespace korvane {

class TextControl;

// Small commands on the text of a control.

/// Moves the left indent of the paragraphs by the first tab, or by `defaultStep` where there is none: to the
/// right without modifiers, back with Shift. With Ctrl and Alt all indents go. Other modifiers do nothing.
void IndentSelection(TextControl& control, int modifiers, int defaultStep);

// These turn an attribute off when all of the selection has it, and on otherwise.
void ToggleBold(TextControl& control);
void ToggleItalic(TextControl& control);
void ToggleUnderline(TextControl& control);

void ClearCharFormat(TextControl& control);
/// Black on yellow.
void MarkYellow(TextControl& control);
/// Exchanges the characters on both sides of the cursor.
void SwapCharacters(TextControl& control);
/// Writes a pair of single quotes with the cursor between them, unless something is selected.
void WriteSingleQuotes(TextControl& control);

/// The typographic form of a double quote or an apostrophe that is typed at the cursor; nothing for other
/// characters.
std::optional<char16_t> SmartQuote(const TextControl& control, TextView typed);

/// The address of the web in the text, from its beginning to the first character that ends one; nothing when
/// there is none.
std::optional<Text> FindUrl(TextView text);

// The next and the previous of the steps in which a text is zoomed. Any other value goes to 100, and so does
// the last step in either direction. Kept for compatibility: zoom-without-ends.
int ZoomIn(int percent);
int ZoomOut(int percent);

} // namespace korvane
