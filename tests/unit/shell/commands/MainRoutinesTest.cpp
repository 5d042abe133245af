#include "context/exchange/ListerRequest.h"
#include "context/ports/ClipboardView.h"
#include "shell/commands/frmHelp.h"
#include "shell/settings/frmSetYourProg.h"
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
    p.app.Exchange<ListerRequest>().ListerMode = 1;
    p.app.Exchange<ListerRequest>().ChosenFilePath = u"left over";
    p.user.CancelChooser();
    p.Choose("mnuFile_DirLister");
    EXPECT_EQ(p.user.Requests().at(0).FileDialogFilter, u"*.*");
    EXPECT_EQ(p.user.Requests().at(0).FileDialogCaption, u"Directory lister");
    EXPECT_EQ(p.user.Requests().at(0).ChosenFilePath, u"");
    EXPECT_EQ(p.app.Exchange<ListerRequest>().ListerMode, 1);
    EXPECT_EQ(p.app.Exchange<ListerRequest>().FileDialogFilter, u"0");
    EXPECT_EQ(p.app.Exchange<ListerRequest>().FileDialogCaption, u"");
}

TEST_F(MainRoutinesTest, TheGridsKeyShowsTheClipboard) {
    CountingClipboardView view;
    p.app.SetPort<ClipboardView>(&view);
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

class HelpText : public testing::TestWithParam<PathStyle> {
protected:
    Text HelpPath() const {
        return GetParam().HasDrives() ? u"C:\\Korvane\\Korvane_Help.rtf" : u"/opt/korvane/Korvane_Help.rtf";
    }

    TestProgram p{GetParam()};
};

TEST_P(HelpText, ComesUpInTheTextToolWhereThatIsThere) {
    p.StartWith({});
    EXPECT_TRUE(p.PressKey(Key::F(1)));
    ASSERT_EQ(p.shell.Starts().size(), 1u);
    EXPECT_EQ(p.shell.Starts().at(0).arguments, std::vector<Text>{HelpPath()});
    EXPECT_TRUE(p.shell.Opened().empty());
}

TEST_P(HelpText, ComesUpInAWindowOfTheProgramOtherwise) {
    p.shell.SetStartable([](TextView) { return false; });
    p.files.AddFile(HelpPath(), "{\\rtf1\\pard\\outlinelevel0 First\\par\\pard one\\par"
                                "\\pard\\outlinelevel0 Keys\\par\\trowd F1\\cell Help \\'e9\\cell\\row}");
    p.StartWith({});
    bool shown = false;
    p.user.On<frmHelp>([&shown](frmHelp& f) {
        shown = true;
        EXPECT_EQ(f.lstSections.ListCount(), 2);
        EXPECT_EQ(f.txtHelp.Text.Get(), u"one\r\n\r\n");
        f.lstSections.Select(1);
        EXPECT_EQ(f.lstSections.List(1), u"Keys");
        EXPECT_EQ(f.txtHelp.Text.Get(), u"F1  \u2013  Help \u00E9\r\n\r\n");
        f.cmdClose.Press();
    });
    EXPECT_TRUE(p.PressKey(Key::F(1)));
    EXPECT_TRUE(shown);
    EXPECT_TRUE(p.shell.Opened().empty());
}

TEST_P(HelpText, IsMissedAloud) {
    p.shell.SetStartable([](TextView) { return false; });
    p.StartWith({});
    p.user.Answer(Answer::Ok);
    EXPECT_TRUE(p.PressKey(Key::F(1)));
    ASSERT_EQ(p.user.Messages().size(), 1u);
    EXPECT_NE(p.user.Messages()[0].text.find(HelpPath()), Text::npos);
}

INSTANTIATE_TEST_SUITE_P(Styles, HelpText, testing::Values(PathStyle::Windows, PathStyle::Posix),
                         [](const auto& style) { return style.param.HasDrives() ? "Windows" : "Posix"; });

TEST_F(MainRoutinesTest, TheCompanionsOfTheMenuAndTheSidebarStandAtTheirPlaces) {
    for (const TextView place :
         {u"Sandrel\\Abrill\\Abrill", u"TolmereSet\\Ostrel\\Ostrel", u"TolmereSet\\Veldan\\Veldan"})
        p.files.AddFile(u"C:\\Drive_G\\" + Text(place) + u".exe");
    p.StartWith({});
    p.Choose("mnuMisc_Calc");
    p.Main().RunCommand("LoadFindText");
    p.Main().RunCommand("LoadFindFiles");
    EXPECT_EQ(p.shell.Starts(),
              (std::vector<ProgramStart>{{u"C:\\Drive_G\\Sandrel\\Abrill\\Abrill.exe"},
                                         {u"C:\\Drive_G\\TolmereSet\\Ostrel\\Ostrel.exe"},
                                         {u"C:\\Drive_G\\TolmereSet\\Veldan\\Veldan.exe"}}));
}

} // namespace
} // namespace korvane
