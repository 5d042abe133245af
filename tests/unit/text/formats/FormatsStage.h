#pragma once

#include "context/exchange/FontChoice.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/OpenText.h"
#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/TestApp.h"
#include "text/formats/FontWindows.h"
#include "text/formats/frmQuickNameSize.h"
#include "text/formats/frmSetForegroundColour.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {

/// An open text window with "one two", of which the second word is selected.
class FormatsStage : public testing::Test {
protected:
    FormatsStage() {
        t.app.SetPort<OpenText>(&open);
        t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
        t.app.Settings.MarkupOption = 72;
        control.SetAll(u"one two");
        control.SetSelection(0, -1);
        control.SetFontName(u"Arial");
        control.SetFontSize(12);
        control.SetSelection(4, 3);
        control.SetDataChanged(false);
    }

    FontChoice& Choice() { return t.app.Exchange<FontChoice>(); }
    /// The next font dialog is used like this; it must be closed at the end.
    void OnDialog(const std::function<void(frmQuickNameSize&)>& act) { t.user.On<frmQuickNameSize>(act); }
    /// Chooses the font of the selection, which the user does like this.
    bool ChooseFont(const std::function<void(frmQuickNameSize&)>& act) {
        OnDialog(act);
        return windows.ChooseFont(control);
    }

    TestApp t;
    Form form{t.user, "Form", u""};
    TextControl control{form, "control"};
    TextControl scratch{form, "scratch"};
    OpenText open{control, scratch};
    FontWindows windows{t.app};
};

} // namespace korvane
