#include "context/exchange/ListerRequest.h"
#include "context/ports/ClipboardView.h"
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

TEST_P(HelpText, ComesUpInTheDesktopsOwnProgramOtherwise) {
    p.shell.SetStartable([](TextView) { return false; });
    p.StartWith({});
    EXPECT_TRUE(p.PressKey(Key::F(1)));
    EXPECT_EQ(p.shell.Opened(), std::vector<OpenRequest>{{.file = HelpPath()}});
    EXPECT_TRUE(p.user.Messages().empty());
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
