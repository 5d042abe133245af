#include "platform/qt/text/TextControlAdaptor.h"

namespace korvane {

void TextControlAdaptor::Write(Aspect aspect) {
    if (aspect != Aspect::ToolTip) AdaptorOf::Write(aspect);
    switch (aspect) {
    case Aspect::Text:
    case Aspect::Selection:
        // A program moves the selection often before anybody can see it.
        widget_.ShowSoon();
        break;
    case Aspect::Range:
        widget_.ShowHighSoon();
        break;
    case Aspect::Value:
        widget_.ReadZoom();
        break;
    case Aspect::State:
        widget_.ReadMode();
        break;
    case Aspect::Colours:
        widget_.ReadColours();
        break;
    case Aspect::Enabled:
        widget_.ReadLocked();
        break;
    case Aspect::Visible:
        EnsureShown();
        widget_.setUpdatesEnabled(control_.Redraw);
        break;
    case Aspect::ToolTip:
        widget_.ReadToolTip();
        break;
    case Aspect::Place:
        widget_.ReadLeft();
        break;
    default:
        break;
    }
}

/// A text that nobody has seen yet isn't made for the screen.
void TextControlAdaptor::EnsureShown() {
    if (!control_.Visible || widget_.Shown() != nullptr) return;
    widget_.Attach(control_);
    widget_.ReadToolTip();
    widget_.ReadLeft();
}

void TextControlAdaptor::Deafen() {
    AdaptorOf::Deafen();
    widget_.Forget();
}

} // namespace korvane
