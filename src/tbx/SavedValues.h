#pragma once

#include <string>
#include <string_view>

namespace korvane {

// The text that a save writes for a value that was loaded from this text. A number that doesn't fit its field
// is saved as the value that the field had before.

std::string SavedColour(std::string_view value);
std::string SavedFontSize(std::string_view value);
std::string SavedRowHeight(std::string_view value);
std::string SavedColumnWidth(std::string_view value);
std::string SavedRowColour(std::string_view value);
/// The text for cells that never got a colour.
std::string SavedNoColour();
/// The whole line that holds tick and font of a row.
std::string SavedRowState(std::string_view line);

} // namespace korvane
