#pragma once

namespace korvane {

class TextControl;

/// The windows that change a formatted text: its fonts, and characters to put into it. `target` outlives the
/// call.
class TextTools {
public:
    virtual ~TextTools() = default;
    /// Returns whether the user took the choice, so that the text counts as altered.
    virtual bool ChooseFont(TextControl& target) = 0;
    /// A file with symbols, of which some are copied to the selection of `target`.
    virtual void ShowUnicode(TextControl& target) = 0;
    /// The table of the code page's characters, which writes at the selection of `target`.
    virtual void ShowCharacters(TextControl& target) = 0;
    /// Shapes and symbols, which are written at the selection of `target`.
    virtual void ShowElements(TextControl& target) = 0;
};

} // namespace korvane
