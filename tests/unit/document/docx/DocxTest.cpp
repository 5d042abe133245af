#include "document/docx/Docx.h"

#include "document/docx/DocxParts.h"
#include "document/model/Builder.h"
#include "document/package/Package.h"
#include "support/RandomDocument.h"

#include <gmock/gmock.h>

namespace korvane::doc {
namespace {

using testing::HasSubstr;

constexpr Holdings kHeld{.notes = false, .coarseBaseLine = true};

class DocxRoundTrip : public testing::TestWithParam<unsigned> {};

TEST_P(DocxRoundTrip, EverythingButNotesComesBack) {
    for (unsigned i = 0; i < 50; ++i) {
        const Document document = RandomDocument(GetParam() * 1000 + i, kHeld);
        const ReadResult read = ReadDocx(WriteDocx(document));
        ASSERT_EQ(read.trouble, Trouble::None) << i;
        ASSERT_TRUE(IsSound(read.document)) << i;
        ASSERT_EQ(FirstDifference(read.document, document), "") << i;
    }
}

TEST_P(DocxRoundTrip, TheSecondWritingIsTheFirst) {
    const std::string first = WriteDocx(ReadDocx(WriteDocx(RandomDocument(GetParam()))).document);
    EXPECT_EQ(WriteDocx(ReadDocx(first).document), first);
}

INSTANTIATE_TEST_SUITE_P(Seeds, DocxRoundTrip, testing::Range(1u, 11u));

/// A file with this body and these other parts.
std::string File(const std::string& body,
                 const std::vector<std::pair<std::string, std::string>>& others = {}) {
    PackageWriter package;
    package.Add("_rels/.rels", "<Relationships><Relationship Id=\"r1\" Type=\"x/officeDocument\" "
                               "Target=\"/word/main.xml\"/></Relationships>");
    package.Add("word/main.xml",
                "<w:document xmlns:w=\"w\" xmlns:r=\"r\" xmlns:a=\"a\" xmlns:mc=\"mc\"><w:body>" + body +
                    "</w:body></w:document>");
    for (const auto& [name, bytes] : others)
        package.Add(name, bytes);
    return package.Write();
}

Document Read(const std::string& body, const std::vector<std::pair<std::string, std::string>>& others = {}) {
    const ReadResult read = ReadDocx(File(body, others));
    EXPECT_TRUE(IsSound(read.document)) << body;
    return read.document;
}

std::string TextOf(const std::string& body) {
    return ToUtf8(PlainText(Read(body)));
}

Document WithText(const Text& text) {
    Builder builder({});
    builder.Add(text);
    return builder.Finish({});
}

TEST(Docx, ALongTextIsWrittenInPiecesAndComesBack) {
    // A piece may end between two blanks, at a tab, and not within a character of two units.
    for (const TextView unit : {u"\xD83D\xDE00", u" ", u"\v", u"a\t", u"word "}) {
        Text text = u"a";
        while (text.size() < 3 * kPieceOfText)
            text += unit;
        const ReadResult read = ReadDocx(WriteDocx(WithText(text)));
        ASSERT_EQ(read.document.paragraphs.size(), 1u);
        EXPECT_TRUE(read.document.paragraphs[0].text == text) << ToUtf8(unit);
    }
}

TEST(Docx, OnlyBlanksAtTheEndsOfATextAreMarked) {
    const auto body = [](const Text& text) { return MakeDocxParts(WithText(text)).Parts().at(2).bytes; };
    EXPECT_THAT(body(u"a b"), HasSubstr("<w:t>a b</w:t>"));
    EXPECT_THAT(body(u" a\tb "), HasSubstr("<w:t xml:space=\"preserve\"> a</w:t><w:tab/>"
                                           "<w:t xml:space=\"preserve\">b </w:t>"));
}

TEST(Docx, TextComesInRuns) {
    EXPECT_EQ(TextOf("<w:p><w:r><w:t>a</w:t><w:tab/><w:t xml:space=\"preserve\"> b "
                     "</w:t><w:br/></w:r></w:p><w:p/><w:p><w:r><w:t> c "
                     "</w:t></w:r></w:p>"),
              "a\t b \v\r\n\r\nc");
}

TEST(Docx, WhatWasDeletedIsLeftOut) {
    EXPECT_EQ(TextOf("<w:p><w:ins><w:r><w:t>a</w:t></w:r></w:ins><w:del><w:r><w:delText>b</w:delText><w:t>c</"
                     "w:t></w:r></w:del></w:p>"),
              "a");
    EXPECT_EQ(TextOf("<w:p><w:r><mc:AlternateContent><mc:Choice><w:t>a</w:t></mc:Choice><mc:Fallback><w:t>b</"
                     "w:t></mc:Fallback>"
                     "</mc:AlternateContent></w:r></w:p>"),
              "b");
}

TEST(Docx, StylesAreBasedOnEachOther) {
    const std::string styles =
        "<w:styles xmlns:w=\"w\"><w:docDefaults><w:rPrDefault><w:rPr><w:sz "
        "w:val=\"30\"/></w:rPr></w:rPrDefault></w:docDefaults>"
        "<w:style w:type=\"paragraph\" w:styleId=\"A\"><w:pPr><w:jc "
        "w:val=\"center\"/></w:pPr><w:rPr><w:b/></w:rPr></w:style>"
        "<w:style w:type=\"paragraph\" w:styleId=\"B\"><w:basedOn "
        "w:val=\"A\"/><w:rPr><w:i/></w:rPr></w:style>"
        "<w:style w:type=\"paragraph\" w:styleId=\"L\"><w:basedOn w:val=\"L\"/></w:style></w:styles>";
    const std::string relations =
        "<Relationships><Relationship Id=\"s\" Type=\"x/styles\" Target=\"styles.xml\"/></Relationships>";
    const Document document =
        Read("<w:p><w:pPr><w:pStyle w:val=\"B\"/></w:pPr><w:r><w:rPr><w:b "
             "w:val=\"0\"/></w:rPr><w:t>x</w:t></w:r><w:r>"
             "<w:t>y</w:t></w:r></w:p><w:p><w:pPr><w:pStyle w:val=\"L\"/></w:pPr></w:p>",
             {{"word/styles.xml", styles}, {"word/_rels/main.xml.rels", relations}});
    EXPECT_EQ(document.FormatOf(document.paragraphs[0]).alignment, Alignment::Centred);
    const CharFormat first = document.FormatOf(document.paragraphs[0].runs.at(0));
    EXPECT_TRUE(first.italic && !first.bold);
    EXPECT_EQ(first.halfPoints, 30);
    EXPECT_TRUE(document.FormatOf(document.paragraphs[0].runs.at(1)).bold);
}

TEST(Docx, CharactersOfEastAsiaHaveTheirOwnFont) {
    const std::string run = "<w:r><w:rPr><w:rFonts w:ascii=\"Times\" w:eastAsia=\"SimSun\"/></w:rPr><w:t>"
                            "ab\u6F22\u3002\U00020000c</w:t></w:r>";
    const Document document =
        Read("<w:p>" + run +
             "<w:r><w:rPr><w:rFonts w:eastAsia=\"Batang\"/></w:rPr><w:t>d\uD55C</w:t></w:r></w:p>");
    EXPECT_EQ(PlainText(document), u"ab\u6F22\u3002\U00020000cd\uD55C");
    std::string fonts;
    for (const auto& part : document.paragraphs[0].runs)
        fonts += std::to_string(part.length) + ToUtf8(document.fonts[document.FormatOf(part).font]) + " ";
    EXPECT_EQ(fonts, "2Times 4SimSun 1Times 1Arial 1Batang ");
}

TEST(Docx, TheFontIsWrittenForCharactersOfEastAsiaToo) {
    Builder builder({});
    CharFormat look;
    look.font = builder.Target().FontNumber(u"SimSun");
    builder.SetFormat(look);
    builder.Add(u"\u6F22a");
    builder.EndParagraph({});
    const std::string bytes = WriteDocx(builder.Finish({}));
    EXPECT_NE(Package(bytes, {}).Part("word/document.xml")->find("w:eastAsia=\"SimSun\""), std::string::npos);
    EXPECT_EQ(ReadDocx(bytes).document.paragraphs[0].runs.size(), 1U);
}

TEST(Docx, FieldsOfBothKindsAreLinks) {
    const Document document = Read(
        "<w:p><w:fldSimple w:instr=\" HYPERLINK &quot;http://a.b&quot; "
        "\"><w:r><w:t>x</w:t></w:r></w:fldSimple><w:r><w:fldChar "
        "w:fldCharType=\"begin\"/><w:instrText>HYPERLINK "
        "\"c</w:instrText><w:instrText>.d\"</w:instrText><w:fldChar "
        "w:fldCharType=\"separate\"/><w:t>y</w:t><w:fldChar w:fldCharType=\"end\"/><w:t>z</w:t></w:r></w:p>");
    EXPECT_EQ(PlainText(document), u"xyz");
    const Runs& runs = document.paragraphs[0].runs;
    EXPECT_EQ(document.fields.at(runs.at(0).field).typeData, u"http://a.b");
    EXPECT_EQ(document.fields.at(runs.at(1).field).typeData, u"c.d");
    EXPECT_EQ(runs.at(2).field, 0u);
}

TEST(Docx, ATableInACellBecomesText) {
    const Document document = Read("<w:tbl><w:tr><w:tc><w:p><w:r><w:t>a</w:t></w:r></"
                                   "w:p><w:tbl><w:tr><w:tc><w:p><w:r><w:t>b</w:t></w:r></w:p>"
                                   "</w:tc></w:tr></w:tbl><w:p/></w:tc><w:tc><w:p/></w:tc></w:tr></w:tbl>");
    EXPECT_EQ(PlainText(document), u"a\r\nb\r\n\r\n\r\n");
    EXPECT_EQ(document.tables.at(1).rows[0].cells.size(), 2u);
}

TEST(Docx, PicturesOutsideAreNeverFetched) {
    const std::string relations =
        "<Relationships><Relationship Id=\"p\" Type=\"x/image\" Target=\"http://127.0.0.1/x.png\" "
        "TargetMode=\"External\"/></Relationships>";
    EXPECT_TRUE(Read("<w:p><w:r><w:drawing><a:blip r:embed=\"p\"/></w:drawing></w:r></w:p>",
                     {{"word/_rels/main.xml.rels", relations}})
                    .images.empty());
}

TEST(Docx, AnotherFileIsTold) {
    EXPECT_EQ(ReadDocx("plain").trouble, Trouble::WrongFormat);
    EXPECT_EQ(ReadDocx("").trouble, Trouble::WrongFormat);
    PackageWriter package;
    package.Add("a.txt", "x");
    EXPECT_EQ(ReadDocx(package.Write()).trouble, Trouble::WrongFormat);
}

TEST(Docx, ACutFileGivesADocument) {
    const std::string whole = WriteDocx(RandomDocument(7));
    for (std::size_t end = 0; end < whole.size(); end += 1 + whole.size() / 100)
        EXPECT_TRUE(IsSound(ReadDocx(whole.substr(0, end)).document));
    EXPECT_EQ(ReadDocx(File("<w:p><w:r><w:t>a</w:t></w:r></w:p><w:p><w:r")).trouble, Trouble::Damaged);
}

TEST(Docx, ElementsWithoutANameAreNothing) {
    EXPECT_EQ(TextOf("<w: a=\"b\"/><w:p><w: /><w:r><w:t>a</w:t></w:r></w:p>"), "a");
}

TEST(Docx, ADocumentTypeIsRefused) {
    PackageWriter package;
    package.Add("_rels/.rels", "<Relationships><Relationship Id=\"r1\" Type=\"x/officeDocument\" "
                               "Target=\"m.xml\"/></Relationships>");
    package.Add("m.xml", "<!DOCTYPE d [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;\">]><w:p "
                         "xmlns:w=\"w\"><w:t>&b;</w:t></w:p>");
    const ReadResult read = ReadDocx(package.Write());
    EXPECT_EQ(read.trouble, Trouble::Damaged);
    EXPECT_EQ(PlainText(read.document), u"");
}

TEST(Docx, APartThatUnpacksToTooMuchIsLeftOut) {
    Limits limits;
    limits.bytes = 100'000;
    const std::string bomb = File("<w:p><w:r><w:t>" + std::string(2'000'000, 'a') + "</w:t></w:r></w:p>");
    ASSERT_LT(bomb.size(), limits.bytes);
    const ReadResult read = ReadDocx(bomb, limits);
    EXPECT_EQ(read.trouble, Trouble::OverLimit);
    EXPECT_EQ(PlainText(read.document), u"");
}

/// Puts a size in place of those that an archive of one long part tells of it, in the part's head and in the
/// directory.
std::string WithSizeTold(std::string archive, std::uint32_t size, std::uint32_t told) {
    const auto bytesOf = [](std::uint32_t number) {
        std::string bytes;
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>(number >> shift & 0xFF);
        return bytes;
    };
    int places = 0;
    for (std::size_t at = 0; (at = archive.find(bytesOf(size), at)) != std::string::npos; ++places)
        archive.replace(at, 4, bytesOf(told));
    EXPECT_GE(places, 1);
    return archive;
}

TEST(Docx, APartThatTellsTooLargeASizeIsntUnpackedAtAll) {
    const std::string body(1'234'567, 'a');
    PackageWriter package;
    package.Add("part", body);
    const std::string whole = package.Write();
    Limits limits;
    limits.bytes = 2'000'000;
    EXPECT_TRUE(Package(whole, limits).Part("part") == body);
    const std::string larger = WithSizeTold(whole, 1'234'567, 900'000'000);
    Package refused(larger, limits);
    EXPECT_EQ(refused.Part("part"), std::nullopt);
    EXPECT_TRUE(refused.OverLimit());
    // One that tells less than it has is never more than the limit either.
    const std::string smaller = WithSizeTold(whole, 1'234'567, 10);
    EXPECT_LT(Package(smaller, limits).Part("part").value_or("").size(), body.size() + 1);
}

TEST(Docx, NestingHasALimit) {
    std::string deep;
    for (int i = 0; i < 100'000; ++i)
        deep += "<w:x>";
    EXPECT_EQ(ReadDocx(File(deep)).trouble, Trouble::OverLimit);
}

TEST(Docx, PartsInTheWrongPlaceAreHarmless) {
    Read("<w:tc/><w:tr/><w:r><w:t>x</w:t></w:r><w:tbl><w:p/><w:tr><w:p/></w:tr></w:tbl>");
    Read("<w:hyperlink r:id=\"none\"><w:p><w:fldChar w:fldCharType=\"end\"/><w:fldChar "
         "w:fldCharType=\"separate\"/></w:p></w:hyperlink>");
    Read("<w:pPr><w:rPr><w:pPr><w:rPr/></w:pPr></w:rPr></w:pPr><w:tcPr><w:gridSpan "
         "w:val=\"99999999\"/></w:tcPr>");
    Read("<w:p><w:pPr><w:numPr><w:ilvl w:val=\"-5\"/><w:numId w:val=\"99\"/></w:numPr><w:ind "
         "w:left=\"99999999999\"/></w:pPr></w:p>");
}

} // namespace
} // namespace korvane::doc
