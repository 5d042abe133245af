#include "shell/settings/frmSetYourProg.h"

#include "context/exchange/ListerRequest.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

class SetYourProgTest : public testing::Test {
protected:
    SetYourProgTest() { t.files.AddFile(u"C:\\My Tools\\tool.exe"); }
    void InWindow(const std::function<void(frmSetYourProg&)>& act) {
        t.user.On<frmSetYourProg>([&act](frmSetYourProg& f) {
            act(f);
            EXPECT_TRUE(f.Shown());
            f.cmdCancel.Press();
        });
        frmSetYourProg(t.app).ShowModal();
    }

    TestApp t;
};

TEST_F(SetYourProgTest, HasItsCaptionsAndShowsTheProgram) {
    t.app.Settings.YourProgramPath = u"C:\\gone.exe";
    InWindow([](frmSetYourProg& f) {
        EXPECT_EQ(f.Caption.Get(), u"Set your program");
        EXPECT_EQ(f.cmdBrowse1.Caption.Get(), u"&Browse");
        EXPECT_EQ(f.cmdCancel.Caption.Get(), u"&Cancel");
        EXPECT_EQ(f.prgText1.Text.Get(), u"C:\\gone.exe");
    });
}

TEST_F(SetYourProgTest, ATypedPathCountsOnceItIsThere) {
    t.app.Settings.YourProgramPath = u"C:\\old.exe";
    InWindow([this](frmSetYourProg& f) {
        f.prgText1.Text = u"C:\\My Tools\\too";
        EXPECT_EQ(t.app.Settings.YourProgramPath, u"C:\\old.exe");
        f.prgText1.Text = u"";
        EXPECT_EQ(t.app.Settings.YourProgramPath, u"C:\\old.exe");
        f.prgText1.Text = u"C:\\My Tools\\tool.exe";
        EXPECT_EQ(t.app.Settings.YourProgramPath, u"C:\\My Tools\\tool.exe");
    });
}

TEST_F(SetYourProgTest, BrowsesInTheLister) {
    InWindow([this](frmSetYourProg& f) {
        t.user.ChooseFile(u"C:\\My Tools\\tool.exe");
        f.cmdBrowse1.Press();
        EXPECT_EQ(f.prgText1.Text.Get(), u"C:\\My Tools\\tool.exe");
        t.user.CancelChooser();
        f.cmdBrowse1.Press();
    });
    EXPECT_EQ(t.app.Settings.YourProgramPath, u"C:\\My Tools\\tool.exe");
    EXPECT_EQ(t.user.Requests().at(0).FileDialogFilter, u"*.exe");
    EXPECT_EQ(t.user.Requests().at(0).FileDialogCaption, u"");
}

// Kept for compatibility: your-program-started-as-given.
TEST_F(SetYourProgTest, StartsTheProgramAsItStandsAndStaysOpen) {
    t.app.Settings.YourProgramPath = u"C:\\My Tools\\tool.exe";
    InWindow([](frmSetYourProg& f) { f.cmdOK.Press(); });
    EXPECT_EQ(t.shell.Starts(),
              (std::vector<ProgramStart>{{u"C:\\My Tools\\tool.exe", {}, WindowState::Normal}}));
}

TEST_F(SetYourProgTest, ANameWithoutAFolderIsTheFileOfTheCurrentDirectory) {
    t.files.ChangeDir(u"C:\\My Tools");
    InWindow([](frmSetYourProg& f) {
        f.prgText1.Text = u"tool.exe";
        f.cmdOK.Press();
    });
    EXPECT_EQ(t.app.Settings.YourProgramPath, u"tool.exe");
    EXPECT_EQ(t.shell.Starts(),
              (std::vector<ProgramStart>{{u"C:\\My Tools\\tool.exe", {}, WindowState::Normal}}));
}

// Kept for compatibility: your-program-started-as-given.
TEST_F(SetYourProgTest, DoesNotLookForTheOtherDriveForm) {
    t.files.AddFile(u"C:\\Drive_G\\tool.exe");
    t.app.Settings.YourProgramPath = u"G:\\tool.exe";
    InWindow([this](frmSetYourProg& f) {
        t.user.Answer({u"Cannot find this program:\r\n\r\nG:\\tool.exe", MessageIcon::Exclamation},
                      Answer::Ok);
        f.cmdOK.Press();
    });
    EXPECT_TRUE(t.shell.Starts().empty());
}

TEST_F(SetYourProgTest, SaysWhenThereIsNoProgram) {
    InWindow([this](frmSetYourProg& f) {
        t.user.Answer({u"Cannot find this program:\r\n\r\n", MessageIcon::Exclamation}, Answer::Ok);
        f.cmdOK.Press();
    });
}

} // namespace
} // namespace korvane
