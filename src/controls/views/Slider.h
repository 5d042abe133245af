#pragma once

#include "controls/Control.h"

namespace korvane {

/// `Change` fires whenever the value changes, also when the program sets it. A value outside the range is
/// kept as it is, and the widget shows the nearer end.
class Slider : public Control {
public:
    Slider(Form& owner, std::string_view name, int min, int max, TextView toolTip = {});

    Property<int> Min{*this, Aspect::Range};
    Property<int> Max{*this, Aspect::Range};
    Property<int> Value{*this, Aspect::Value};
    /// How far a click beside the handle moves it, which is the length of a scroll bar's handle too. 0 leaves
    /// it to the look of the window.
    Property<int> LargeChange{*this, Aspect::Range};

    std::function<void()> Change;
    /// The user moved it. `Change` has fired before.
    std::function<void()> Scroll;
    /// The user let go of it.
    std::function<void()> Released;

    // What the user does: nothing happens while the slider is disabled or hidden.
    void MoveTo(int value);
    void Release();

protected:
    void Changed(Aspect aspect) override;
};

} // namespace korvane
