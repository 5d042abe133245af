#include "shell/commands/Commands.h"

#include "shell/commands/GridKeys.h"
#include "shell/commands/TabCommands.h"
#include "support/TestProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace korvane {
namespace {

using testing::ElementsAre;

TEST(Commands, EveryKeyOfTheMenuIsBoundOnce) {
    std::set<std::string_view> bound;
    for (const MenuEntry& entry : MenuBarEntries()) {
        const std::string_view key = entry.shortcut.Name();
        EXPECT_TRUE(key.empty() || bound.insert(key).second) << key << " is bound twice";
    }
    EXPECT_EQ(bound.size(), 44u);
}

TEST(Commands, NamesAreUniqueAndUnknownOnesFindNothing) {
    std::set<std::string_view> names;
    for (const Command& command : Commands()) {
        EXPECT_TRUE(names.insert(command.name).second) << command.name;
        EXPECT_EQ(FindCommand(command.name), &command);
    }
}

TEST(Commands, EveryEntryOfThePopUpMenuHasACommand) {
    for (const MenuEntry& entry : PopupMenuEntries())
        EXPECT_EQ(FindCommand(entry.name) == nullptr, entry.caption.empty()) << entry.name;
}

TEST(Commands, WhatNoTabCarriesOutHasNoCommandEither) {
    for (const std::string_view name :
         {"mnuCopySelectedRows", "mnuCopySelectedRowsToClipb", "mnuEdit_Edit", "mnuFile_DateAndTime"}) {
        EXPECT_EQ(FindCommand(name), nullptr) << name;
        EXPECT_EQ(FindTabCommand(std::string(name) + "_Clack"), nullptr) << name;
    }
}

TEST(Commands, TheTabStripsMenuIsTheWindowMenuWithoutItsKeys) {
    std::vector<std::string> names;
    for (const MenuEntry& entry : WindowMenuEntries()) {
        names.emplace_back(entry.name);
        EXPECT_EQ(entry.level, 0);
        EXPECT_EQ(entry.shortcut.Name(), "");
    }
    EXPECT_THAT(names, ElementsAre("mnuFile_SwitchTabsForward", "mnuFile_SwitchTabsBack", "mnuWindowSize",
                                   "mnuFile_AreLoaded"));
}

TEST(Commands, EveryButtonAndSideBarRowHasACommand) {
    for (const ToolBarButton& button : ToolBarButtons())
        EXPECT_NE(FindCommand(button.command), nullptr) << button.name;
    for (const SideBarRow& row : SideBarRows())
        EXPECT_NE(FindCommand(row.command), nullptr);
}

std::string RoutineOf(int code, int mask) {
    const GridKey* key = FindGridKey({code, mask});
    return key == nullptr ? "" : std::string(key->routine);
}

// Kept for compatibility: f10-with-any-modifier.
TEST(GridKeys, F10MeansSaveAsWithAnyModifiers) {
    for (int mask = Mask::None; mask <= (Mask::Shift | Mask::Ctrl | Mask::Alt); ++mask) {
        EXPECT_EQ(RoutineOf(Key::F(10), mask), "mnuFile_SaveAs_Clack");
    }
}

TEST(GridKeys, AMaskMeansExactlyThatMask) {
    EXPECT_EQ(RoutineOf('X', Mask::Alt), "mnuSwitchFocus");
    EXPECT_EQ(RoutineOf('X', Mask::Ctrl | Mask::Alt), "ExploreTableFolder");
    EXPECT_EQ(RoutineOf('X', Mask::Ctrl | Mask::Shift), "MakeEmailStrikethru");
    EXPECT_EQ(RoutineOf('X', Mask::Ctrl), "");
    EXPECT_EQ(RoutineOf(Key::F(4), Mask::None), "mnuEdit_EditCell_Clack");
    EXPECT_EQ(RoutineOf(Key::F(4), Mask::Shift), "");
    EXPECT_EQ(RoutineOf('1', Mask::Ctrl), "mnuEdit_Font_Clack");
    EXPECT_EQ(RoutineOf('1', Mask::Ctrl | Mask::Alt), "RowColour0");
    EXPECT_EQ(RoutineOf(Key::F(7), Mask::Shift | Mask::Alt), "mnuSidebarWidth_Clack");
    EXPECT_EQ(RoutineOf('B', Mask::Alt), "CustomBrowser");
    EXPECT_EQ(RoutineOf('B', Mask::Ctrl | Mask::Shift), "MakeEmailBold");
    EXPECT_EQ(RoutineOf('I', Mask::Ctrl | Mask::Shift), "MakeEmailItalic");
    EXPECT_EQ(RoutineOf('D', Mask::Ctrl | Mask::Alt), "ToggleDesktop");
    EXPECT_EQ(RoutineOf('V', Mask::Ctrl | Mask::Alt), "ViewAndPaste");
}

// Kept for compatibility: row-colour-keys-reach-grid.
TEST(GridKeys, OnlyTheRowColourKeysAreNotSwallowed) {
    for (const GridKey& key : GridKeys()) {
        EXPECT_EQ(key.swallowed, !key.routine.starts_with("RowColour")) << key.routine;
    }
}

TEST(GridKeys, TheNineRowColoursHaveANumberAndALetterEach) {
    const std::string numbers = "123456789";
    const std::string letters = "FHYRKLGAO";
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const std::string routine = "RowColour" + std::to_string(i);
        EXPECT_EQ(RoutineOf(numbers[i], Mask::Ctrl | Mask::Alt), routine);
        EXPECT_EQ(RoutineOf(letters[i], Mask::Ctrl | Mask::Alt), routine);
    }
}

} // namespace
} // namespace korvane
