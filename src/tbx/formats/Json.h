#pragma once

#include "common/text/Text.h"

#include <string>

namespace korvane {

/// Appends the text as a JSON string to `json`, in ASCII alone: quote and backslash after a backslash, any
/// unit outside 0x20 to 0x7E as \u and four hexadecimal digits with small letters.
void AppendAsciiJson(TextView text, std::string& json);

/// The same in UTF-8, with only the control characters escaped, the usual ones by their letter.
void AppendUtf8Json(TextView text, std::string& json);

// The same without the quotes, for a text that comes in pieces.
void AppendAsciiJsonPiece(TextView piece, std::string& json);
void AppendUtf8JsonPiece(TextView piece, std::string& json);

} // namespace korvane
