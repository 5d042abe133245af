#pragma once

#include "controls/Control.h"

namespace korvane {

/// `Change` fires whenever the value becomes another, also when the program sets it. A value outside the
/// range is kept as it is; the widget stands at the nearer end.
class Slider : public Control {
public:
    Slider(Form& owner, std::string_view name, int min, int max, TextView toolTip = {});

    Property<int> Min{*this, Aspect::Range};
    Property<int> Max{*this, Aspect::Range};
    Property<int> Value{*this, Aspect::Value};

    std::function<void()> Change;

protected:
    void Changed(Aspect aspect) override;
};

} // namespace korvane
