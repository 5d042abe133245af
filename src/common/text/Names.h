#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// What ends a word of a title besides blanks and line ends.
inline constexpr TextView kTitlePunctuation = u"\"'`´!?.:,;-_";

enum class NameCase : std::uint8_t {
    AsTyped,
    /// Capitals on the first letter and on the words that aren't small ("and", "of", "the"...).
    Title,
};

/// The file name made of a title: "  war and peace " gives "War_and_Peace". Outer blanks and, with `Title`,
/// capitals are set in `text` too, which keeps its inner blanks.
Text MakeFileName(Text& text, NameCase nameCase);

/// The text with the capitals of a title. `before` is the character in front of the text, 0 where there is
/// none: the first character becomes a capital only behind a line feed, blank or tab.
Text SmartUpper(TextView text, char16_t before);

/// The first of the characters that no file name may hold, in the order `\/?:*"><|`, that is in the name.
/// They are the same on every system, so that a file keeps its name on all of them.
std::optional<char16_t> ForbiddenCharacter(TextView name);

/// Whether a word ends at the character: blank, tab, line end, form feed or one of `kTitlePunctuation`.
bool IsWordBreak(char16_t character);

/// What stands before the first NUL.
TextView CutAtNul(TextView text);

} // namespace korvane
