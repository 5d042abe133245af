#pragma once

#include "common/text/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvane {

/// The place of a flag in `FontAttrs`.
namespace FontAttr {
enum : std::size_t { Bold, Italic, Underline, Strikethru, Superscript, Subscript, Count };
} // namespace FontAttr

/// What the font dialog and its callers tell each other. Flags are 1 or 0.
struct FontChoice {
    /// What is ticked, before and afterwards. The first four are 2 where only some characters have the
    /// attribute; then it stays as it is. Superscript and subscript exclude each other. Who shows the dialog
    /// clears the flags afterwards, so that they don't come to the next caller.
    std::array<std::int16_t, FontAttr::Count> FontAttrs{};
    /// The present font: its name, and its size as text.
    std::array<Text, 2> FontInits{};

    /// 1 when the user took the choice.
    std::int16_t FontAccepted = 0;
    /// Empty for no other font.
    Text FontNameChosen;
    /// 0 for no other size.
    std::int16_t FontSizeChosen = 0;
    /// 1 for raised characters, 2 for lowered ones, 0 for neither.
    std::int16_t FontBaseStyle = 0;
    /// The row of the list of text styles.
    std::int16_t FontStyleChosen = 0;
    /// 1 when the user chose colours, which are in the settings.
    std::int16_t FontColourChanged = 0;
    /// 1 leaves the attributes as they are. It stays for the next opening.
    std::int16_t FontNoChange = 0;
    /// The row of the style for the next opening.
    std::int16_t FontStyleIndex = 0;
};

} // namespace korvane
