#include "document/pdf/Pdf.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::doc {
namespace {

/// What the program writes for these pages.
std::string FileOf(const std::string& pages) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE pdf2xml SYSTEM \"pdf2xml.dtd\">\n\n"
           "<pdf2xml producer=\"poppler\" version=\"22.12.0\">\n" +
           pages + "</pdf2xml>\n";
}

Text TextOf(const std::string& pages) {
    const ReadResult read = ReadPdfXml(FileOf(pages));
    EXPECT_TRUE(IsSound(read.document));
    return PlainText(read.document);
}

TEST(PdfTest, LinesAreParagraphs) {
    EXPECT_EQ(TextOf("<page number=\"1\"><text top=\"10\" font=\"0\">one</text>\n"
                     "<text top=\"30\" font=\"0\">two &amp; three</text></page>"),
              u"one\r\ntwo & three");
}

TEST(PdfTest, TextsOfOneHeightAreOneLine) {
    EXPECT_EQ(
        TextOf(
            "<page><text top=\"10\">one</text><text top=\"12\">two</text><text top=\"11\"> x</text></page>"),
        u"one two  x");
}

TEST(PdfTest, CharactersHaveTheirFonts) {
    const ReadResult read =
        ReadPdfXml(FileOf("<page number=\"1\" width=\"893\" height=\"1263\">"
                          "<fontspec id=\"0\" size=\"18\" family=\"ABCDEF+Times\" color=\"#ff8000\"/>"
                          "<text top=\"10\" font=\"0\">a<b>b<i>c</i></b></text></page>"));
    const Paragraph& line = read.document.paragraphs[0];
    ASSERT_EQ(line.runs.size(), 3U);
    const CharFormat& first = read.document.FormatOf(line.runs[0]);
    EXPECT_EQ(first.halfPoints, 24);
    EXPECT_EQ(first.fore, Colour{0x0080FF});
    EXPECT_EQ(read.document.fonts[first.font], u"Times");
    EXPECT_FALSE(first.bold);
    EXPECT_TRUE(read.document.FormatOf(line.runs[1]).bold);
    EXPECT_TRUE(read.document.FormatOf(line.runs[2]).italic);
    EXPECT_EQ(read.document.page[Page::Width], 11906);
    EXPECT_TRUE(read.pageGiven[Page::Height]);
}

TEST(PdfTest, LinksAreFields) {
    const ReadResult read =
        ReadPdfXml(FileOf("<page><text top=\"1\">see <a href=\"http://a.b\">this</a> x</text></page>"));
    ASSERT_EQ(read.document.fields.size(), 1U);
    EXPECT_EQ(read.document.fields.begin()->second.typeData, u"http://a.b");
    EXPECT_EQ(read.document.paragraphs[0].runs.size(), 3U);
    EXPECT_EQ(read.document.paragraphs[0].runs[2].field, 0U);
}

TEST(PdfTest, APageBeginsANewPage) {
    const ReadResult read =
        ReadPdfXml(FileOf("<page><text top=\"1\">a</text></page><page><text top=\"1\">b</text></page>"));
    ASSERT_EQ(read.document.paragraphs.size(), 2U);
    EXPECT_FALSE(read.document.FormatOf(read.document.paragraphs[0]).pageBreakBefore);
    EXPECT_TRUE(read.document.FormatOf(read.document.paragraphs[1]).pageBreakBefore);
}

TEST(PdfTest, OtherTextsAreOfTheWrongFormatAndCutOnesKeepTheirBeginning) {
    EXPECT_EQ(ReadPdfXml("").trouble, Trouble::WrongFormat);
    EXPECT_EQ(ReadPdfXml("%PDF-1.4").trouble, Trouble::WrongFormat);
    EXPECT_EQ(ReadPdfXml("<html/>").trouble, Trouble::WrongFormat);
    const std::string whole = FileOf("<page><text top=\"1\">a</text><text top=\"20\">b</text></page>");
    const ReadResult cut = ReadPdfXml(whole.substr(0, whole.find("<text top=\"20\"")));
    EXPECT_EQ(cut.trouble, Trouble::Damaged);
    EXPECT_EQ(PlainText(cut.document), u"a");
}

TEST(PdfTest, ATypeWithEntitiesIsRefused) {
    EXPECT_EQ(ReadPdfXml("<!DOCTYPE pdf2xml [<!ENTITY a \"b\">]><pdf2xml>&a;</pdf2xml>").trouble,
              Trouble::WrongFormat);
}

} // namespace
} // namespace korvane::doc
