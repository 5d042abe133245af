#pragma once

#include "controls/Control.h"

namespace korvane {

class CommandButton : public Control {
public:
    CommandButton(Form& owner, std::string_view name, TextView caption = {}, TextView toolTip = {});

    /// "&" marks the mnemonic.
    Property<Text> Caption{*this, Aspect::Caption};
    /// `kNoColour` leaves it to the look of the window.
    Property<Colour> BackColor{*this, Aspect::Colours, kNoColour};
    /// Whether Esc in the window presses the button.
    bool Cancel = false;
    /// Whether Return in the window presses the button.
    bool Default = false;

    std::function<void()> Click;

    /// The user presses the button. Nothing happens while it is disabled or hidden.
    void Press();
};

} // namespace korvane
