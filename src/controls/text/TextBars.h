#pragma once

#include "controls/Control.h"

#include <functional>

namespace korvane {

class TextControl;

/// A bar that shows and changes what a text control has at its cursor.
class TextBar : public Control {
public:
    using Control::Control;

    /// nullptr for a bar that is attached to none. The control lives as long as the window of both.
    Property<TextControl*> Target{*this, Aspect::Value, nullptr};
};

/// Has the font, the look of characters and the alignment.
class TextButtonBar : public TextBar {
public:
    using TextBar::TextBar;
};

/// Has the page, the line, the column and the zoom.
class TextStatusBar : public TextBar {
public:
    using TextBar::TextBar;
};

/// Has the tabs, the indents and the margins, which the user drags.
class TextRuler : public TextBar {
public:
    using TextBar::TextBar;

    // The left button of the mouse is held on the ruler, at a distance from the ruler's left edge.
    std::function<void(Twips at)> MouseDown;
    std::function<void(Twips at)> MouseMove;
    std::function<void()> MouseUp;
};

/// A line over a text from its top to its bottom, at a distance from the left edge of the text control.
class HairLine : public Control {
public:
    using Control::Control;

    Property<Twips> Left{*this, Aspect::Place};
};

} // namespace korvane
