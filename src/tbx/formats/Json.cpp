#include "tbx/formats/Json.h"

namespace korvane {

namespace {

void AppendUnitEscape(char16_t unit, std::string& json) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    json += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        json += kDigits[(unit >> shift) & 0xF];
}

bool NeedsBackslash(char16_t unit) {
    return unit == u'"' || unit == u'\\';
}

/// The letter of a control character's short escape; 0 when it has none.
char EscapeLetter(char16_t unit) {
    constexpr std::u16string_view kUnits = u"\b\t\n\f\r\"\\";
    constexpr std::string_view kLetters = "btnfr\"\\";
    const std::size_t at = kUnits.find(unit);
    return at == kUnits.npos ? '\0' : kLetters[at];
}

/// Appends a unit that JSON doesn't allow as it is.
void AppendUtf8JsonEscape(char16_t unit, std::string& json) {
    if (const char letter = EscapeLetter(unit)) {
        json += '\\';
        json += letter;
    } else {
        AppendUnitEscape(unit, json);
    }
}

bool StandsInJson(char16_t unit) {
    return unit >= 0x20 && unit != 0x7F && !NeedsBackslash(unit);
}

} // namespace

void AppendAsciiJson(TextView text, std::string& json) {
    json += '"';
    AppendAsciiJsonPiece(text, json);
    json += '"';
}

void AppendAsciiJsonPiece(TextView piece, std::string& json) {
    for (const char16_t unit : piece) {
        if (unit < 0x20 || unit > 0x7E) {
            AppendUnitEscape(unit, json);
            continue;
        }
        if (NeedsBackslash(unit)) json += '\\';
        json += static_cast<char>(unit);
    }
}

void AppendUtf8Json(TextView text, std::string& json) {
    json += '"';
    AppendUtf8JsonPiece(text, json);
    json += '"';
}

void AppendUtf8JsonPiece(TextView piece, std::string& json) {
    for (std::size_t at = 0; at < piece.size();) {
        std::size_t end = at;
        while (end < piece.size() && StandsInJson(piece[end]))
            ++end;
        if (end > at) json += ToUtf8(piece.substr(at, end - at));
        if (end < piece.size()) AppendUtf8JsonEscape(piece[end++], json);
        at = end;
    }
}

} // namespace korvane
