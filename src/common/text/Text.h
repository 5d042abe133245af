#pragma once

#include <string>
#include <string_view>

namespace korvane {

/// Text as the rules count it: one unit is one character. Positions count from 1 unless told otherwise.
using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView kCrLf = u"\r\n";

/// The text of plain ASCII bytes (names in the source, numbers).
Text FromAscii(std::string_view ascii);
/// UTF-8 to Text; an ill-formed byte becomes U+FFFD, a character outside the 16-bit plane a pair of units.
Text FromUtf8(std::string_view utf8);
/// Whether every byte belongs to a well-formed UTF-8 character.
bool IsUtf8(std::string_view bytes);
/// Text to UTF-8; a lone surrogate becomes U+FFFD.
std::string ToUtf8(TextView text);

/// The text from position `start` (1-based) on, at most `length` units; empty when `start` is past the end.
TextView Mid(TextView text, std::size_t start, std::size_t length = TextView::npos);
/// The first `length` units, or all.
TextView Left(TextView text, std::size_t length);
/// The last `length` units, or all.
TextView Right(TextView text, std::size_t length);
/// Position (1-based) of the first occurrence of `part` from `start` on; 0 when there is none.
std::size_t InStr(TextView text, TextView part, std::size_t start = 1);
/// Position (1-based) of the last occurrence of `part`; 0 when there is none.
std::size_t InStrRev(TextView text, TextView part);
/// Without leading and trailing blanks (0x20 only).
TextView Trim(TextView text);

} // namespace korvane
