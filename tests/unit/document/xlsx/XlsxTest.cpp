#include "document/xlsx/Xlsx.h"

#include "document/package/Package.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::doc {
namespace {

class XlsxTest : public testing::Test {
protected:
    /// The bytes of a file with these rows in its one sheet.
    static std::string FileOf(const std::string& rows, const std::string& texts = {}) {
        PackageWriter package;
        PutHead(package, "<workbook xmlns:r=\"r\"><sheets><sheet name=\"Data\" sheetId=\"1\" r:id=\"r1\"/>"
                         "</sheets></workbook>");
        package.Add("xl/worksheets/sheet1.xml", "<worksheet><sheetData>" + rows + "</sheetData></worksheet>");
        package.Add("xl/sharedStrings.xml", "<sst>" + texts + "</sst>");
        return package.Write();
    }
    static void PutHead(PackageWriter& package, const std::string& workbook) {
        package.Add("_rels/.rels",
                    "<R><Relationship Id=\"a\" Type=\"x/officeDocument\" Target=\"xl/workbook.xml\"/></R>");
        package.Add("xl/_rels/workbook.xml.rels",
                    "<R><Relationship Id=\"r1\" Type=\"x/worksheet\" Target=\"worksheets/sheet1.xml\"/>"
                    "<Relationship Id=\"r2\" Type=\"x/worksheet\" Target=\"worksheets/sheet2.xml\"/>"
                    "<Relationship Id=\"r3\" Type=\"x/worksheet\" Target=\"http://a.b/c\" "
                    "TargetMode=\"External\"/>"
                    "<Relationship Id=\"s\" Type=\"x/sharedStrings\" Target=\"sharedStrings.xml\"/></R>");
        package.Add("xl/workbook.xml", workbook);
    }
    static std::string Read(const std::string& file, const Limits& limits = {}) {
        const ReadResult read = ReadXlsx(file, limits);
        EXPECT_TRUE(IsSound(read.document));
        return ToUtf8(PlainText(read.document));
    }
};

TEST_F(XlsxTest, ASheetIsItsNameAndATable) {
    const ReadResult read = ReadXlsx(FileOf(
        R"(<row r="1"><c r="A1" t="s"><v>1</v></c><c r="B1"><v>1.5</v></c></row>
           <row r="2"><c r="A2" t="inlineStr"><is><t>in line</t></is></c><c r="B2" t="b"><v>1</v></c></row>
           <row r="3"><c r="A3" t="str"><f>A1&amp;"x"</f><v>formula</v></c><c r="B3" t="e"><v>#N/A</v></c></row>)",
        "<si><t>zero</t></si><si><r><t>o</t></r><r><t>ne</t></r><rPh><t>spoken</t></rPh></si>"));
    EXPECT_EQ(read.trouble, Trouble::None);
    EXPECT_EQ(PlainText(read.document), u"Data\r\none\r\n1.5\r\nin line\r\nTRUE\r\nformula\r\n#N/A\r\n");
    ASSERT_EQ(read.document.tables.size(), 1U);
    EXPECT_EQ(read.document.tables.begin()->second.rows.size(), 3U);
    EXPECT_TRUE(IsSound(read.document));
}

TEST_F(XlsxTest, RowsAndCellsThatAreLeftOutAreEmpty) {
    EXPECT_EQ(Read(FileOf(R"(<row r="3"><c r="C3"><v>x</v></c></row>)")),
              "Data\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\nx\r\n");
}

TEST_F(XlsxTest, RowsAndCellsWithoutPlacesFollowEachOther) {
    EXPECT_EQ(Read(FileOf("<row><c><v>1</v></c><c><v>2</v></c></row><row><c><v>3</v></c></row>")),
              "Data\r\n1\r\n2\r\n3\r\n\r\n");
}

TEST_F(XlsxTest, LinesOfACellStayInOneParagraph) {
    EXPECT_EQ(Read(FileOf("<row><c t=\"inlineStr\"><is><t>a\nb</t></is></c></row>")), "Data\r\na\vb\r\n");
}

TEST_F(XlsxTest, SheetsComeInTheOrderOfTheWorkbookAndNeverFromOutside) {
    PackageWriter package;
    PutHead(package,
            "<workbook xmlns:r=\"r\"><sheet name=\"Two\" r:id=\"r2\"/><sheet name=\"One\" r:id=\"r1\"/>"
            "<sheet name=\"Outside\" r:id=\"r3\"/></workbook>");
    package.Add("xl/worksheets/sheet1.xml", "<worksheet><row><c><v>1</v></c></row></worksheet>");
    package.Add("xl/worksheets/sheet2.xml", "<worksheet><row><c><v>2</v></c></row></worksheet>");
    EXPECT_EQ(Read(package.Write()), "Two\r\n2\r\nOne\r\n1\r\n");
}

TEST_F(XlsxTest, WhatIsNoWorkbookIsOfTheWrongFormat) {
    EXPECT_EQ(ReadXlsx("").trouble, Trouble::WrongFormat);
    EXPECT_EQ(ReadXlsx("PK\x03\x04 no archive").trouble, Trouble::WrongFormat);
    PackageWriter package;
    PutHead(package, "<document/>");
    EXPECT_EQ(ReadXlsx(package.Write()).trouble, Trouble::WrongFormat);
}

TEST_F(XlsxTest, ADamagedSheetKeepsWhatCameBefore) {
    const ReadResult read = ReadXlsx(FileOf("<row><c><v>1</v></c></row><row><c>"));
    EXPECT_EQ(read.trouble, Trouble::Damaged);
    EXPECT_EQ(PlainText(read.document), u"Data\r\n1\r\n");
    EXPECT_EQ(Read(FileOf(R"(<row r="1"><c r="A1" t="s"><v>7</v></c><c r="B1"><v>x</v></c></row>)")),
              "Data\r\n\r\nx\r\n");
}

TEST_F(XlsxTest, FarCellsDontMakeHugeTables) {
    Limits limits;
    limits.cells = 1000;
    const ReadResult read = ReadXlsx(
        FileOf(
            R"(<row r="1"><c r="A1"><v>1</v></c></row><row r="1000000"><c r="A1000000"><v>2</v></c></row>)"),
        limits);
    EXPECT_EQ(read.trouble, Trouble::OverLimit);
    EXPECT_EQ(PlainText(read.document), u"Data\r\n1\r\n");
    // Columns beyond those of a table are left out.
    EXPECT_EQ(Read(FileOf(R"(<row r="1"><c r="A1"><v>1</v></c><c r="XFD1"><v>2</v></c></row>)")),
              "Data\r\n1\r\n");
    EXPECT_EQ(Read(FileOf(R"(<row r="99999999"><c r="A1"><v>1</v></c></row>)")), "Data");
}

TEST_F(XlsxTest, TextsBeyondTheLimitAreLeftOut) {
    Limits limits;
    limits.characters = 10;
    EXPECT_EQ(ReadXlsx(FileOf("<row><c t=\"str\"><v>0123456789abc</v></c></row>"), limits).trouble,
              Trouble::OverLimit);
}

} // namespace
} // namespace korvane::doc
