#include "shell/commands/Commands.h"

#include "dbops/commands/CellCommands.h"
#include "dbops/commands/ColumnCommands.h"
#include "dbops/commands/RowLookCommands.h"
#include "dbops/rules/RowFontFlags.h"
#include "dbops/windows/frmViewCell.h"
#include "shell/commands/GridKeys.h"
#include "shell/commands/MainRoutines.h"
#include "table/SaveCommands.h"

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

/// What a key of the grid calls; nothing for a key that it doesn't have.
CommandCall CallOf(int code, int mask) {
    const GridKey* row = FindKey(GridKeys(), {code, mask});
    return row == nullptr ? CommandCall() : row->starts;
}

// Kept for compatibility: f10-with-any-modifier.
TEST(GridKeys, F10MeansSaveAsWithAnyModifiers) {
    for (int mask = Mask::None; mask <= (Mask::Shift | Mask::Ctrl | Mask::Alt); ++mask)
        EXPECT_EQ(CallOf(Key::F(10), mask), CommandCall(&mnuFile_SaveAs_Clack)) << mask;
}

TEST(GridKeys, AMaskMeansExactlyThatMask) {
    EXPECT_EQ(CallOf('X', Mask::Alt), CommandCall(&mnuSwitchFocus_Click));
    EXPECT_EQ(CallOf('X', Mask::Ctrl | Mask::Alt), CommandCall(&ExploreTableFolder));
    EXPECT_EQ(CallOf('X', Mask::Ctrl | Mask::Shift), CommandCall(&MakeEmailStrikethru));
    EXPECT_EQ(CallOf('X', Mask::Ctrl), CommandCall(&CutCell));
    EXPECT_EQ(CallOf('X', Mask::Shift), CommandCall());
    EXPECT_EQ(CallOf(Key::F(4), Mask::None), CommandCall(&mnuEdit_EditCell_Clack));
    EXPECT_EQ(CallOf(Key::F(4), Mask::Shift), CommandCall());
    EXPECT_EQ(CallOf('1', Mask::Ctrl), CommandCall(&mnuEdit_Font_Clack));
    EXPECT_EQ(CallOf('1', Mask::Ctrl | Mask::Alt), CommandCall(&RowColour<0>));
}

// Kept for compatibility: row-colour-keys-reach-grid.
TEST(GridKeys, OnlyTheRowColourKeysAreNotSwallowed) {
    std::string passing;
    for (const GridKey& key : GridKeys()) {
        if (key.use == KeyUse::Passes) passing += std::string(key.key.Name()) + " ";
    }
    EXPECT_EQ(passing,
              "Ctrl+Alt+1 Ctrl+Alt+F Ctrl+Alt+2 Ctrl+Alt+H Ctrl+Alt+3 Ctrl+Alt+Y Ctrl+Alt+4 Ctrl+Alt+R "
              "Ctrl+Alt+5 Ctrl+Alt+K Ctrl+Alt+6 Ctrl+Alt+L Ctrl+Alt+7 Ctrl+Alt+G Ctrl+Alt+8 Ctrl+Alt+A "
              "Ctrl+Alt+9 Ctrl+Alt+O ");
}

} // namespace
} // namespace korvane
