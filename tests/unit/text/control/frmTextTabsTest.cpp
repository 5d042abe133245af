#include "text/control/frmTextTabs.h"

#include "unit/text/control/ControlStage.h"

namespace korvane {
namespace {

using Stops = std::vector<doc::TabStop>;

class TabsWindowTest : public ControlStage {
protected:
    template <class Script>
    void Accept(Script script) {
        t.user.On<frmTextTabs>([script](frmTextTabs& window) {
            script(window);
            window.cmdOK.Press();
        });
        control.TabDialog();
    }
    static void Set(frmTextTabs& window, TextView position, int type = 0) {
        window.txtPosition.Text = Text(position);
        window.cboType.SetListIndex(type);
        window.cmdSet.Press();
    }
};

TEST_F(TabsWindowTest, TabsAreSetInTheOrderOfTheirPlaces) {
    Accept([](frmTextTabs& window) {
        EXPECT_FALSE(window.cmdDelete.Enabled);
        Set(window, u"2 in", 1);
        Set(window, u"1 in", 3);
        Set(window, u"2 in", 2);
        EXPECT_EQ(window.lstTabs.ListCount(), 2);
        EXPECT_EQ(window.lstTabs.List(0), u"1 in   Decimal tab");
        EXPECT_EQ(window.lstTabs.List(1), u"2 in   Centered tab");
        EXPECT_EQ(window.lstTabs.ListIndex(), 1);
    });
    EXPECT_EQ(Paragraph(0).tabs, (Stops{{1440, doc::TabType::Decimal}, {2880, doc::TabType::Centred}}));
    EXPECT_TRUE(Paragraph(5).tabs.empty());
}

TEST_F(TabsWindowTest, TabsAreDeletedOneByOneOrAllAtOnce) {
    control.FormatParagraphs([](doc::ParaFormat& format) { format.tabs = {{100}, {200}, {300}}; });
    Accept([](frmTextTabs& window) {
        window.lstTabs.Select(1);
        window.cmdDelete.Press();
        EXPECT_EQ(window.lstTabs.ListIndex(), 1);
    });
    EXPECT_EQ(Paragraph(0).tabs, (Stops{{100}, {300}}));
    Accept([](frmTextTabs& window) {
        window.cmdDeleteAll.Press();
        EXPECT_FALSE(window.cmdDelete.Enabled);
        EXPECT_FALSE(window.cmdDeleteAll.Enabled);
    });
    EXPECT_TRUE(Paragraph(0).tabs.empty());
}

TEST_F(TabsWindowTest, ThereAreFourteenTabsAtMost) {
    Accept([this](frmTextTabs& window) {
        for (int tab = 1; tab <= TextControl::kTabs; ++tab)
            Set(window, LengthText(tab * 1440, LengthUnit::Inches));
        t.user.Answer({u"A paragraph has at most 14 tabs.", MessageIcon::Exclamation, MessageButtons::Ok},
                      Answer::Ok);
        Set(window, u"30 in");
        Set(window, u"14 in", 1);
    });
    EXPECT_EQ(Paragraph(0).tabs.size(), 14U);
    EXPECT_EQ(Paragraph(0).tabs.back(), (doc::TabStop{14 * 1440, doc::TabType::Right}));
}

TEST_F(TabsWindowTest, ATypedPlaceIsATabAlsoWhenItWasNotSet) {
    Accept([](frmTextTabs& window) { window.txtPosition.Text = u"3 in"; });
    EXPECT_EQ(Paragraph(0).tabs, (Stops{{4320}}));
    Accept([](frmTextTabs&) {});
    EXPECT_EQ(Paragraph(0).tabs, (Stops{{4320}}));
}

TEST_F(TabsWindowTest, ATabWithoutADistanceIsRefused) {
    Accept([this](frmTextTabs& window) {
        t.user.Answer(Answer::Ok);
        Set(window, u"0");
        t.user.Answer(Answer::Ok);
        Set(window, u"");
        EXPECT_EQ(window.lstTabs.ListCount(), 0);
    });
    EXPECT_FALSE(control.DataChanged());
}

} // namespace
} // namespace korvane
