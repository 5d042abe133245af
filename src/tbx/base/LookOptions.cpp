#include "tbx/base/LookOptions.h"

#include "tbx/base/ParsedArguments.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace korvane {

namespace {

/// All of the text as a number.
std::optional<int> NumberIn(std::string_view text, int base) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// "#RRGGBB"
std::optional<Colour> ColourIn(std::string_view text) {
    if (text.size() != 7 || text[0] != '#' || text[1] == '-') return std::nullopt;
    const auto number = NumberIn(text.substr(1), 16);
    if (!number) return std::nullopt;
    return Colour{(*number & 0xFF) << 16 | (*number & 0xFF00) | *number >> 16};
}

struct ColourOption {
    char letter;
    Colour TextTableLook::*colour;
    bool TextTableLook::*use;
};
constexpr ColourOption kColours[] = {
    {'b', &TextTableLook::firstRowBack, &TextTableLook::firstRowColoured},
    {'f', &TextTableLook::firstRowText, &TextTableLook::firstRowColoured},
    {'a', &TextTableLook::alternateBack, &TextTableLook::alternateRowsColoured},
};

struct LengthOption {
    char letter;
    int TextTableLook::*length;
    int most;
};
constexpr LengthOption kLengths[] = {
    {'l', &TextTableLook::leftMargin, 32'767},
    {'w', &TextTableLook::border, 128},
    {'g', &TextTableLook::gap, 160},
};

std::string NameOf(char letter) {
    return std::string(std::ranges::find(OptionSpecs(), letter, &OptionSpec::letter)->name);
}

std::string Not(std::string_view value) {
    return ", not \"" + std::string(value) + "\"";
}

} // namespace

std::string ReadLook(char letter, std::string_view value, TextTableLook& look) {
    if (letter == 't') look.titles = true;
    for (const ColourOption& option : kColours) {
        if (option.letter != letter) continue;
        const auto colour = ColourIn(value);
        if (!colour) return "the value of --" + NameOf(letter) + " has to be like #FFCC00" + Not(value);
        look.*option.colour = *colour;
        look.*option.use = true;
    }
    for (const LengthOption& option : kLengths) {
        if (option.letter != letter) continue;
        const auto length = NumberIn(value, 10);
        if (!length || *length < 0 || *length > option.most)
            return "the value of --" + NameOf(letter) + " has to be 0 to " + std::to_string(option.most) +
                   Not(value);
        look.*option.length = *length;
    }
    return {};
}

} // namespace korvane
