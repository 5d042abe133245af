#pragma once

#include "controls/Control.h"
#include "platform/Screen.h"

#include <functional>

namespace korvane {

/// Shows the picture in a file on a dark ground. A file that can't be shown leaves the ground alone.
class PictureBox : public Control {
public:
    using Control::Control;

    /// Empty for no picture.
    Property<Text> File{*this, Aspect::Text};
    /// The part of the box that the picture fills. What is outside of the box isn't seen.
    Property<Rect> Place{*this, Aspect::Value};

    /// The box has another size now. Nothing is known of its size before it is shown.
    std::function<void(Twips width, Twips height)> Resized;
};

} // namespace korvane
