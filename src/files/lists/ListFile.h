#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace korvane {

class App;
class CodePage;

/// The lines of a list file's bytes, which end as they like.
std::vector<Text> LinesOfList(std::string_view bytes, const CodePage& page);

/// More than the lines of some ten thousand folders.
inline constexpr std::int64_t kLargestList = 1'000'000;

/// The lines of a list file; nothing when there is none, when it can't be read, and when it can't be a list:
/// it holds a zero byte or is larger than any list.
std::optional<std::vector<Text>> ReadListFile(App& app, TextView path, std::int64_t largest = kLargestList);

/// Puts the lines in place of what the file holds. When it can't be written, a box tells so, and the file is
/// as it was.
bool WriteListFile(App& app, TextView path, const std::vector<Text>& lines);

} // namespace korvane
