#pragma once

#include "controls/Control.h"

namespace korvane {

class Label : public Control {
public:
    Label(Form& owner, std::string_view name, TextView caption = {});

    Property<Text> Caption{*this, Aspect::Caption};
    /// `kNoColour` leaves it to the look of the window.
    Property<Colour> BackColor{*this, Aspect::Colours, kNoColour};
    /// Of the letters; `kNoColour` is one that can be read on the background.
    Property<Colour> ForeColor{*this, Aspect::Colours, kNoColour};
};

/// A part of a window that holds other controls: a frame, a picture box, a tool bar.
class Panel : public Control {
public:
    using Control::Control;

    /// This is shown in the border of a frame; other panels don't show it.
    Property<Text> Caption{*this, Aspect::Caption};
    /// `kNoColour` leaves it to the look of the window.
    Property<Colour> BackColor{*this, Aspect::Colours, kNoColour};
};

} // namespace korvane
