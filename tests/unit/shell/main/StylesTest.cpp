#include "shell/commands/Styles.h"

#include "controls/views/TabStyles.h"
#include "shell/main/frmMDIParent.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {
namespace {

class StylesTest : public testing::Test {
protected:
    std::vector<std::string> CheckedStyles() const {
        std::vector<std::string> checked;
        for (const MenuEntry& entry : main.OfficeMenu1.Entries()) {
            if (main.OfficeMenu1.Checked(entry.name)) checked.emplace_back(entry.name);
        }
        return checked;
    }

    TestApp t;
    frmMDIParent main{t.app, u""};
};

TEST_F(StylesTest, TheToolBarStepsTheStyleOfTheStrip) {
    main.MDITabs1.Style = 40;
    main.RunCommand("StyleForward");
    EXPECT_EQ(main.MDITabs1.Style.Get(), 0);
    main.RunCommand("StyleBack");
    EXPECT_EQ(main.MDITabs1.Style.Get(), 40);
    EXPECT_EQ(t.app.Settings.TabStyle, 40);
}

// Kept for compatibility: toolbar-tips.
TEST_F(StylesTest, TheToolTipsOfTheStepsStandCrosswise) {
    EXPECT_EQ(main.Find("cmdStyleBack")->ToolTipText.Get(), u"Next style");
    EXPECT_EQ(main.Find("cmdStyleForward")->ToolTipText.Get(), u"Previous style");
}

// Kept for compatibility: style-step-keeps-colours.
TEST_F(StylesTest, AStepLeavesTheColoursOfTheWindowAlone) {
    main.RunCommand("StyleForward");
    EXPECT_EQ(main.lblListBar.BackColor.Get(), kNoColour);
}

TEST_F(StylesTest, BlueRoundedIsCheckedAtFirst) {
    EXPECT_EQ(CheckedStyles(), std::vector<std::string>{"mnuStyle9"});
}

TEST_F(StylesTest, AMenuEntryGivesItsStyleAndTakesTheOnlyCheckMark) {
    const std::vector<std::pair<std::string, int>> entries{
        {"mnuStyle2", 5},  {"mnuStyle3", 6},  {"mnuStyle5", 10},  {"mnuStyle7", 12},
        {"mnuStyle8", 14}, {"mnuStyle9", 13}, {"mnuStyle11", 25},
    };
    for (const auto& [entry, number] : entries) {
        main.OfficeMenu1.Choose(entry);
        EXPECT_EQ(main.MDITabs1.Style.Get(), number);
        EXPECT_EQ(CheckedStyles(), std::vector<std::string>{entry});
    }
}

// Kept for compatibility: style-numbers-out-of-order.
TEST_F(StylesTest, TheMenuKnowsMoreIndexesThanItHasEntries) {
    std::vector<int> numbers;
    for (int index = 0; index <= 16; ++index)
        numbers.push_back(TabStyleOfMenuIndex(index));
    EXPECT_EQ(numbers, (std::vector<int>{0, 1, 5, 6, 7, 10, 11, 12, 14, 13, 20, 25, 30, 31, 32, 33, 40}));
    EXPECT_EQ(TabStyleOfMenuIndex(-1), 40);
}

TEST_F(StylesTest, AMenuEntryColoursTheSurfacesOfTheWindow) {
    main.OfficeMenu1.Choose("mnuStyle11");
    const Colour strip = TabStyleOf(25).light.strip;
    EXPECT_EQ(main.picToolbar.BackColor.Get(), strip);
    EXPECT_EQ(main.lblListBar.BackColor.Get(), strip);
    EXPECT_EQ(dynamic_cast<CommandButton*>(main.Find("cmdOpen"))->BackColor.Get(), strip);
    EXPECT_EQ(main.txtCommand.BackColor.Get(), kNoColour);
}

TEST_F(StylesTest, ADarkDesktopHasTheDarkColours) {
    t.screen.SetDark(true);
    main.OfficeMenu1.Choose("mnuStyle11");
    EXPECT_EQ(main.picToolbar.BackColor.Get(), TabStyleOf(25).dark.strip);
}

TEST_F(StylesTest, TheStripIsFramedBelowStyle11) {
    main.OfficeMenu1.Choose("mnuStyle5");
    EXPECT_TRUE(main.MDITabs1.Framed);
    main.MDITabs1.Style = 11;
    ApplyStyleColours(main.Parts());
    EXPECT_FALSE(main.MDITabs1.Framed);
}

} // namespace
} // namespace korvane
