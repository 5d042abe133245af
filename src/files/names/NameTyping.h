#pragma once

#include "common/number/DateTime.h"
#include "common/text/Text.h"

#include <span>

// The typing aids of the windows in which names of files and folders are typed.

namespace korvane {

// The words that keep a small first letter. The two lists differ. Kept for
// compatibility: two-lists-of-capital-words.
std::span<const TextView> SmallWordsOfNewFolders();
std::span<const TextView> SmallWordsOfNewNames();

/// A tidy name for a phrase: without outer blanks, each word with a capital unless it is listed exactly so in
/// `smallWords`, the first letter a capital in any case, and "_" for each blank.
Text UnderscoreCaps(TextView phrase, std::span<const TextView> smallWords);

/// The name with the date as "_(21-Nov-2026)" in front of its last point, or at its end when it has none.
Text WithDate(TextView name, const DateTime& today, const DateNames& names);

/// The name with the next extension: ".docx", ".txt", ".rtf" and round again, case ignored. A name without a
/// point gets ".txt"; one with another extension stays.
Text WithNextExtension(TextView name);

/// What is before the name's first point, and ".docx".
Text AsDocx(TextView name);

/// The name with "_" for each blank, comma, semicolon and colon, and for each point but the last.
Text Tidied(TextView name);

/// The pattern that lists files with the extension of the cycle that the name has; empty when it has none of
/// them.
TextView PatternOf(TextView name);

} // namespace korvane
