#include "shell/frmSetYourProg.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class CountingClipboardView final : public ClipboardView {
public:
    int shown = 0;
    void Show() override { ++shown; }
    bool Choose() override { return false; }
};

class MainRoutinesTest : public testing::Test {
protected:
    TestProgram p;
};

TEST_F(MainRoutinesTest, TheDirectoryListerKeepsItsModeAndEndsAtRest) {
    p.StartWith({});
    p.app.Lister.ListerMode = 1;
    p.app.Lister.ChosenFilePath = u"left over";
    p.user.CancelChooser();
    p.Choose("mnuFile_DirLister");
    EXPECT_EQ(p.user.Requests().at(0).FileDialogFilter, u"*.*");
    EXPECT_EQ(p.user.Requests().at(0).FileDialogCaption, u"Directory lister");
    EXPECT_EQ(p.user.Requests().at(0).ChosenFilePath, u"");
    EXPECT_EQ(p.app.Lister.ListerMode, 1);
    EXPECT_EQ(p.app.Lister.FileDialogFilter, u"0");
    EXPECT_EQ(p.app.Lister.FileDialogCaption, u"");
}

TEST_F(MainRoutinesTest, TheGridsKeyShowsTheClipboard) {
    CountingClipboardView view;
    p.app.ClipboardView = &view;
    p.StartWith({});
    p.OpenNewTab();
    EXPECT_TRUE(p.PressKey('V', Mask::Ctrl | Mask::Alt));
    EXPECT_EQ(view.shown, 1);
}

TEST_F(MainRoutinesTest, TheMenuShowsTheUsersProgram) {
    p.StartWith({});
    bool shown = false;
    p.user.On<frmSetYourProg>([&shown](frmSetYourProg& f) {
        shown = true;
        f.cmdCancel.Press();
    });
    EXPECT_TRUE(p.PressKey(Key::F(9)));
    EXPECT_TRUE(shown);
}

} // namespace
} // namespace korvane
