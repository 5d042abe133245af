#pragma once

#include "context/ports/ColourPairPicker.h"
#include "context/ports/FontPicker.h"
#include "context/ports/TextTools.h"

namespace korvane {

class App;

/// Shows the font dialog and the windows of colours and characters to those that ask for them.
class FontWindows final : public FontPicker, public ColourPairPicker, public TextTools {
public:
    /// The App outlives the object, and from now on shows these windows through it.
    explicit FontWindows(App& app);
    FontWindows(const FontWindows&) = delete;
    FontWindows& operator=(const FontWindows&) = delete;
    ~FontWindows() override;

    /// The caller can set the flags of `FontChoice` for raised and lowered characters. What was chosen of
    /// them is its `FontBaseStyle`.
    std::optional<FontSpec> Choose(const FontSpec& present) override;
    std::optional<ColourPair> Choose(const ColourPair& present) override;

    bool ChooseFont(TextControl& target) override;
    void ShowUnicode(TextControl& target) override;
    void ShowCharacters(TextControl& target) override;
    void ShowElements(TextControl& target) override;

private:
    App& app_;
};

} // namespace korvane
