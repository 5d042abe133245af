#pragma once

#include "context/exchange/ParagraphChoices.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/OpenText.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"
#include "controls/text/TextControl.h"
#include "support/Captions.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {

/// An open text window with two paragraphs, of which the first is selected.
class ParagraphStage : public testing::Test {
protected:
    ParagraphStage() {
        t.app.SetPort<OpenText>(&open);
        t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
        control.SetAll(u"one\r\ntwo");
        control.SetSelection(0, 3);
        control.SetDataChanged(false);
    }

    static std::vector<Text> RowsOf(const ListBox& list) {
        std::vector<Text> rows;
        for (int row = 0; row < list.ListCount(); ++row)
            rows.push_back(list.List(row));
        return rows;
    }
    std::vector<int> Tabs() {
        std::vector<int> tabs;
        for (int tab = 1; tab <= TextControl::kTabs; ++tab) {
            control.SetTabCurrent(tab);
            tabs.push_back(control.TabPos());
        }
        return tabs;
    }
    static std::vector<int> Multiples(int step) {
        std::vector<int> tabs;
        for (int tab = 1; tab <= TextControl::kTabs; ++tab)
            tabs.push_back(tab * step);
        return tabs;
    }

    TestApp t;
    Form form{t.user, "Form", u""};
    TextControl control{form, "control"};
    TextControl scratch{form, "scratch"};
    OpenText open{control, scratch};
};

} // namespace korvane
