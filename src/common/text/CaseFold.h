#pragma once

#include "common/text/Text.h"

namespace korvane {

// Capital and small letters in any locale, one unit for one unit: Latin with its accents, Greek and Cyrillic.
// Letters with different accents are different, and a letter without a partner of one unit (the sharp s)
// stays as it is.

char16_t ToUpper(char16_t character);
char16_t ToLower(char16_t character);
Text ToUpper(TextView text);
Text ToLower(TextView text);

/// Whether two characters are alike apart from capital and small.
bool SameLetter(char16_t a, char16_t b);
/// All characters that are alike so, with this one.
Text LettersLike(char16_t character);

bool EqualIgnoringCase(TextView a, TextView b);
bool EndsWithIgnoringCase(TextView text, TextView end);
/// As `InStr`, with capital and small letters alike.
std::size_t InStrIgnoringCase(TextView text, TextView part, std::size_t start = 1);
bool ContainsIgnoringCase(TextView text, TextView part);

} // namespace korvane
