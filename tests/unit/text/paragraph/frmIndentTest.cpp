#include "text/paragraph/frmIndent.h"

#include "text/paragraph/frmFramesDlg.h"
#include "text/paragraph/frmParaSpacing.h"
#include "text/paragraph/frmTabWidth.h"
#include "unit/text/paragraph/ParagraphStage.h"

namespace korvane {
namespace {

class IndentTest : public ParagraphStage {
protected:
    IndentTest() {
        t.app.Settings.TabUnitTwips = 567;
        window.EnsureLoaded();
    }
    ~IndentTest() override { window.Close(); }

    frmIndent window{t.app};
};

TEST_F(IndentTest, HasItsCaptions) {
    EXPECT_EQ(window.Caption.Get(), u"Align and indent");
    EXPECT_EQ(CaptionsOf(window), (std::vector<Text>{u"&Align",
                                                     u"No left indentation",
                                                     u"1 tab",
                                                     u"2 tabs",
                                                     u"3 tabs",
                                                     u"4 tabs",
                                                     u"5 tabs",
                                                     u"6 tabs",
                                                     u"No right indent",
                                                     u"1 tab",
                                                     u"2 tabs",
                                                     u"3 tabs",
                                                     u"Left hanging indent",
                                                     u"&Indent",
                                                     u"&Delete indent",
                                                     u"Delete right indent",
                                                     u"&Paragraph settings",
                                                     u"&Bullets",
                                                     u"Fra&mes",
                                                     u"&Paragraph spacing",
                                                     u"&Tabs"}));
}

TEST_F(IndentTest, ListsAlignmentsAndSpacings) {
    EXPECT_EQ(RowsOf(window.lstClient),
              (std::vector<Text>{u" Left align text", u" Right align text", u" Center text", u" Justify text",
                                 u" Single line spacing", u" One and a half", u" Double line spacing"}));
}

TEST_F(IndentTest, AlignsTheSelectedParagraphsByTheRow) {
    for (int row = 0; row < 4; ++row) {
        window.lstClient.Select(row);
        window.cmdAccept.Press();
        EXPECT_EQ(control.Alignment(), row);
    }
    const int kSpacing[] = {100, 150, 200};
    for (int row = 4; row < 7; ++row) {
        window.lstClient.DoubleClick(row);
        EXPECT_EQ(control.LineSpacing(), kSpacing[row - 4]);
    }
    control.SetSelStart(5);
    EXPECT_EQ(control.Alignment(), 0);
}

TEST_F(IndentTest, IndentsByTabsWithAHangingLine) {
    window.Option3.Press();
    window.optTwoRightIndent.Press();
    window.chkHangingIndent.Press();
    window.cmdIndent.Press();
    EXPECT_EQ(control.IndentL(), 1701);
    EXPECT_EQ(control.IndentFL(), -1701);
    EXPECT_EQ(control.IndentR(), 1134);
    EXPECT_EQ(Tabs(), Multiples(567));
    EXPECT_EQ(t.app.Settings.IndentOptionA, 3);
    EXPECT_EQ(t.app.Settings.IndentOptionB, 2);
    EXPECT_EQ(t.app.Settings.IndentOptionC, 1);
    EXPECT_EQ(t.app.Exchange<ParagraphChoices>().RightIndentOn, 1);
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(control.IndentL(), 0);
    EXPECT_EQ(Tabs(), Multiples(0));
}

TEST_F(IndentTest, WithoutARightIndentTheOldOneGoes) {
    control.SetIndentR(300);
    control.SetIndentFL(200);
    window.Option1.Press();
    window.cmdIndent.Press();
    EXPECT_EQ(control.IndentL(), 567);
    EXPECT_EQ(control.IndentR(), 0);
    EXPECT_EQ(control.IndentFL(), 0);
}

TEST_F(IndentTest, TakesIndentsAway) {
    control.SetIndentL(300);
    control.SetIndentR(300);
    control.SetIndentFL(200);
    window.cmdDelRightIndent.Press();
    EXPECT_EQ(control.IndentR(), 0);
    EXPECT_EQ(control.IndentL(), 300);
    window.cmdDeleteIndent.Press();
    EXPECT_EQ(control.IndentL(), 0);
    EXPECT_EQ(control.IndentFL(), 0);
}

TEST_F(IndentTest, ComesUpWithItsLastChoices) {
    window.lstClient.Select(2);
    window.Option6.Press();
    window.optThreeRightIndent.Press();
    window.cmdIndent.Press();
    window.Left = Twips{700};
    window.Close();
    EXPECT_EQ(t.app.Settings.IndentLeft, 700);
    frmIndent again(t.app);
    again.EnsureLoaded();
    EXPECT_EQ(again.lstClient.ListIndex(), 2);
    EXPECT_TRUE(again.Option6.Value);
    EXPECT_TRUE(again.optThreeRightIndent.Value);
    EXPECT_EQ(again.chkHangingIndent.Value, 0);
}

TEST_F(IndentTest, LeadsToTheOtherWindows) {
    t.user.On<frmFramesDlg>([](frmFramesDlg& other) { other.Close(); });
    window.cmdFrames.Press();
    t.user.On<frmParaSpacing>([](frmParaSpacing& other) { other.Close(); });
    window.cmdParaSpacing.Press();
    t.user.On<frmTabWidth>([](frmTabWidth& other) { other.Close(); });
    window.cmdSetTabs.Press();
    class Dialogs final : public TextDialogs {
    public:
        std::vector<TextDialog> shown;
        void Show(TextDialog dialog, TextControl&) override { shown.push_back(dialog); }
    };
    Dialogs dialogs;
    control.Dialogs = &dialogs;
    window.cmdParagraph.Press();
    window.cmdBullets.Press();
    EXPECT_EQ(dialogs.shown, (std::vector<TextDialog>{TextDialog::Paragraph, TextDialog::List}));
}

TEST_F(IndentTest, ChangesNothingWithoutTheTextWindow) {
    t.app.Exchange<TextWindowState>().TextWindowOpen = 0;
    window.Option3.Press();
    window.cmdIndent.Press();
    window.cmdAccept.Press();
    window.cmdParagraph.Press();
    EXPECT_EQ(control.IndentL(), 0);
    EXPECT_EQ(t.app.Settings.IndentOptionA, 3);
    t.app.SetPort<OpenText>(nullptr);
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    window.cmdIndent.Press();
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(IndentTest, EscCloses) {
    KeyEvent key{Key::Escape};
    bool closed = false;
    t.user.On<frmIndent>([&](frmIndent& shown) {
        shown.KeyDown(key);
        closed = !shown.Shown();
    });
    window.ShowModal();
    EXPECT_TRUE(closed);
}

} // namespace
} // namespace korvane
