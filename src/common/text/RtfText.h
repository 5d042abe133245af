#pragma once

#include <string>
#include <string_view>

namespace korvane {

/// The line of a heading starts with this.
inline constexpr std::string_view kRtfHeading = "# ";

/// The text of a rich-text file as a reader would show it, in the bytes of its code page. Each paragraph is a
/// line and so is each row of a table, with a tab after each cell.
std::string RtfText(std::string_view rtf);

} // namespace korvane
