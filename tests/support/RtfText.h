#pragma once

#include <string>
#include <string_view>

namespace korvane {

/// What a heading's line starts with.
inline constexpr std::string_view kRtfHeading = "# ";

/// The text of a rich-text file as a reader would show it, in the bytes of its code page: a line for each
/// paragraph and for each row of a table, whose cells end in a tab.
std::string RtfText(std::string_view rtf);

} // namespace korvane
