#include "unit/tbx/TbxHarness.h"

#include <gmock/gmock.h>

#include <random>

namespace korvane {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Doubled(std::string_view text) {
    std::string doubled;
    for (const char byte : text)
        doubled.append(byte == '"' ? 2 : 1, byte);
    return doubled;
}

class Import : public testing::Test {
protected:
    /// Imports the bytes and gives the new table back as CSV.
    std::string ImportAndRead(const std::string& csv, const std::vector<std::string>& options = {}) {
        run.files.AddFile(u"/data/in.csv", csv);
        std::vector<std::string> arguments{"import", "/data/in.csv", "/data/out.tbx"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_EQ(run.Run(arguments), ExitStatus::Success);
        EXPECT_EQ(run.out + run.err, "");
        run.Run({"csv", "/data/out.tbx"});
        return run.out;
    }

    void ExpectRefusal(const std::string& csv, const std::string& reason) {
        run.files.AddFile(u"/data/in.csv", csv);
        EXPECT_EQ(run.Run({"import", "/data/in.csv", "/data/out.tbx"}), ExitStatus::Error);
        EXPECT_EQ(run.err, "tbx: \"/data/in.csv\": " + reason + "\n");
        EXPECT_FALSE(run.files.FileExists(u"/data/out.tbx")) << "nothing is written";
    }

    void ExpectLoss(const std::string& csv, const std::string& loss) {
        run.files.AddFile(u"/data/in.csv", csv);
        EXPECT_EQ(run.Run({"import", "/data/in.csv", "/data/out.tbx"}), ExitStatus::Problem);
        EXPECT_EQ(run.err, "tbx: \"/data/out.tbx\": " + loss + "\n");
        EXPECT_TRUE(run.files.FileExists(u"/data/out.tbx"));
    }

    TbxHarness run;
};

TEST_F(Import, TheNewTableLooksLikeOneMadeInTheProgram) {
    ImportAndRead("Name,Note\nAnna,x\n");
    run.Run({"dump", "/data/out.tbx"});
    EXPECT_EQ(run.out, R"({"header":{"back":16777215,"font":"Calibri","size":12,"height":24},)"
                       R"("names":["Name","Note"],"columns":[{"key":"1no","header":"Name","width":240},)"
                       R"({"key":"2no","header":"Note","width":240}],"rows":[{"height":24,"visible":1,)"
                       R"("check":0,"shown":1,"back":[-1,-1],"fore":[-1,-1],"italic":[0,0],"bold":[0,0],)"
                       R"("strike":[0,0],"cells":["Anna","x"]}],"messages":[]})"
                       "\n");
}

TEST_F(Import, TheFileIsInTheWritersForm) {
    ImportAndRead("Name,Note\nAnna,x\nBert,\n");
    std::vector<std::string> lines = RowLines(1, {"Anna", "x"});
    for (const std::string& line : RowLines(2, {"Bert", ""}))
        lines.push_back(line);
    std::string expected = TbxFile(lines);
    expected.replace(expected.find("/data/people.tbx"), 16, "/data/out.tbx");
    EXPECT_EQ(run.files.Contents(u"/data/out.tbx"), expected);
}

TEST_F(Import, LineBreaksInCellsBecomeCrLf) {
    EXPECT_EQ(ImportAndRead("a,b\n\"1\n2\",\"3\r\n4\"\n\"5\r6\",x\n"),
              "a,b\r\n\"1\r\n2\",\"3\r\n4\"\r\n\"5\r\n6\",x\r\n");
}

TEST_F(Import, LineBreaksInColumnNamesBecomeABlank) {
    EXPECT_EQ(ImportAndRead("\"a\r\nb\",\"c\nd\"\n1,2\n"), "a b,c d\r\n1,2\r\n");
}

TEST_F(Import, AnUtf8MarkIsNotPartOfTheFirstName) {
    EXPECT_EQ(ImportAndRead("\xEF\xBB\xBFName\nZoë\n"), "Name\r\nZoë\r\n");
}

TEST_F(Import, BytesThatAreNoUtf8AreReadInTheCodePage) {
    EXPECT_EQ(ImportAndRead("Name\nZo\xEB\n"), "Name\r\nZoë\r\n");
}

TEST_F(Import, ShortRecordsAreFilledUpAndEmptyLinesPassedOver) {
    EXPECT_EQ(ImportAndRead("a,b,c\n\n1\n2,\n\n"), "a,b,c\r\n1,,\r\n2,,\r\n");
}

TEST_F(Import, InASingleColumnAnEmptyLineIsARow) {
    EXPECT_EQ(ImportAndRead("a\n\n1\n"), "a\r\n\"\"\r\n1\r\n");
}

TEST_F(Import, TakesADelimiter) {
    EXPECT_EQ(ImportAndRead("a;b\n1,5;2\n", {"-d;"}), "a,b\r\n\"1,5\",2\r\n");
    EXPECT_EQ(ImportAndRead("a\tb\n1\t2\n", {"-d", "tab"}), "a,b\r\n1,2\r\n");
}

TEST_F(Import, ALongCellComesInPiecesThatPartNothing) {
    // Line breaks, characters of two bytes and doubled quotes are at every place of a piece.
    for (std::size_t shift = 0; shift < 4; ++shift) {
        const std::string begin = std::string(16 * 1024 - 2 + shift, 'a') + "\r\né";
        std::string expected = begin;
        std::string quoted = begin;
        for (int i = 0; i < 20'000; ++i) {
            expected += "é\r\n\"";
            quoted += i % 2 == 0 ? "é\r\n\"\"" : "é\n\"\"";
        }
        EXPECT_EQ(ImportAndRead("x\n\"" + quoted + "b\"\n"), "x\r\n\"" + Doubled(expected) + "b\"\r\n");
    }
}

TEST_F(Import, NothingIsReadAfterTheFirstFieldTooMany) {
    std::string names = "a";
    for (int i = 2; i <= 25; ++i)
        names += ",a";
    ExpectRefusal(names + "\n\"not closed", "line 1: there are more columns than the 24 that there can be");
    ExpectRefusal("a,b\n1,2,\"not closed", "line 2: there are more fields than the 2 that there can be");
}

TEST_F(Import, ReadsAndWritesTheStandardStreams) {
    run.input = "a\n1\n";
    EXPECT_EQ(run.Run({"import", "-", "-"}), ExitStatus::Success);
    EXPECT_THAT(run.out, HasSubstr("@col_1\r\n1\r\n;\r\n; End of File: -\r\n;\r\n"));
}

TEST_F(Import, WhatIsNoTableIsRefused) {
    ExpectRefusal("", "there is no row of column names");
    ExpectRefusal("a,b\n1,2\n1,2,3\n", "line 3: there are more fields than the 2 that there can be");
    ExpectRefusal("a,b\n1,\"2\n", "line 2: the quoted field that begins here doesn't end");
    ExpectRefusal("a,b\n\"1\n\"x,2\n", "line 3: there is text after the closing quote of a field");
    ExpectRefusal("\"a\n", "line 1: the quoted field that begins here doesn't end");
    ExpectRefusal("\xFF\xFE"
                  "a",
                  "it is in UTF-16: save it as UTF-8");
}

TEST_F(Import, ATableThatNoFileCanHoldIsRefused) {
    std::string names = "a";
    for (int i = 2; i <= 24; ++i)
        names += ",a";
    EXPECT_THAT(ImportAndRead(names + "\n1\n"), HasSubstr("\r\n1,,"));
    run.files.Erase(u"/data/out.tbx");
    ExpectRefusal(names + ",a\n1\n", "line 1: there are more columns than the 24 that there can be");

    std::string rows = "a\n";
    for (int i = 1; i <= 32767; ++i)
        rows += "x\n";
    EXPECT_EQ(ImportAndRead(rows).size(), 3u * 32768u);
    run.files.Erase(u"/data/out.tbx");
    ExpectRefusal(rows + "y\n", "line 32769: a table holds no more than 32767 rows");
}

TEST_F(Import, WhatALoadWillNotBringBackIsTold) {
    ExpectLoss("a,b\n1,\"2\n@3\"\n",
               "1:2: line 2 of the cell begins with \"@\", which marks something else in a file");
    ExpectLoss("a,b\n!1,2\n",
               "1:1: line 1 of the cell begins with \"!\", which marks something else in a file");
    ExpectLoss("a,b\n1,\"2\n\"\n", "1:2: the final line break is taken off by a save");
    ExpectLoss("a\n---\n", "1:1: the row is marked for deletion: a save leaves it out");
    ExpectLoss("a\nпривет\n", "1:1: the text has a character outside the code page, which becomes \"?\"");
    ExpectLoss("день\n1\n",
               "the name of column 1 has a character outside the code page, which becomes \"?\"");
    ExpectLoss("a,b\n", "without rows, the columns don't come back");
}

TEST_F(Import, TheCodePageDecidesWhatCanBeKept) {
    run.files.AddFile(u"/data/in.csv", "a\nпривет\n");
    EXPECT_EQ(run.Run({"import", "-p", "1251", "/data/in.csv", "/data/out.tbx"}), ExitStatus::Success);
    run.Run({"csv", "-p", "1251", "/data/out.tbx"});
    EXPECT_EQ(run.out, "a\r\nпривет\r\n");
}

TEST_F(Import, AFileThatCannotBeWrittenIsAnError) {
    run.files.AddFile(u"/data/in.csv", "a\n1\n");
    run.files.SetDiskReadOnly();
    EXPECT_EQ(run.Run({"import", "/data/in.csv", "/data/out.tbx"}), ExitStatus::Error);
    EXPECT_THAT(run.err, HasSubstr("cannot write \"/data/out.tbx\": "));
}

/// A cell of letters, marks and line breaks.
std::string RandomField(std::mt19937& random) {
    static const std::vector<std::string> kPieces{"a", "b", " ", ",",   "\"\"", "@",    "?",
                                                  ";", "!", "§", "---", "\r\n", "@row", "é"};
    std::string field = "\"";
    for (auto count = random() % 5; count > 0; --count)
        field += kPieces[random() % kPieces.size()];
    return field + "\"";
}

TEST_F(Import, WhatIsPassedWithoutAWordComesBackUnchanged) {
    std::mt19937 random(20261121);
    int passed = 0;
    for (int i = 0; i < 3000; ++i) {
        std::string csv = "a,b\r\n";
        for (auto rows = 1 + random() % 3; rows > 0; --rows)
            csv += RandomField(random) + "," + RandomField(random) + "\r\n";
        run.files.AddFile(u"/data/in.csv", csv);
        if (run.Run({"import", "/data/in.csv", "/data/out.tbx"}) != ExitStatus::Success) continue;
        ++passed;
        run.Run({"csv", "/data/out.tbx"});
        const std::string first = run.out;
        run.files.AddFile(u"/data/in.csv", first);
        ASSERT_EQ(run.Run({"import", "/data/in.csv", "/data/out.tbx"}), ExitStatus::Success) << csv;
        run.Run({"csv", "/data/out.tbx"});
        ASSERT_EQ(run.out, first);
        run.Run({"check", "/data/out.tbx"});
        ASSERT_EQ(run.out, "") << csv;
    }
    EXPECT_GT(passed, 100);
}

} // namespace
} // namespace korvane
