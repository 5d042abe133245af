#include "document/html/Css.h"

#include "document/model/NameTable.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace korvane::doc::html {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";
constexpr double kLongest = 1'000'000;

struct Unit {
    std::string_view name;
    double twips;
};

constexpr Unit kUnits[] = {{"pt", 20},          {"px", 15},         {"in", 1440},
                           {"cm", 1440 / 2.54}, {"mm", 144 / 2.54}, {"pc", 240}};

struct NamedColour {
    std::string_view name;
    std::int32_t value;
};

constexpr NamedColour kColours[] = {
    {"black", 0},          {"silver", 0xC0C0C0},  {"gray", 0x808080},  {"grey", 0x808080},
    {"white", 0xFFFFFF},   {"maroon", 0x000080},  {"red", 0x0000FF},   {"purple", 0x800080},
    {"fuchsia", 0xFF00FF}, {"magenta", 0xFF00FF}, {"green", 0x008000}, {"lime", 0x00FF00},
    {"olive", 0x008080},   {"yellow", 0x00FFFF},  {"navy", 0x800000},  {"blue", 0xFF0000},
    {"teal", 0x808000},    {"aqua", 0xFFFF00},    {"cyan", 0xFFFF00},  {"orange", 0x00A5FF},
    {"brown", 0x2A2AA5},   {"pink", 0xCBC0FF},    {"gold", 0x00D7FF},
};

std::string_view Trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// The number at the beginning; the rest is what follows it.
std::optional<double> TakeNumber(std::string_view& text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (error != std::errc{} || !std::isfinite(number)) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return std::clamp(number, -kLongest, kLongest);
}

std::int32_t Rounded(double number) {
    return static_cast<std::int32_t>(std::lround(std::clamp(number, -kLongest, kLongest)));
}

std::optional<Colour> HexColour(std::string_view digits) {
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
    if (digits.size() == 3)
        number = (number >> 8 & 15) * 0x110000 | (number >> 4 & 15) * 0x1100 | (number & 15) * 0x11;
    else if (digits.size() != 6)
        return std::nullopt;
    return Colour{static_cast<std::int32_t>((number & 0xFF) << 16 | (number & 0xFF00) | number >> 16)};
}

std::optional<Colour> RgbColour(std::string_view parts) {
    std::int32_t colour = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        parts = Trimmed(parts);
        const std::optional<double> part = TakeNumber(parts);
        if (!part) return std::nullopt;
        colour |= std::clamp(Rounded(*part), 0, 255) << shift;
        parts.remove_prefix(std::min(parts.find_first_of(",) ") + 1, parts.size()));
    }
    return Colour{colour};
}

} // namespace

bool SameWord(std::string_view a, std::string_view lower) {
    return std::ranges::equal(a, lower,
                              [](char x, char y) { return (x >= 'A' && x <= 'Z' ? x | 0x20 : x) == y; });
}

bool TakeDeclaration(std::string_view& style, std::string_view& property, std::string_view& value) {
    while (!style.empty()) {
        // A semicolon in quotes or brackets doesn't end a declaration.
        std::size_t end = 0;
        char quote = 0;
        for (; end < style.size() && (style[end] != ';' || quote != 0); ++end) {
            const char c = style[end];
            if (quote != 0 && c == '\\')
                ++end;
            else if (quote != 0 ? c == quote : c == '"' || c == '\'')
                quote = quote != 0 ? '\0' : c;
        }
        end = std::min(end, style.size());
        const std::string_view declaration = style.substr(0, end);
        style.remove_prefix(std::min(end + 1, style.size()));
        const std::size_t colon = declaration.find(':');
        if (colon == std::string_view::npos) continue;
        property = Trimmed(declaration.substr(0, colon));
        value = Trimmed(declaration.substr(colon + 1));
        return true;
    }
    return false;
}

std::string_view TakeWord(std::string_view& value) {
    value = Trimmed(value);
    const std::size_t end = std::min(value.find_first_of(kBlanks), value.size());
    const std::string_view word = value.substr(0, end);
    value.remove_prefix(end);
    return word;
}

std::optional<std::int32_t> LengthOf(std::string_view value, std::int32_t emTwips) {
    const std::optional<double> number = TakeNumber(value);
    if (!number) return std::nullopt;
    if (value.empty()) return *number == 0 ? std::optional(0) : std::nullopt;
    if (SameWord(value, "em") || SameWord(value, "rem")) return Rounded(*number * emTwips);
    for (const Unit& unit : kUnits) {
        if (SameWord(value, unit.name)) return Rounded(*number * unit.twips);
    }
    return std::nullopt;
}

std::optional<std::int32_t> PercentOf(std::string_view value) {
    const std::optional<double> number = TakeNumber(value);
    if (!number || (value != "%" && !value.empty())) return std::nullopt;
    return Rounded(value.empty() ? *number * 100 : *number);
}

std::optional<Colour> ColourOf(std::string_view value) {
    if (value.starts_with('#')) return HexColour(value.substr(1));
    if (value.starts_with("rgb(")) return RgbColour(value.substr(4));
    if (value.starts_with("rgba(")) return RgbColour(value.substr(5));
    for (const NamedColour& colour : kColours) {
        if (SameWord(value, colour.name)) return Colour{colour.value};
    }
    return std::nullopt;
}

Text FirstFont(std::string_view value) {
    if (value.empty()) return {};
    const char quote = value[0] == '"' || value[0] == '\'' ? value[0] : ',';
    std::string name;
    for (std::size_t i = quote == ',' ? 0 : 1; i < value.size() && value[i] != quote; ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) ++i;
        name += value[i];
    }
    return FromUtf8(Trimmed(name));
}

} // namespace korvane::doc::html
