#pragma once

#include "common/text/Text.h"

#include <optional>

namespace korvane {

class TextBox;

/// The small windows that put characters and dates into a text. `target` outlives the call.
class InsertTools {
public:
    virtual ~InsertTools() = default;
    /// A date, a time or both as text; nothing when the window was only closed.
    virtual std::optional<Text> ChooseDateTime() = 0;
    /// The table of the code page's characters, which writes at the selection of `target`.
    virtual void ShowCharacters(TextBox& target) = 0;
    /// Shapes and symbols, which are written at the selection of `target`.
    virtual void ShowElements(TextBox& target) = 0;
};

} // namespace korvane
