#pragma once

#include "controls/Control.h"

namespace korvane {

/// Shows how much of a work is done: `Value` goes from 0 to `Max`.
class ProgressBar : public Control {
public:
    using Control::Control;

    Property<int> Max{*this, Aspect::Range, 100};
    Property<int> Value{*this, Aspect::Value};
};

} // namespace korvane
