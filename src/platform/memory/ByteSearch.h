#pragma once

#include <string_view>

namespace korvane {

/// Whether `bytes` holds `part`. Made for long stretches in which it mostly doesn't stand: a block of bytes
/// at a time is ruled out by the first and the last byte of the part.
bool ContainsBytes(std::string_view bytes, std::string_view part);

} // namespace korvane
