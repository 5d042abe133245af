#pragma once

#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/text/QtTextView.h"

namespace korvane {

class TextControlAdaptor : public AdaptorOf<TextControl, QtTextView> {
public:
    TextControlAdaptor(TextControl& control, QtTextView& view) : AdaptorOf(control, view) { EnsureShown(); }

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;
    void LetGo() override { widget_.Detach(); }

private:
    void EnsureShown();
};

} // namespace korvane
