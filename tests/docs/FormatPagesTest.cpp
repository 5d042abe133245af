// Compares the pages of docs/formats with the program: it loads the examples, and the table of settings must
// be the same as the program's.

#include "SourceTree.h"
#include "common/number/DateTime.h"
#include "common/settings/Settings.h"
#include "grid/GridStore.h"
#include "platform/FileSystem.h"
#include "shell/recent/RecentRecord.h"
#include "support/TempDir.h"
#include "support/TestTable.h"
#include "table/model/TbxReader.h"
#include "table/model/TbxWriter.h"

#include <gtest/gtest.h>

#include <array>
#include <regex>
#include <set>
#include <sstream>

namespace korvane {
namespace {

std::string Page(const std::string& name) {
    return ReadBytes(std::filesystem::path(KORVANE_SOURCE_DIR) / "docs/formats" / name);
}

/// The code block of this kind on the page. Each line ends with CR LF, and the section mark is one byte.
std::string Example(const std::string& page, const std::string& kind) {
    const std::string fence = "```";
    const std::string opening = fence + kind + "\n";
    const std::size_t found = page.find(opening);
    if (found == std::string::npos) return {};
    const std::size_t begin = found + opening.size();
    const std::string block = page.substr(begin, page.find(fence, begin) - begin);
    const std::string crLf = std::regex_replace(block, std::regex("\n"), "\r\n");
    return std::regex_replace(crLf, std::regex("§"), "\xA7");
}

std::vector<std::vector<std::string>> TableRows(const std::string& page, std::size_t columns) {
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        static const std::regex kCell(R"(\| ([^|]*) (?=\|))");
        std::vector<std::string> cells;
        for (std::sregex_iterator it(line.begin(), line.end(), kCell), end; it != end; ++it)
            cells.push_back((*it)[1]);
        if (cells.size() == columns && std::isdigit(static_cast<unsigned char>(cells[0][0])))
            rows.push_back(cells);
    }
    return rows;
}

std::string Quoted(const std::string& name) {
    return "`" + name + "`";
}

std::string NameOf(const SettingLine& setting) {
    return Quoted(ToUtf8(setting.name));
}

std::string KindOf(const SettingLine& setting) {
    if (setting.kind == SettingKind::NumberAsText) return "number as text";
    return std::array{"text", "i32", "i16"}.at(setting.read.index());
}

/// The name of the setting from which the line is written.
std::string WrittenName(const SettingLine& setting) {
    for (const SettingLine& other : SettingsTable())
        if (other.read == setting.written) return NameOf(other);
    return "none";
}

bool IsExchanged(const SettingLine& setting) {
    return setting.read != setting.written;
}

TEST(KorvaneIniPage, NamesEveryLineWithItsNameAndKind) {
    const auto rows = TableRows(Page("korvane-ini.md"), 4);
    ASSERT_EQ(rows.size(), kSettingLines);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const SettingLine& setting = SettingsTable()[i];
        EXPECT_EQ(rows[i][0], std::to_string(i + 1));
        EXPECT_EQ(rows[i][1], NameOf(setting)) << "in line " << i + 1;
        EXPECT_EQ(rows[i][2], KindOf(setting)) << "in line " << i + 1;
        const std::string written = IsExchanged(setting) ? "; written from " + WrittenName(setting) : "";
        EXPECT_TRUE(rows[i][3].ends_with(written)) << "in line " << i + 1;
        EXPECT_EQ(rows[i][3].find("written from") != std::string::npos, IsExchanged(setting)) << i + 1;
    }
}

/// The names of the spare lines that a source uses, apart from those that list all settings.
std::set<std::string> SparesInUse() {
    static const std::regex kSpare(R"(\bSpare\d+\b)");
    const auto sources = std::filesystem::path(KORVANE_SOURCE_DIR) / "src";
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        if (entry.path().extension() != ".cpp" || entry.path().filename() == "Settings.cpp") continue;
        const std::string source = ReadBytes(entry.path());
        for (std::sregex_iterator it(source.begin(), source.end(), kSpare), end; it != end; ++it)
            names.insert(Quoted(it->str()));
    }
    return names;
}

TEST(KorvaneIniPage, CallsALineSpareIfNoSourceUsesIt) {
    const std::set<std::string> inUse = SparesInUse();
    EXPECT_EQ(inUse.size(), 4u);
    for (const auto& row : TableRows(Page("korvane-ini.md"), 4)) {
        const bool unused = row[1].starts_with("`Spare") && !inUse.contains(row[1]);
        EXPECT_EQ(row[3].starts_with("spare"), unused) << "in line " << row[0];
    }
}

TEST(KorvaneIniPage, ListsTheLinesThatAreWrittenExchanged) {
    std::vector<std::vector<std::string>> expected;
    for (const SettingLine& setting : SettingsTable())
        if (IsExchanged(setting))
            expected.push_back({std::to_string(setting.line), NameOf(setting), WrittenName(setting)});
    EXPECT_EQ(expected.size(), 6u);
    EXPECT_EQ(TableRows(Page("korvane-ini.md"), 3), expected);
}

TEST(KorvaneRecPage, ItsExampleIsALineOfTheProgram) {
    RecentRecord record;
    record.AddToRecent(u"D:\\Data\\Books.tbx", 0, {2026, 3, 1, 14, 5, 0});
    EXPECT_EQ(Example(Page("korvane-rec.md"), "rec"), ToUtf8(record.RecentEntries[1]) + "\r\n");
}

class StringWriter final : public FileWriter {
public:
    bool Write(std::string_view part) override {
        bytes += part;
        return true;
    }
    bool Close() override { return true; }

    std::string bytes;
};

class TbxPage : public testing::Test {
protected:
    TbxPage() {
        const auto bytes = std::make_shared<const std::string>(example);
        TbxReader(table.model, table.host, false, {{bytes, bytes->data()}, bytes->size()}).Read();
    }

    const std::string example = Example(Page("tbx.md"), "tbx");
    TestTable table;
};

TEST_F(TbxPage, ItsExampleLoadsAsThePageSays) {
    EXPECT_EQ(table.grid.ColHeaderText(Col{1}), u"Name");
    EXPECT_EQ(table.grid.ColWidth(Col{2}), 240);
    EXPECT_EQ(table.grid.RowCount(), Row{2});
    EXPECT_EQ(table.grid.RowHeight(Row{1}), 24);
    EXPECT_EQ(table.grid.CellCheck(Row{1}), 1);
    EXPECT_EQ(table.grid.CellValue(Row{1}, Col{2}), u"first line\r\nsecond line");
    EXPECT_EQ(table.grid.CellValue(Row{2}, Col{1}), u"Bert");
    EXPECT_EQ(table.grid.CellValue(Row{2}, Col{2}), u"");
    EXPECT_TRUE(table.grid.CellFontFlag(Row{2}, Col{2}, CellFlag::Bold));
    EXPECT_EQ(table.grid.CellBackColor(Row{2}, Col{1}), Colour{65535});
}

TEST_F(TbxPage, ItsExampleIsWrittenAgainButForTheNumberOfTheSecondRow) {
    table.model.TxtDbFile = u"D:\\data\\people.tbx";
    StringWriter file;
    TbxWriter(table.model, file).Write();
    EXPECT_EQ(file.bytes, std::regex_replace(example, std::regex("@row_3"), "@row_2"));
}

} // namespace
} // namespace korvane
