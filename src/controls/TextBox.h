#pragma once

#include "controls/Control.h"

namespace korvane {

/// A field of text. `Change` fires whenever the text changes, also when the program sets it.
class TextBox : public Control {
public:
    TextBox(Form& owner, std::string_view name, TextView text = {}, TextView toolTip = {});

    Property<korvane::Text> Text{*this, Aspect::Text};
    Property<bool> Locked{*this, Aspect::Enabled};
    // The selection in units of the text, counted from 0.
    Property<int> SelStart{*this, Aspect::Selection};
    Property<int> SelLength{*this, Aspect::Selection};
    /// `kNoColour` leaves it to the look of the window.
    Property<Colour> BackColor{*this, Aspect::Colours, kNoColour};

    std::function<void()> Change;

    void SelectAll();
    korvane::Text SelText() const;
    /// Puts the text in place of the selection, with the cursor after it.
    void SetSelText(TextView text);
    /// What the user does.
    void Type(TextView text);

protected:
    void Changed(Aspect aspect) override;
};

} // namespace korvane
