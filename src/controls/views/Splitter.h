#pragma once

#include "controls/Control.h"

namespace korvane {

/// The edge between two parts of a window, which the user can drag.
class Splitter : public Control {
public:
    using Control::Control;

    /// The width of the left part in pixels; the right one takes what is left.
    Property<int> Position{*this, Aspect::Value};

    /// The user has dragged the edge.
    std::function<void()> Moved;

    /// What the user does.
    void DragTo(int position);
};

} // namespace korvane
