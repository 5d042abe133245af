#pragma once

#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/TestApp.h"
#include "text/control/TextControlWindows.h"

#include <gtest/gtest.h>

namespace korvane {

/// A text control with three paragraphs, of which the first is selected, and its windows.
class ControlStage : public testing::Test {
protected:
    ControlStage() {
        control.Dialogs = &windows;
        control.SetAll(u"one\r\ntwo\r\nthree");
        control.SetSelection(0, 3);
        control.SetDataChanged(false);
    }

    doc::ParaFormat Paragraph(int position) {
        control.SetSelStart(position);
        return control.ParagraphFormat();
    }

    TestApp t;
    TextControlWindows windows{t.app};
    Form form{t.user, "Form", u""};
    TextControl control{form, "control"};
};

} // namespace korvane
