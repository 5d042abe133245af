// Chooses every command of the menu with the keyboard alone, and closes the windows that it opens.

#include "e2e/DeskTest.h"
#include "shell/commands/Commands.h"

#include <gtest/gtest.h>

#include <map>
#include <string_view>

namespace korvane::e2e {
namespace {

using Keys = std::vector<std::string>;

/// A window that appears, and the keys that close it. It may stay until a question that follows is answered.
struct Visit {
    std::string title;
    Keys keys{"Escape"};
    bool stays = false;
};

/// What a command does: the windows that it shows one after the other, the program that it starts ("" for
/// none), and the keys that lead back to the table of the tour.
struct Stop {
    std::vector<Visit> visits{};
    std::string started{};
    Keys back{};
};

const Stop kSilent{};
constexpr auto kClipboard = "^Contents of Windows clipboard ";

Stop Shows(const std::string& title, const Keys& keys = {"Escape"}) {
    return {{{title, keys}}};
}
/// A message box has the same title as the main window.
Stop Asks(const Keys& keys) {
    return Shows(kMain, keys);
}
Stop Starts(const std::string& commandLine) {
    return {{}, commandLine};
}

/// The text window shows what it got, and asks before it is closed.
const Stop kTakesText{{{"^Untitled.rtf$", {"alt+f", "x"}, true},
                       {"^Closing altered file", {"alt+n"}, true},
                       {kMain, {"alt+y"}}}};

const std::map<std::string_view, Stop> kStops{
    {"mnuFile_Open", Shows("^Select a text database to edit$")},
    {"mnuFile_FileInfo", Shows("^File information$")},
    {"mnuFile_Save", kSilent},
    {"mnuFile_SaveAs", Shows("^Save database to disk$")},
    {"mnuFile_SaveAll", Asks({"Return"})},
    {"mnuFile_Close", kSilent},
    {"mnuFile_Recent", Shows("^Recent files list$")},
    {"mnuFile_DirLister", Shows("^Directory lister$")},
    {"mnuEdit_EditCell",
     {{{"^View and edit cell$", {"exclam"}}, {"cell text has been altered", {"alt+c", "w"}}}}},
    {"mnuEdit_Find", Shows("^Find and Replace$")},
    {"mnuEdit_Replace", Shows("^Find and Replace$")},
    {"mnuEdit_ToggleSelection", kSilent},
    {"mnuEdit_AddOneRow", kSilent},
    {"mnuEdit_AddRows", Shows("^Add rows$", {"Down", "Return"})},
    {"mnuEdit_SetRowHeight", Shows("^Row height$", {"Return"})},
    {"mnuEdit_Delete", Asks({"Escape"})},
    {"mnuDel_CheckedRows", Asks({"Escape"})},
    {"mnuEdit_ColumnName", Shows("^Column name$", {"W", "h", "o", "Return"})},
    {"mnuEdit_InsertColumn", kSilent},
    {"mnuEdit_DeleteColumn", Asks({"alt+n"})},
    {"mnuEdit_DesignDb", {{{"^Devise columns for new table$"}}, "", {"shift+F12"}}},
    {"MnuEdit_RefreshColumnWidths", kSilent},
    {"mnuImport_Clip", {{{kClipboard, {"alt+r"}}, {kMain, {"alt+y"}}}, "", {"shift+F12"}}},
    {"mnuEdit_WinClip", Shows(kClipboard)},
    {"mnuSelAll_TickBoxes", Asks({"alt+y"})},
    {"mnuSelAll_UnTickBoxes", Asks({"Escape"})},
    {"mnuEdit_CopyCellToText", kTakesText},
    {"mnuEdit_CopyRowToText", kTakesText},
    {"mnuCopyColumn", Shows("^Choose range$")},
    {"mnuCopyCheckedRows", Shows("^Copy rows$")},
    {"mnuCopyCheckedRowsToClipb", Shows("^Copy rows$")},
    {"mnuCopyTableToText", Shows("^Copy rows$")},
    {"mnuCopyTableToClipboard", Shows("^Copy rows$")},
    {"mnuEdit_MakeTable", Shows("^Choose range$")},
    {"mnuExport_Excel", Shows("^Choose range$")},
    {"mnuCalc_Add", {{{"^Choose range$", {"Return"}}, {kMain, {"alt+y"}}}}},
    {"mnuMisc_Calc", Starts("gnome-calculator ")},
    {"mnuEdit_Font", Shows("^Fonts and text styles$")},
    {"mnuFormat_BColor", Shows("^Select Color$")},
    {"mnuFormat_RowColour", Shows("^Set colour for checked items in list$")},
    {"mnuSidebarWidth", kSilent},
    {"mnuView_TextEdit", Shows("^Untitled.rtf$", {"alt+f", "x"})},
    {"mnuFile_SwitchTabsForward", kSilent},
    {"mnuFile_SwitchTabsBack", kSilent},
    {"mnuWindowSize", Shows("^Program window size$")},
    {"mnuFile_AreLoaded", Shows("^Following asterisks mean text has been altered$")},
    {"mnuStyle2", kSilent},
    {"mnuStyle3", kSilent},
    {"mnuStyle5", kSilent},
    {"mnuStyle7", kSilent},
    {"mnuStyle8", kSilent},
    {"mnuStyle9", kSilent},
    {"mnuStyle11", kSilent},
    {"mnuHelpText", Shows("^Help text$")},
    {"mnuMisc_About", Shows("^About Korvane$")},
    {"mnuMisc_Settings", Shows("^Settings$")},
    {"mnuMisc_Websites", Shows("^Website list :")},
    {"mnuMisc_Wallpaper",
     {{{kMain, {"Return"}},
       {"^Wallpaper$", {"a"}, true},
       {kMain, {"s", "e", "s", "a", "m", "e", "Return"}}}}},
    {"mnuMisc_YourProgram", Shows("^Set your program$")},
    {"mnuMisc_Clock", Shows("^Time & Date;  press any key to continue...$")},
    {"mnuMisc_Browser", kSilent},
    {"mnuMisc_Explorer", Starts("xdg-open ")},
    {"mnuSideBar", kSilent},
};

/// The keys that choose the command in the menu, starting from the grid.
Keys WayTo(int menu, int entry) {
    Keys keys{"alt+f"};
    keys.insert(keys.end(), static_cast<std::size_t>(menu), "Right");
    keys.insert(keys.end(), static_cast<std::size_t>(entry), "Down");
    keys.emplace_back("Return");
    return keys;
}

class TourTest : public DeskTest {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeskTest::SetUp());
        for (const auto* const program : {"gnome-calculator", "xdg-open"})
            desk.Provide(program);
        Set(kReturnPassword, "sesame");
        program = desk.Start({file.string()});
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
        desk.Press({"ctrl+Home"});
    }

    void Make(const Stop& stop) {
        for (const Visit& visit : stop.visits) {
            ASSERT_NE(desk.GoTo(visit.title, main), "") << visit.title << " doesn't come";
            desk.Press(visit.keys);
            if (visit.stays) continue;
            ASSERT_TRUE(desk.Gone(visit.title, main)) << visit.title << " doesn't go";
        }
        for (const Visit& visit : stop.visits)
            ASSERT_TRUE(desk.Gone(visit.title, main)) << visit.title << " doesn't go";
        ASSERT_TRUE(desk.Until([&] { return desk.Started().find(stop.started) != std::string::npos; }))
            << stop.started << " isn't in " << desk.Started();
        ASSERT_EQ(desk.GoTo(kMain), main);
        desk.Press(stop.back);
        ASSERT_TRUE(program->Running());
    }

    /// Chooses all commands of one menu except the one that ends the program.
    void Tour(std::string_view menuName) {
        int menu = -1;
        int entry = 0;
        bool wanted = false;
        for (const Command& command : Commands()) {
            if (command.level == kNotInMenu) break;
            if (command.level == 0) {
                ++menu;
                entry = 0;
                wanted = command.name == menuName;
                continue;
            }
            const int own = entry++;
            if (!wanted || command.name == "mnuFile_Exit") continue;
            SCOPED_TRACE(command.name);
            const auto stop = kStops.find(command.name);
            ASSERT_NE(stop, kStops.end()) << "the tour doesn't know the command";
            desk.Press(WayTo(menu, own));
            ASSERT_NO_FATAL_FAILURE(Make(stop->second));
        }
    }

    std::unique_ptr<Process> program;
    std::string main;
};

TEST_F(TourTest, File) {
    Tour("mnuFile");
}

TEST_F(TourTest, Edit) {
    Tour("mnuEdit");
    desk.Press({"ctrl+s"});
    // There were two rows, and the commands added one and then two. There were two columns, and a command
    // added one.
    EXPECT_TRUE(desk.Until([&] { return ReadBytes(file).find("@row_5\r\n") != std::string::npos; }));
    const std::string saved = ReadBytes(file);
    EXPECT_NE(saved.find("!NEW\r\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("@col_3\r\n"), std::string::npos) << saved;
}

TEST_F(TourTest, Import) {
    Tour("mnuImport");
}

TEST_F(TourTest, Export) {
    Tour("mnuExport");
}

TEST_F(TourTest, Calculation) {
    Tour("mnuCalc");
    desk.Press({"ctrl+s"});
    EXPECT_TRUE(desk.Until([&] { return ReadBytes(file).find("@row_3\r\n") != std::string::npos; }));
}

TEST_F(TourTest, View) {
    Tour("mnuView");
}

TEST_F(TourTest, Window) {
    Tour("mnuWindow");
}

TEST_F(TourTest, Styles) {
    Tour("mnuStyles");
}

TEST_F(TourTest, Miscellaneous) {
    Tour("mnuMisc");
}

} // namespace
} // namespace korvane::e2e
