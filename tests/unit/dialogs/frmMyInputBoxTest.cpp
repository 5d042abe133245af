#include "dialogs/frmMyInputBox.h"

#include "context/exchange/InputQuestion.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class MyInputBoxTest : public testing::Test {
protected:
    TestApp t;
};

TEST_F(MyInputBoxTest, HasItsCaptions) {
    const frmMyInputBox form(t.app);
    EXPECT_EQ(form.cmdCancel.Caption.Get(), u"&Cancel");
    EXPECT_EQ(form.cmdCancel.ToolTipText.Get(), u"Cancel operation");
    EXPECT_EQ(form.cmdDesktop.Caption.Get(), u"Windows Desktop");
    EXPECT_EQ(form.cmdExplorer.Caption.Get(), u"Windows Explorer");
}

TEST_F(MyInputBoxTest, OffersTheTextWithAllOfItSelectedAndTheCaretAtItsEnd) {
    t.app.Exchange<InputQuestion>().InputResult = u"left over";
    t.user.On<frmMyInputBox>([this](frmMyInputBox& f) {
        EXPECT_EQ(f.txtBoxCaption.Caption.Get(), u"Edit text line as required.");
        EXPECT_EQ(f.txtBoxText.Text.Get(), u"offered");
        EXPECT_EQ(f.txtBoxText.SelText(), u"offered");
        EXPECT_EQ(f.txtBoxText.SelStart.Get() + f.txtBoxText.SelLength.Get(), 7);
        EXPECT_EQ(t.app.Exchange<InputQuestion>().InputResult, u"");
        f.cmdCancel.Press();
    });
    AskForText(t.app, u"Edit text line as required.", u"offered");
}

TEST_F(MyInputBoxTest, OkGivesTheText) {
    t.user.On<frmMyInputBox>([](frmMyInputBox& f) {
        f.txtBoxText.Type(u"typed");
        f.cmdOk.Press();
    });
    EXPECT_EQ(AskForText(t.app, u"Question", u"offered"), u"typed");
    EXPECT_EQ(t.app.Exchange<InputQuestion>().InputResult, u"typed");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(MyInputBoxTest, ReturnInTheFieldIsOk) {
    t.user.On<frmMyInputBox>([](frmMyInputBox& f) {
        f.txtBoxText.Text = u"by key";
        KeyEvent key{Key::Return};
        f.txtBoxText.KeyDown(key);
        EXPECT_TRUE(key.consumed);
    });
    EXPECT_EQ(AskForText(t.app, u"Question"), u"by key");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(MyInputBoxTest, OtherKeysGoToTheField) {
    t.user.On<frmMyInputBox>([](frmMyInputBox& f) {
        KeyEvent key{'A'};
        f.txtBoxText.KeyDown(key);
        EXPECT_FALSE(key.consumed);
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    AskForText(t.app, u"Question");
}

TEST_F(MyInputBoxTest, CancelLeavesTheResultEmptyEvenIfTextWasTyped) {
    t.user.On<frmMyInputBox>([](frmMyInputBox& f) {
        f.txtBoxText.Type(u"typed");
        f.cmdCancel.Press();
    });
    EXPECT_EQ(AskForText(t.app, u"Question", u"offered"), u"");
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(MyInputBoxTest, EscIsCancel) {
    EXPECT_TRUE(frmMyInputBox(t.app).cmdCancel.Cancel);
}

// Kept for compatibility: input-empty-and-cancel.
TEST_F(MyInputBoxTest, OkWithAnEmptyFieldGivesAnEmptyResultAndOne) {
    t.user.On<frmMyInputBox>([](frmMyInputBox& f) {
        f.txtBoxText.Text = u"";
        f.cmdOk.Press();
    });
    EXPECT_EQ(AskForText(t.app, u"Question", u"offered"), u"");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(MyInputBoxTest, TheDesktopShowsAndTheBoxStays) {
    t.user.On<frmMyInputBox>([this](frmMyInputBox& f) {
        f.cmdDesktop.Press();
        EXPECT_EQ(t.shell.Calls(), (std::vector<ShellCall>{{ShellCall::Kind::ToggleDesktop, {}}}));
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    AskForText(t.app, u"Question");
}

TEST_F(MyInputBoxTest, TheExplorerOpensOnTheCurrentDirectoryAndTheBoxStays) {
    t.files.AddDir(u"C:\\Data");
    t.files.ChangeDir(u"C:\\Data");
    t.user.On<frmMyInputBox>([this](frmMyInputBox& f) {
        f.cmdExplorer.Press();
        EXPECT_EQ(t.shell.Opened(), (std::vector<OpenRequest>{{u"explore", u"C:\\Data", u"", u"C:\\Data"}}));
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    AskForText(t.app, u"Question");
}

} // namespace
} // namespace korvane
