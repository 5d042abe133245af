#pragma once

namespace korvane {

class TextControl;

/// The windows that change a formatted text: characters, fonts, a search. `target` outlives the call.
class TextTools {
public:
    virtual ~TextTools() = default;
    virtual void FindString(TextControl& target) = 0;
    virtual void ChooseFont(TextControl& target) = 0;
    virtual void ShowUnicode(TextControl& target) = 0;
    virtual void ShowCharacters(TextControl& target) = 0;
    virtual void ShowElements(TextControl& target) = 0;
};

} // namespace korvane
