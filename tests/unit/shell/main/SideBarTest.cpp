#include "context/exchange/ListerRequest.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class SideBarTest : public testing::Test {
protected:
    void Start(Settings settings = {}) {
        settings.SideBarVisible = 1;
        p.StartWith(settings);
    }
    Grid& Bar() { return p.Main().iGridListBar.Store(); }

    TestProgram p;
};

TEST_F(SideBarTest, HasSixteenRowsUnderOneAnother) {
    Start();
    EXPECT_EQ(Bar().RowCount(), Row{16});
    EXPECT_EQ(Bar().ColCount(), Col{1});
    EXPECT_EQ(Bar().ColWidth(Col{1}), 146);
    EXPECT_EQ(Bar().RowHeight(Row{1}), 64);
    EXPECT_EQ(Bar().RowHeight(Row{16}), 64);
    EXPECT_EQ(Bar().CellText(Row{1}, Col{1}), u"Recent files");
    EXPECT_EQ(Bar().CellText(Row{8}, Col{1}), u"Design db.");
    EXPECT_EQ(Bar().CellText(Row{16}, Col{1}), u"Desktop");
    EXPECT_EQ(Bar().CurRow(), Row{1});
    EXPECT_EQ(Bar().CurCol(), Col{1});
    EXPECT_TRUE(Bar().GridVisible());
}

TEST_F(SideBarTest, TakesItsFontFromTheSettings) {
    Settings settings;
    settings.SideBarFontName = u"Verdana";
    settings.SideBarFontSize = 9;
    settings.SideBarFontBold = -1;
    Start(settings);
    EXPECT_EQ(p.Main().iGridListBar.Font.Get(), (FontSpec{u"Verdana", 9, true}));
}

TEST_F(SideBarTest, KeepsItsOwnFontWhereNoneIsSet) {
    Settings settings;
    settings.SideBarFontBold = -1;
    Start(settings);
    EXPECT_EQ(p.Main().iGridListBar.Font.Get(), FontSpec{});
}

TEST_F(SideBarTest, AClickRunsTheRowAndSelectsItAgain) {
    Start();
    p.user.CancelChooser();
    p.Main().iGridListBar.ClickCell(Row{2}, Col{1});
    EXPECT_EQ(p.user.Requests().at(0).FileDialogCaption, u"Select a text database to edit");
    EXPECT_EQ(Bar().CurRow(), Row{2});
}

TEST_F(SideBarTest, TheRowIsSelectedAgainWhateverItsActionDid) {
    Start();
    p.user.OnChooser([this](ListerRequest&) { Bar().SetCurRow(Row{9}); });
    p.Main().iGridListBar.ClickCell(Row{2}, Col{1});
    EXPECT_EQ(Bar().CurRow(), Row{2});
    EXPECT_EQ(Bar().CurCol(), Col{1});
}

TEST_F(SideBarTest, SpaceAndReturnRunTheCurrentRowAndAreSwallowed) {
    Start();
    Bar().SetCurRow(Row{16});
    EXPECT_TRUE(p.PressSideBarKey(Key::Space));
    EXPECT_TRUE(p.PressSideBarKey(Key::Return));
    const ShellCall toggled{ShellCall::Kind::ToggleDesktop, {}};
    ASSERT_EQ(p.shell.Calls().size(), 2u);
    EXPECT_EQ(p.shell.Calls()[0].kind, toggled.kind);
    EXPECT_EQ(p.shell.Calls()[1].kind, toggled.kind);
}

TEST_F(SideBarTest, KeysOfTheGridDoNothingInIt) {
    Start();
    p.OpenNewTab();
    EXPECT_FALSE(p.PressSideBarKey('V', Mask::Ctrl | Mask::Alt));
    EXPECT_FALSE(p.PressSideBarKey(Key::F(10)));
    EXPECT_FALSE(p.PressSideBarKey(Key::Down));
}

TEST_F(SideBarTest, ExplorerShowsTheCurrentDirectoryWhereTheCaptionHasNoFolder) {
    p.files.AddDir(u"C:\\Data");
    p.files.ChangeDir(u"C:\\Data");
    Start();
    p.Main().iGridListBar.ClickCell(Row{13}, Col{1});
    p.Main().Caption = Text();
    p.Main().iGridListBar.ClickCell(Row{13}, Col{1});
    ASSERT_EQ(p.shell.Calls().size(), 2u);
    EXPECT_EQ(p.shell.Calls()[0].kind, ShellCall::Kind::Explore);
    EXPECT_EQ(p.shell.Calls()[0].argument, u"C:\\Data");
    EXPECT_EQ(p.shell.Calls()[1].argument, u"C:\\Data");
}

TEST_F(SideBarTest, ThePointerChangesTheLookOfTheRow) {
    Start();
    GridBox& grid = p.Main().iGridListBar;
    EXPECT_EQ(grid.HighlightBackColor.Get(), Colour{10327187});
    grid.Hover(true);
    EXPECT_EQ(grid.MousePointer.Get(), Pointer::Hand);
    EXPECT_EQ(grid.HighlightBackColor.Get(), Colour{16252927});
    EXPECT_EQ(grid.HighlightForeColor.Get(), Colour{0});
    grid.Hover(false);
    EXPECT_EQ(grid.MousePointer.Get(), Pointer::Default);
    EXPECT_EQ(grid.HighlightBackColor.Get(), Colour{10327187});
    EXPECT_EQ(grid.HighlightForeColor.Get(), Colour{0xFFFFFF});
}

TEST_F(SideBarTest, ItsCommandIsTheLastOfTheBarAndTurnsItOffAndOn) {
    Start();
    EXPECT_TRUE(p.Main().Picture2.Visible);
    p.Choose("mnuSideBar");
    EXPECT_EQ(p.app.Settings.SideBarVisible, 0);
    EXPECT_FALSE(p.Main().Picture2.Visible);
    p.Choose("mnuSideBar");
    EXPECT_EQ(p.app.Settings.SideBarVisible, 1);
    EXPECT_TRUE(p.Main().Picture2.Visible);
}

TEST_F(SideBarTest, IsHiddenWhereTheSettingsSayNothing) {
    p.StartWith({});
    EXPECT_FALSE(p.Main().Picture2.Visible);
}

TEST_F(SideBarTest, ItsWidthStepsFromTheGridsOwnTo2900AndBack) {
    Start();
    p.OpenNewTab();
    std::vector<int> widths{p.Main().iGridListBar.Width.Get().Number()};
    for (int i = 0; i < 8; ++i) {
        p.Choose("mnuSidebarWidth");
        widths.push_back(p.Main().iGridListBar.Width.Get().Number());
    }
    EXPECT_EQ(widths, (std::vector<int>{2190, 2000, 2150, 2300, 2450, 2600, 2750, 2900, 2190}));
    EXPECT_EQ(p.Main().lblListBar.Width.Get(), Twips{2190});
    EXPECT_EQ(p.Main().Picture2.Width.Get(), Twips{2270});
}

TEST_F(SideBarTest, AStepThatIsNoneHasTheGridsOwnWidthAndStepsOnToTheFirst) {
    for (const int step : {-1, 8, 32767})
        EXPECT_EQ(SideBar::WidthOfStep(step), Twips{2190});
    Settings settings;
    settings.SideBarWidthStep = 8;
    Start(settings);
    EXPECT_EQ(p.Main().iGridListBar.Width.Get(), Twips{2190});
    p.Main().Parts().sideBar.NextWidth();
    EXPECT_EQ(p.app.Settings.SideBarWidthStep, 0);
}

TEST_F(SideBarTest, ItsWidthIsThatOfItsLabelAndLessThanThatOfItsPanel) {
    Start();
    for (int i = 0; i < 8; ++i) {
        p.Main().Parts().sideBar.NextWidth();
        const Twips width = p.Main().iGridListBar.Width;
        EXPECT_EQ(p.Main().lblListBar.Width.Get(), width);
        EXPECT_EQ(p.Main().Picture2.Width.Get(), width + 80);
    }
}

TEST_F(SideBarTest, AHiddenOneStepsOnButComesUpOnlyWhenItIsAskedFor) {
    p.StartWith({});
    p.Main().Parts().sideBar.NextWidth();
    EXPECT_EQ(p.app.Settings.SideBarWidthStep, 1);
    EXPECT_FALSE(p.Main().Picture2.Visible);
    p.Choose("mnuSideBar");
    EXPECT_EQ(p.Main().iGridListBar.Width.Get(), Twips{2000});
}

TEST_F(SideBarTest, ItsWidthComesBackFromTheSettings) {
    Settings settings;
    settings.SideBarWidthStep = 7;
    Start(settings);
    EXPECT_EQ(p.Main().iGridListBar.Width.Get(), Twips{2900});
}

} // namespace
} // namespace korvane
