#include "shell/Commands.h"

#include "shell/GridKeys.h"
#include "support/TestProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::Pair;

std::vector<std::string> NamesOfLevel(int level) {
    std::vector<std::string> names;
    for (const MenuEntry& entry : MenuBarEntries()) {
        if (entry.level == level) names.emplace_back(entry.name);
    }
    return names;
}

TEST(Commands, TheMenuBarStandsInItsOrder) {
    EXPECT_THAT(NamesOfLevel(0), ElementsAre("mnuFile", "mnuEdit", "mnuImport", "mnuExport", "mnuCalc",
                                             "mnuView", "mnuWindow", "mnuStyles", "mnuMisc", "mnuSideBar"));
    EXPECT_EQ(MenuBarEntries().size(), 73u);
}

TEST(Commands, EveryKeyOfTheMenuLeadsWhereItShould) {
    std::map<std::string, std::string> bound;
    for (const MenuEntry& entry : MenuBarEntries()) {
        if (entry.shortcut.empty()) continue;
        EXPECT_TRUE(ParseShortcut(entry.shortcut)) << entry.shortcut;
        EXPECT_TRUE(bound.emplace(entry.shortcut, entry.name).second) << entry.shortcut << " is bound twice";
    }
    EXPECT_THAT(
        bound,
        ElementsAre(
            Pair("Ctrl+A", "mnuSelAll_TickBoxes"), Pair("Ctrl+E", "mnuView_TextEdit"),
            Pair("Ctrl+F", "mnuEdit_Find"), Pair("Ctrl+F1", "mnuImport_Clip"),
            Pair("Ctrl+F11", "mnuFile_SaveAll"), Pair("Ctrl+F12", "mnuExport_Excel"),
            Pair("Ctrl+F2", "mnuCopyColumn"), Pair("Ctrl+F3", "mnuFormat_RowColour"),
            Pair("Ctrl+F5", "mnuFile_DirLister"), Pair("Ctrl+F7", "mnuMisc_Websites"),
            Pair("Ctrl+F9", "mnuEdit_MakeTable"), Pair("Ctrl+G", "mnuEdit_ToggleSelection"),
            Pair("Ctrl+H", "mnuEdit_SetRowHeight"), Pair("Ctrl+I", "mnuEdit_InsertColumn"),
            Pair("Ctrl+M", "mnuEdit_DeleteColumn"), Pair("Ctrl+N", "mnuEdit_DesignDb"),
            Pair("Ctrl+O", "mnuFile_Open"), Pair("Ctrl+Q", "mnuFile_Close"),
            Pair("Ctrl+R", "mnuEdit_Replace"), Pair("Ctrl+S", "mnuFile_Save"),
            Pair("Ctrl+Shift+F1", "mnuMisc_Calc"), Pair("Ctrl+Shift+F2", "mnuWindowSize"),
            Pair("Ctrl+Shift+F3", "mnuEdit_Delete"), Pair("Ctrl+Shift+F5", "mnuCopyCheckedRowsToClipb"),
            Pair("Ctrl+Shift+F6", "mnuCopyTableToText"), Pair("Ctrl+Shift+F7", "mnuCopyTableToClipboard"),
            Pair("Ctrl+Shift+F8", "mnuDel_CheckedRows"), Pair("Ctrl+Shift+F9", "mnuMisc_Explorer"),
            Pair("Ctrl+T", "mnuEdit_EditCell"), Pair("Ctrl+U", "mnuSelAll_UnTickBoxes"),
            Pair("Ctrl+W", "mnuEdit_AddOneRow"), Pair("Ctrl+Y", "mnuEdit_AddRows"), Pair("F1", "mnuHelpText"),
            Pair("F12", "mnuFile_SwitchTabsForward"), Pair("F3", "mnuMisc_Settings"),
            Pair("F5", "mnuFile_Recent"), Pair("F6", "mnuEdit_CopyCellToText"),
            Pair("F7", "mnuMisc_Wallpaper"), Pair("F8", "mnuFile_AreLoaded"),
            Pair("F9", "mnuMisc_YourProgram"), Pair("Shift+F12", "mnuFile_SwitchTabsBack"),
            Pair("Shift+F5", "mnuCopyCheckedRows"), Pair("Shift+F6", "mnuEdit_CopyRowToText"),
            Pair("Shift+F9", "mnuFile_FileInfo")));
}

TEST(Commands, CaptionsNameOtherKeysThanAreBoundAndStandSo) {
    EXPECT_EQ(FindCommand("mnuFile_SaveAs")->caption, u"Save &as ...    ( F10, Ctrl+Shift-S )");
    EXPECT_EQ(FindCommand("mnuFile_SaveAs")->shortcut, "");
    EXPECT_EQ(FindCommand("mnuFile_SaveAll")->caption, u"Sa&ve all   ( Ctrl-Shift-S )");
    EXPECT_EQ(FindCommand("mnuFile_SaveAll")->shortcut, "Ctrl+F11");
    EXPECT_EQ(FindCommand("mnuMisc_Browser")->caption, u"Internet &browser    ( Alt-B )");
}

TEST(Commands, NamesAreUniqueAndUnknownOnesFindNothing) {
    std::set<std::string_view> names;
    for (const Command& command : Commands()) {
        EXPECT_TRUE(names.insert(command.name).second) << command.name;
        EXPECT_EQ(FindCommand(command.name), &command);
    }
    EXPECT_EQ(FindCommand("mnuEdit_Edit"), nullptr);
}

TEST(Commands, EveryMenuEntryHasACaption) {
    for (const MenuEntry& entry : MenuBarEntries())
        EXPECT_FALSE(entry.caption.empty()) << entry.name;
}

TEST(Commands, ThePopUpMenuStandsByItsIndexes) {
    const auto entries = PopupMenuEntries();
    ASSERT_EQ(entries.size(), 18u);
    const std::set<std::size_t> separators{2, 9, 13, 16};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(entries[i].caption.empty(), separators.contains(i)) << i;
        EXPECT_EQ(FindCommand(entries[i].name) != nullptr, !separators.contains(i)) << i;
    }
    EXPECT_EQ(entries[12].caption, u"Copy whole table");
    EXPECT_EQ(entries[12].name, "mnuCopyTableToClipboard");
    EXPECT_EQ(entries[17].caption, u"Exit program");
}

TEST(Commands, TheTabStripsMenuIsTheWindowMenuWithoutItsKeys) {
    std::vector<std::string> names;
    for (const MenuEntry& entry : WindowMenuEntries()) {
        names.emplace_back(entry.name);
        EXPECT_EQ(entry.level, 0);
        EXPECT_EQ(entry.shortcut, "");
    }
    EXPECT_THAT(names, ElementsAre("mnuFile_SwitchTabsForward", "mnuFile_SwitchTabsBack", "mnuWindowSize",
                                   "mnuFile_AreLoaded"));
}

TEST(Commands, EveryButtonAndSideBarRowHasACommand) {
    EXPECT_EQ(ToolBarButtons().size(), 23u);
    for (const ToolBarButton& button : ToolBarButtons()) {
        EXPECT_NE(FindCommand(button.command), nullptr) << button.name;
        EXPECT_FALSE(button.toolTip.empty()) << button.name;
    }
    EXPECT_EQ(SideBarRows().size(), 16u);
    for (const SideBarRow& row : SideBarRows())
        EXPECT_NE(FindCommand(row.command), nullptr);
}

TEST(Commands, TheToolTipsOfTheStyleButtonsStandCrosswise) {
    const auto tip = [](std::string_view name) {
        return std::find_if(ToolBarButtons().begin(), ToolBarButtons().end(),
                            [name](const ToolBarButton& button) { return button.name == name; })
            ->toolTip;
    };
    EXPECT_EQ(tip("cmdStyleBack"), u"Next style");
    EXPECT_EQ(tip("cmdStyleForward"), u"Previous style");
    EXPECT_EQ(tip("cmdWindowsExplorer"), u"Load Widnows Explorer");
}

std::string RoutineOf(int code, int mask) {
    const GridKey* key = FindGridKey({code, mask});
    return key == nullptr ? "" : std::string(key->routine);
}

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
