// A large file's rows are read in two threads. Here every file counts as large.

#include "support/PlainTbxReader.h"
#include "unit/table/TbxFixtures.h"

namespace korvane {
namespace {

std::string Rows(int count) {
    std::string rows;
    for (int row = 0; row < count; ++row)
        rows += Lines("@row_1\n?1IB\n§255\n@col_1\nText " + std::to_string(row) + "\n@col_2\nNote\n");
    return rows;
}

/// What differs between the table of the two threads and that of the plain reader.
std::string Difference(const std::string& data) {
    const std::string file = kHeader + kTwoColumns + data;
    TestTable halves;
    TestTable plain;
    const bool done =
        TbxReader(halves.model, halves.host, false, Share(file), 0).Read() == TbxReader::Outcome::Done;
    if (done != ReadPlainly(file, plain.model)) return "outcome";
    return std::string(DifferenceBetween(halves.model, plain.model));
}

TEST(TbxHalves, AreOneTable) {
    EXPECT_EQ(Difference(Rows(100) + Lines(";\n; End\n;\n")), "");
    EXPECT_EQ(Difference(Rows(1)), "");
    EXPECT_EQ(Difference(Rows(2)), "");
}

TEST(TbxHalves, AColumnAtTheEndOfTheFirstHalfCountsInTheSecond) {
    // The middle of the file is in the name of the column.
    const std::string name(4000, 'x');
    const std::string rows = Lines("@row_1\n@col_1\nx\n@col_2\ny\n@col_3\nz\n@row_2\n@col_3\nz\n");
    EXPECT_EQ(Difference(Rows(3) + Lines(";\n!" + name + "\n!80\n") + rows), "");
}

TEST(TbxHalves, ALastLineThatBeginsARowAfterACellIsDropped) {
    EXPECT_EQ(Difference(
                  Lines("@row_1\n@col_1\nA long text before the middle of the file, and more of it\n@row_2")),
              "");
}

TEST(TbxHalves, AColumnInTheSecondHalfBeginsTheRowsAgain) {
    EXPECT_EQ(Difference(Rows(20) + Lines(";\n!More\n!80\n@row_1\n@col_3\nx\n") + Rows(3)), "");
}

TEST(TbxHalves, TooManyColumnsInTheSecondHalfStopTheLoad) {
    std::string columns = Lines(";\n");
    for (int col = 0; col < 40; ++col)
        columns += Lines("!Name\n!80\n");
    EXPECT_EQ(Difference(Rows(200) + columns + Rows(3)), "");
}

TEST(TbxHalves, RowsThatATableCannotHaveAreLeftOut) {
    const int half = kMaxRows.Number() / 2 + 1;
    std::string rows;
    for (int row = 0; row < 2 * half + 40; ++row)
        rows += Lines("@row_1\n@col_1\nx\n");
    EXPECT_EQ(Difference(rows), "");
}

TEST(TbxHalves, TextsWithLoneCrsAndOverlongOnesKeepTheirPlaces) {
    const std::string text = "a\rb" + std::string(5 << 20, 'x');
    std::string rows;
    for (int row = 0; row < 4; ++row)
        rows += "@row_1\r\n@col_1\r\n" + text + "\r\n@col_2\r\n\r\rc\r\n";
    EXPECT_EQ(Difference(rows + ";\r\n"), "");
}

} // namespace
} // namespace korvane
