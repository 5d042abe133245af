// The help text that ships with the program names what the program has, and nothing else.

#include "SourceTree.h"
#include "common/text/RtfText.h"
#include "shell/commands/Commands.h"
#include "shell/commands/GridKeys.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace korvane {
namespace {

/// The lines under each heading. The cells of a table's row are in one line, with tabs between them.
using Sections = std::map<std::string, std::vector<std::string>>;

std::string HelpBytes() {
    std::ifstream file(std::filesystem::path(KORVANE_SOURCE_DIR) / "packaging/Korvane_Help.rtf");
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Plain(TextView caption) {
    std::string plain;
    for (const char16_t character : caption) {
        if (character != u'&') plain += static_cast<char>(character);
    }
    return plain;
}

/// The caption without its mnemonic and without the keys that some captions name themselves.
std::string NameOf(TextView caption) {
    std::string name = Plain(caption);
    name = name.substr(0, name.find("  ("));
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

/// The key as the help tells it: without a word on modifiers that don't matter.
std::string KeyName(const GridKey& key) {
    std::string name(key.key.Name());
    const std::string any = "Any+";
    return name.starts_with(any) ? name.substr(any.size()) : name;
}

std::vector<std::string> Cells(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream in(line);
    for (std::string cell; std::getline(in, cell, '\t');)
        cells.push_back(cell);
    return cells;
}

/// The entries of each menu by the heading of its section.
std::map<std::string, std::vector<MenuEntry>> Menus() {
    std::map<std::string, std::vector<MenuEntry>> menus;
    std::vector<MenuEntry>* menu = nullptr;
    for (const MenuEntry& entry : MenuBarEntries()) {
        if (entry.level == 0) {
            menu = &menus["The " + Plain(entry.caption) + " menu"];
        } else {
            menu->push_back(entry);
        }
    }
    return menus;
}

class HelpTextTest : public testing::Test {
protected:
    HelpTextTest() {
        std::istringstream text(RtfText(HelpBytes()));
        std::string heading;
        for (std::string line; std::getline(text, line);) {
            if (line.starts_with(kRtfHeading)) {
                heading = line.substr(kRtfHeading.size());
            } else if (!line.empty()) {
                sections[heading].push_back(line);
            }
        }
    }

    /// The rows of a section's table by their first cell, its head left out.
    std::map<std::string, std::vector<std::string>> Rows(const std::string& heading) {
        std::map<std::string, std::vector<std::string>> rows;
        bool inHead = true;
        for (const std::string& line : sections[heading]) {
            const auto cells = Cells(line);
            if (cells.size() < 2) continue;
            if (!inHead) rows.emplace(cells[0], cells);
            inHead = false;
        }
        return rows;
    }
    std::set<std::string> CellsOfSection(const std::string& heading) {
        std::set<std::string> all;
        for (const std::string& line : sections[heading]) {
            for (const std::string& cell : Cells(line))
                all.insert(cell);
        }
        return all;
    }

    Sections sections;
};

TEST_F(HelpTextTest, EveryMenuHasASectionWithItsCommandsAndNoOthers) {
    for (const auto& [menu, entries] : Menus()) {
        std::set<std::string> named;
        for (const MenuEntry& entry : entries)
            named.insert(NameOf(entry.caption));
        std::set<std::string> told;
        for (const auto& [name, cells] : Rows(menu))
            told.insert(name);
        EXPECT_TRUE(sections.contains(menu)) << menu;
        EXPECT_EQ(told, named) << menu;
    }
}

TEST_F(HelpTextTest, EveryCommandIsToldWithTheKeyThatTheMenuBinds) {
    for (const auto& [menu, entries] : Menus()) {
        const auto rows = Rows(menu);
        for (const MenuEntry& entry : entries) {
            const std::string name = NameOf(entry.caption);
            ASSERT_TRUE(rows.contains(name)) << name;
            const auto& cells = rows.at(name);
            ASSERT_EQ(cells.size(), 3u) << name;
            EXPECT_TRUE(entry.shortcut.Name().empty() || cells[1] == entry.shortcut.Name())
                << name << ": " << cells[1];
            EXPECT_GT(cells[2].size(), 10u) << name;
        }
    }
}

TEST_F(HelpTextTest, EveryKeyOfTheTableIsTold) {
    const auto told = CellsOfSection("Keys of the table");
    for (const GridKey& key : GridKeys())
        EXPECT_TRUE(told.contains(KeyName(key))) << KeyName(key);
}

TEST_F(HelpTextTest, NoKeyOfTheTableIsToldThatItDoesNotHave) {
    std::set<std::string> known;
    for (const GridKey& key : GridKeys())
        known.insert(KeyName(key));
    for (const auto& [key, cells] : Rows("Keys of the table")) {
        if (key != "Key") {
            EXPECT_TRUE(known.contains(key)) << key;
        }
    }
}

TEST_F(HelpTextTest, EveryRowOfTheSidebarIsTold) {
    const auto rows = Rows("The sidebar");
    for (const SideBarRow& row : SideBarRows())
        EXPECT_TRUE(rows.contains(Plain(row.text))) << Plain(row.text);
    EXPECT_EQ(rows.size(), SideBarRows().size());
}

TEST(RtfTextTest, ReadsWhatAReaderWouldShow) {
    EXPECT_EQ(
        RtfText("{\\rtf1{\\fonttbl{\\f0 Calibri;}}{\\*\\gen x}\\pard a{\\b b} c\\par d\\\\\\{\\'e9\\par}"),
        "ab c\nd\\{\xE9\n");
    EXPECT_EQ(RtfText("{\\rtf1\\pard\\outlinelevel0 Head\\par\n\\pard x\\tab y\\par}"), "# Head\nx\ty\n");
    EXPECT_EQ(RtfText("{\\rtf1\\trowd\\intbl one\\cell\\intbl two\\cell\\row}"), "one\ttwo\t\n");
}

} // namespace
} // namespace korvane
