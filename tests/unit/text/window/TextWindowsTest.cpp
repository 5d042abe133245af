#include "text/window/TextWindows.h"

#include "unit/text/window/TextWindowStage.h"

namespace korvane {
namespace {

class TextWindowsTest : public TextWindowStage {
protected:
    /// The next window is looked at and closed, with its changes dropped.
    void OnWindow(const std::function<void(frm_RTF_HTM&)>& script) {
        t.user.On<frm_RTF_HTM>([script](frm_RTF_HTM& opened) {
            script(opened);
            opened.TextAltered = 0;
            opened.ThisTextCtrl.SetDataChanged(false);
            opened.Close();
        });
    }

    TextWindows windows{t.app};
};

TEST_F(TextWindowsTest, AnswerTheirPortsUntilTheyGo) {
    TextWindows* const none = nullptr;
    {
        TextWindows others(t.app);
        EXPECT_EQ(t.app.Port<TextWindow>(), &others);
        EXPECT_EQ(t.app.Port<TextFileViewer>(), &others);
    }
    EXPECT_EQ(t.app.Port<TextWindow>(), none);
    EXPECT_EQ(t.app.Port<TextFileViewer>(), none);
}

TEST_F(TextWindowsTest, ShowAnEmptyWindowThatStaysOpen) {
    ExpectWindow();
    windows.TextWindowShow();
    ASSERT_NE(windows.Open(), nullptr);
    EXPECT_EQ(windows.Open()->Caption.Get(), u"Untitled.rtf");
    windows.TextWindowShow();
    EXPECT_EQ(t.user.Raised(), (std::vector<std::string>{"frm_RTF_HTM"}));
    windows.Open()->Close();
    EXPECT_EQ(windows.Open(), nullptr);
}

TEST_F(TextWindowsTest, ViewAFileInAClosedWindowUntilThatCloses) {
    t.files.AddFile(u"C:\\a.txt", "text");
    OnWindow([](frm_RTF_HTM& opened) { EXPECT_EQ(opened.ThisTextCtrl.All(), u"text"); });
    windows.View(u"C:\\a.txt");
    EXPECT_EQ(windows.Open(), nullptr);
    OnWindow([](frm_RTF_HTM& opened) { EXPECT_EQ(opened.ThisTextCtrl.All(), u""); });
    windows.View({});
}

TEST_F(TextWindowsTest, ViewAFileInTheOpenWindowAfterItsQuestion) {
    t.files.AddFile(u"C:\\a.txt", "text");
    ExpectWindow();
    windows.TextWindowShow();
    frm_RTF_HTM& opened = *windows.Open();
    opened.ThisTextCtrl.SetSelText(u"mine");
    AnswerSaving(MsgAnswer::Cancel);
    windows.View(u"C:\\a.txt");
    EXPECT_EQ(opened.ThisTextCtrl.All(), u"mine");
    AnswerSaving(MsgAnswer::DoNotSave);
    windows.View(u"C:\\a.txt");
    EXPECT_EQ(opened.ThisTextCtrl.All(), u"text");
    EXPECT_EQ(opened.Caption.Get(), u"C:\\a.txt");
    EXPECT_FALSE(opened.Altered());
    EXPECT_EQ(t.user.Raised().size(), 2U);
    opened.Close();
}

TEST_F(TextWindowsTest, WriteIntoAClosedWindowUntilThatCloses) {
    OnWindow([](frm_RTF_HTM& opened) {
        EXPECT_EQ(opened.ThisTextCtrl.All(), u"row");
        EXPECT_TRUE(opened.Altered());
        EXPECT_EQ(opened.Focused(), &opened.ThisTextCtrl);
    });
    windows.TextWindowInsert(u"row");
}

TEST_F(TextWindowsTest, WriteFormattedTextIntoAClosedWindowUntilThatCloses) {
    OnWindow([](frm_RTF_HTM& opened) {
        EXPECT_EQ(opened.ThisTextCtrl.All(), u"row");
        EXPECT_TRUE(opened.Altered());
    });
    windows.TextWindowInsertRtf("{\\rtf1 {\\b row}}");
    EXPECT_EQ(windows.Open(), nullptr);
}

TEST_F(TextWindowsTest, WriteAtTheCursorOfTheOpenWindow) {
    ExpectWindow();
    windows.TextWindowShow();
    TextControl& control = windows.Open()->ThisTextCtrl;
    control.SetAll(u"ab");
    control.SetSelStart(1);
    windows.TextWindowInsert(u"-");
    windows.TextWindowInsertRtf("{\\rtf1 {\\b x}}");
    EXPECT_EQ(control.All(), u"a-xb");
    control.SetSelection(2, 1);
    EXPECT_EQ(control.FontBold(), 1);
    EXPECT_EQ(t.user.Raised().size(), 2U);
    control.SetDataChanged(false);
    windows.Open()->TextAltered = 0;
    windows.Open()->Close();
}

} // namespace
} // namespace korvane
