#pragma once

#include "context/exchange/InsertChoices.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "controls/text/TextControl.h"
#include "support/TestApp.h"
#include "text/insert/InsertTarget.h"

#include <gtest/gtest.h>

namespace korvane {

/// A formatted text and a plain one, both with the cursor in the middle of "ab".
class InsertStage : public testing::Test {
protected:
    InsertStage() {
        control.SetAll(u"ab");
        control.SetSelection(0, -1);
        control.SetFontName(u"Georgia");
        control.SetFontSize(11);
        control.SetSelStart(1);
        box.Text = u"ab";
        box.Font = FontSpec{u"Georgia", 11, true};
        box.SelStart = 1;
    }

    InsertChoices& Choices() { return t.app.Exchange<InsertChoices>(); }
    /// The font of the character at the place, and its size.
    FontSpec FontAt(int place) {
        const int start = control.SelStart();
        control.SetSelection(place, 1);
        const FontSpec font{control.FontName(), control.FontSize()};
        control.SetSelStart(start);
        return font;
    }

    TestApp t;
    Form form{t.user, "Form", u""};
    TextControl control{form, "control"};
    TextBox box{form, "box"};
    ControlTarget target{control};
    BoxTarget boxTarget{box};
};

} // namespace korvane
