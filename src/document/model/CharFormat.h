#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"
#include "document/model/FormatPool.h"

#include <cstdint>
#include <optional>

namespace korvane::doc {

/// Letters that a file asked to be small and raised or lowered, without a length of its own.
enum class Script : std::int8_t { Lowered = -1, Normal = 0, Raised = 1 };

/// How characters look. Lengths are in twips.
struct CharFormat {
    /// The number of the font in `Document::fonts`.
    std::uint16_t font = 0;
    std::uint16_t halfPoints = 24;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    bool smallCaps = false;
    Script script = Script::Normal;
    /// How far the characters are raised; below 0 they are lowered.
    std::int32_t baseLine = 0;
    Colour fore = kNoColour;
    Colour back = kNoColour;

    bool operator==(const CharFormat&) const = default;
};

inline std::size_t HashOf(const CharFormat& format) {
    std::size_t hash = format.font;
    Mix(hash, format.halfPoints);
    Mix(hash, format.bold | format.italic << 1 | format.underline << 2 | format.strike << 3 |
                  format.smallCaps << 4 | (static_cast<int>(format.script) + 1) << 5);
    Mix(hash, format.baseLine);
    Mix(hash, format.fore.value);
    Mix(hash, format.back.value);
    return hash;
}

/// What changes in the format of characters. A part that isn't set stays as it is.
struct CharDelta {
    std::optional<Text> font{};
    std::optional<std::uint16_t> halfPoints{};
    std::optional<bool> bold{};
    std::optional<bool> italic{};
    std::optional<bool> underline{};
    std::optional<bool> strike{};
    std::optional<bool> smallCaps{};
    std::optional<std::int32_t> baseLine{};
    std::optional<Colour> fore{};
    std::optional<Colour> back{};
    std::optional<Index> field{};

    bool operator==(const CharDelta&) const = default;
};

/// Sets the looks that the delta names, except the font, in another delta or in a format.
template <class Looks>
void TakeLooks(Looks& looks, const CharDelta& delta) {
    const auto take = [](auto& look, const auto& named) {
        if (named) look = *named;
    };
    take(looks.halfPoints, delta.halfPoints);
    take(looks.bold, delta.bold);
    take(looks.italic, delta.italic);
    take(looks.underline, delta.underline);
    take(looks.strike, delta.strike);
    take(looks.smallCaps, delta.smallCaps);
    take(looks.baseLine, delta.baseLine);
    take(looks.fore, delta.fore);
    take(looks.back, delta.back);
}

} // namespace korvane::doc
