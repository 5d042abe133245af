#include "grid/GridStore.h"
#include "tbx/FileCheck.h"
#include "tbx/TableCheck.h"
#include "unit/tbx/TbxHarness.h"

#include <gmock/gmock.h>

#include <random>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// What the check tells, line by line.
template <class Check>
std::vector<std::string> TextsOf(const Check& check) {
    std::vector<std::string> texts;
    FindingStream findings([&](const Finding& finding) { texts.push_back(FindingText(finding)); });
    check(findings);
    EXPECT_EQ(findings.IsEmpty(), texts.empty());
    return texts;
}

std::vector<std::string> TextsOfTable(const Grid& grid) {
    return TextsOf([&](FindingStream& findings) { CheckTable(grid, findings); });
}

std::vector<std::string> TextsOfFile(std::string_view bytes) {
    return TextsOf([&](FindingStream& findings) { CheckFile(bytes, CodePage::Windows1252(), findings); });
}

TEST(Finding, NamesCellAndLineAsFarAsTheyAreKnown) {
    EXPECT_EQ(FindingText({{Row{3}, Col{2}}, 27, "what"}), "3:2: line 27: what");
    EXPECT_EQ(FindingText({{Row{3}, Col{0}}, 27, "what"}), "3: line 27: what");
    EXPECT_EQ(FindingText({{Row{3}, Col{2}}, 0, "what"}), "3:2: what");
    EXPECT_EQ(FindingText({{}, 27, "what"}), "line 27: what");
    EXPECT_EQ(FindingText({{}, 0, "what"}), "what");
    EXPECT_EQ(FindingText({{Row{3}, Col{2}}, 0, "what", 1, 5}), "3:2: line 5 of the cell what");
    EXPECT_EQ(FindingText({{Row{3}, Col{2}}, 27, "what", 5}), "3:2: line 27: what (5 times)");
}

TEST(FindingStream, WhatIsFoundAgainInACellIsCountedAtItsFirstPlace) {
    const CellPosition cell{Row{1}, Col{1}};
    EXPECT_THAT(TextsOf([&](FindingStream& findings) {
                    findings.Add(cell, 4, "a", "b");
                    findings.Add(cell, 5, "c");
                    findings.Add(cell, 6, "ab");
                    findings.Add({Row{2}, Col{1}}, 7, "ab");
                    findings.Finish();
                }),
                ElementsAre("1:1: line 4: ab (2 times)", "1:1: line 5: c", "2:1: line 7: ab"));
}

TEST(FindingStream, WhatWasFoundIsPassedOnAsSoonAsTheCellEnds) {
    int passed = 0;
    FindingStream findings([&](const Finding&) { ++passed; });
    findings.Add({Row{1}, Col{1}}, 0, "a");
    findings.Add({Row{1}, Col{1}}, 0, "b");
    EXPECT_EQ(passed, 0);
    findings.Add({Row{1}, Col{2}}, 0, "a");
    EXPECT_EQ(passed, 2);
    findings.Finish();
    EXPECT_EQ(passed, 3);
}

class TableOfOneCell : public testing::Test {
protected:
    std::vector<std::string> Check(TextView text, int page = 1252) {
        GridStore grid(*CodePage::ForNumber(page));
        grid.AddCol(u"1no", u"Name");
        grid.AddCol(u"2no", u"Note");
        grid.SetRowCount(Row{1});
        grid.SetCellValue(Row{1}, Col{2}, text);
        return TextsOfTable(grid);
    }
    static std::string Marker(int line, const std::string& mark) {
        return "1:2: line " + std::to_string(line) + " of the cell begins with \"" + mark +
               "\", which marks something else in a file";
    }
};

TEST_F(TableOfOneCell, EveryMarkThatBeginsALineIsFound) {
    for (const char* mark : {"@", "?", ";", "§"}) {
        EXPECT_THAT(Check(FromUtf8(mark)), ElementsAre(Marker(1, mark)));
        EXPECT_THAT(Check(u"a\r\n" + FromUtf8(mark) + u"b"), ElementsAre(Marker(2, mark)));
        EXPECT_THAT(Check(u"a" + FromUtf8(mark)), IsEmpty());
        EXPECT_THAT(Check(u"a\n" + FromUtf8(mark)), IsEmpty()) << "a lone LF ends no line";
    }
}

TEST_F(TableOfOneCell, AnExclamationMarkCountsInTheFirstLineAlone) {
    EXPECT_THAT(Check(u"!a"), ElementsAre(Marker(1, "!")));
    EXPECT_THAT(Check(u"a\r\n!b"), IsEmpty());
}

TEST_F(TableOfOneCell, TheSectionMarkIsTheByteAndNotTheCharacter) {
    EXPECT_THAT(Check(u"\u0E07", 874), ElementsAre(Marker(1, "ง"))) << "the letter in its place in Thai";
}

TEST_F(TableOfOneCell, AFinalLineBreakIsFound) {
    EXPECT_THAT(Check(u"a\r\n"), ElementsAre("1:2: the final line break is taken off by a save"));
    EXPECT_THAT(Check(u"a\r\n\r\nb"), IsEmpty());
}

TEST_F(TableOfOneCell, ALoneCrIsFoundAndEndsALine) {
    EXPECT_THAT(Check(u"a\rb"), ElementsAre("1:2: a lone CR comes back as CR LF"));
    EXPECT_THAT(Check(u"a\r;"), ElementsAre("1:2: a lone CR comes back as CR LF", Marker(2, ";")));
}

TEST_F(TableOfOneCell, ACharacterOutsideThePageIsFound) {
    EXPECT_THAT(Check(u"a\u0416"),
                ElementsAre("1:2: the text has a character outside the code page, which becomes \"?\""));
    EXPECT_THAT(Check(u"a\u0416", 1251), IsEmpty());
}

TEST(TableCheck, TheMarkForDeletionCountsInColumnOneAlone) {
    GridStore grid(CodePage::Windows1252());
    grid.AddCol(u"1no", u"Name");
    grid.AddCol(u"2no", u"Note");
    grid.SetRowCount(Row{2});
    grid.SetCellValue(Row{1}, Col{2}, u"---");
    grid.SetCellValue(Row{2}, Col{1}, u"---");
    EXPECT_THAT(TextsOfTable(grid), ElementsAre("2:1: the row is marked for deletion: a save leaves it out"));
}

TEST(TableCheck, ATableWiderThanAFileIsFound) {
    GridStore grid(CodePage::Windows1252());
    grid.SetColCount(Col{25});
    grid.SetRowCount(Row{1});
    EXPECT_THAT(TextsOfTable(grid), ElementsAre("with more than 24 columns, nothing comes back"));
}

TEST_F(TableOfOneCell, LinesWithTheSameMarkAreToldOnce) {
    EXPECT_THAT(Check(u"@\r\n;\r\n@\r\n@"), ElementsAre(Marker(1, "@") + " (3 times)", Marker(2, ";")));
}

TEST(FileCheck, AFaultInEveryLineOfACellIsOneFinding) {
    std::string file = "!0\r\n!A\r\n!1\r\n!31\r\n!Name\r\n!80\r\n@row_1\r\n@col_1\r\n";
    file += std::string(100'000, '\r') + "x\r\n;\r\n; End of File: a\r\n;\r\n";
    EXPECT_THAT(TextsOfFile(file),
                ElementsAre("1:1: line 9: ends in a lone CR, which comes back as CR LF (100000 times)"));
}

TEST(FileCheck, RowsPastTheLastAreFoundOnce) {
    std::string rows = "!0\r\n!A\r\n!1\r\n!31\r\n!Name\r\n!80\r\n";
    for (int row = 1; row <= 32767; ++row)
        rows += "@row_" + std::to_string(row) + "\r\n@col_1\r\nx\r\n";
    const std::string end = ";\r\n; End of File: /a\r\n;\r\n";
    EXPECT_THAT(TextsOfFile(rows + end), IsEmpty());
    rows += "@row_32768\r\n@col_1\r\nx\r\n@row_32769\r\n@col_1\r\nx\r\n";
    EXPECT_THAT(TextsOfFile(rows + end), ElementsAre("rows past 32767 don't arrive"));
}

/// Files in the writer's form, but with some lines doubled, dropped, exchanged or replaced.
std::string RandomFile(std::mt19937& random) {
    static const std::vector<std::string> kLines{"@row_1",
                                                 "@row_2",
                                                 "@rowing",
                                                 "?1IBX",
                                                 "?0000",
                                                 "\xA7"
                                                 "255",
                                                 "\xA7-999",
                                                 "@col_1",
                                                 "@col_2",
                                                 "@col_3",
                                                 "@x",
                                                 "!Name",
                                                 "!1920",
                                                 "!",
                                                 "; a",
                                                 ";",
                                                 "text",
                                                 "",
                                                 "---",
                                                 "a\rb",
                                                 "\xE9",
                                                 "\x81"};
    std::vector<std::string> lines{"!16777215", "!Calibri", "!12", "!372", "!Name", "!1920", "!Note", "!800"};
    for (auto rows = random() % 3; rows > 0; --rows)
        for (const std::string& line : RowLines(1 + static_cast<int>(random() % 3), {"Anna", "x"}))
            lines.push_back(line);
    lines.insert(lines.end(), {";", "; End of File: /a", ";"});
    for (auto changes = random() % 4; changes > 0; --changes) {
        const auto at = lines.begin() + static_cast<std::ptrdiff_t>(random() % lines.size());
        const std::string& line = kLines[random() % kLines.size()];
        if (random() % 3 == 0)
            lines.erase(at);
        else if (random() % 2 == 0)
            lines.insert(at, line);
        else
            *at = line;
        if (lines.empty()) lines.emplace_back(";");
    }
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

TEST(CheckCommand, AFileWithoutFindingsSurvivesARewrite) {
    std::mt19937 random(20261121);
    TbxHarness run;
    int sound = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::string file = RandomFile(random);
        run.files.AddFile(u"/in.tbx", file);
        if (run.Run({"check", "/in.tbx"}) != ExitStatus::Success) continue;
        ++sound;
        run.Run({"dump", "/in.tbx"});
        const std::string before = run.out;
        run.Run({"rewrite", "/in.tbx", "/out.tbx"});
        run.Run({"dump", "/out.tbx"});
        ASSERT_EQ(run.out, before) << file;
        run.Run({"check", "/out.tbx"});
        ASSERT_EQ(run.out, "") << file;
    }
    EXPECT_GT(sound, 500);
}

TEST(CheckCommand, WhatASaveWritesHasNoFindingsInTheFile) {
    std::mt19937 random(7);
    TbxHarness run;
    int rewritten = 0;
    for (int i = 0; i < 2000; ++i) {
        run.files.AddFile(u"/in.tbx", RandomFile(random));
        run.Run({"rewrite", "/in.tbx", "/out.tbx"});
        run.Run({"rewrite", "/out.tbx", "/again.tbx"});
        const std::string bytes = *run.files.Contents(u"/again.tbx");
        // The columns of a table without rows are gone with the first save.
        if (bytes.find("@row") == bytes.npos) continue;
        ++rewritten;
        for (const std::string& finding : TextsOfFile(bytes))
            ASSERT_THAT(finding, HasSubstr("code page")) << bytes;
    }
    EXPECT_GT(rewritten, 500);
}

} // namespace
} // namespace korvane
