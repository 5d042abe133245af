#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// These characters end a word of a title, besides blanks and line ends.
inline constexpr TextView kTitlePunctuation = u"\"'`´!?.:,;-_";

enum class NameCase : std::uint8_t {
    AsTyped,
    /// Capitals on the first letter and on the words that aren't small ("and", "of", "the"...).
    Title,
};

/// The file name made of a title: "  war and peace " gives "War_and_Peace". `text` loses its outer blanks
/// and, with `Title`, gets its capitals too; it keeps its inner blanks.
Text MakeFileName(Text& text, NameCase nameCase);

/// The text with the capitals of a title. `before` is the character before the text, 0 where there is none.
/// The first character becomes a capital only after a line feed, blank or tab.
Text SmartUpper(TextView text, char16_t before);

/// The first character of the list `\/?:*"><|` that the name contains. No file name may contain these
/// characters on any system, so that a file keeps its name on all of them.
std::optional<char16_t> ForbiddenCharacter(TextView name);

/// Whether a word ends at the character: blank, tab, line end, form feed or one of `kTitlePunctuation`.
bool IsWordBreak(char16_t character);

/// The text up to the first NUL.
TextView CutAtNul(TextView text);

} // namespace korvane
