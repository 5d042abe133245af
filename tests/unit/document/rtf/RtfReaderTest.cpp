#include "document/rtf/Rtf.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

Document Read(const std::string& body) {
    const ReadResult read = ReadRtf(
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset238 Calibri;}{\\f2\\fcharset128 Gothic;}}"
        "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue128;}" +
        body + "}");
    EXPECT_TRUE(IsSound(read.document)) << body;
    return read.document;
}

std::string TextOf(const std::string& body) {
    return ToUtf8(PlainText(Read(body)));
}

CharFormat LookOf(const std::string& body, std::size_t run = 0) {
    const Document document = Read(body);
    return document.FormatOf(document.paragraphs[0].runs.at(run));
}

ParaFormat ShapeOf(const std::string& body) {
    const Document document = Read(body);
    return document.FormatOf(document.paragraphs[0]);
}

TEST(RtfReader, ParagraphsEndAtTheirWord) {
    EXPECT_EQ(TextOf("one\\par two\\par"), "one\r\ntwo");
    EXPECT_EQ(TextOf("one\\\ntwo"), "one\r\ntwo");
    EXPECT_EQ(TextOf("one\r\ntwo\\par\\par"), "onetwo\r\n");
}

TEST(RtfReader, CharactersComeByNameByteAndNumber) {
    EXPECT_EQ(TextOf("\\lquote\\rquote \\emdash\\~\\_\\-\\bullet\\tab\\line x"),
              "‘’—\u00A0\u2011\u00AD•\t\vx");
    EXPECT_EQ(TextOf("\\'e9\\'80\\{\\}\\\\"), "é€{}\\");
    EXPECT_EQ(TextOf("\\u8364?\\u-10179?\\u-8704?"), "€😀");
}

TEST(RtfReader, TheFallbackOfACharacterIsSkipped) {
    EXPECT_EQ(TextOf("\\uc2\\u233ab\\u233\\'e9\\'e9x"), "ééx");
    EXPECT_EQ(TextOf("\\uc0\\u233x{\\uc1\\u233?}\\u233y"), "éxééy");
    EXPECT_EQ(TextOf("\\u233{x}"), "éx");
    EXPECT_EQ(TextOf("\\u233\\emdash x"), "éx");
}

TEST(RtfReader, AFontsCharsetTellsItsPage) {
    EXPECT_EQ(TextOf("\\f1\\'b9\\f0\\'b9"), "ą¹");
}

TEST(RtfReader, APairOfBytesIsOneUnknownCharacter) {
    EXPECT_EQ(TextOf("\\f2\\'88\\'9fA\\'88Bz"), "\uFFFDA\uFFFDz");
}

TEST(RtfReader, TextOfAnotherScriptHasTheLooksOfItsScript) {
    const std::string east = "{\\rtlch\\af1 \\ltrch\\loch\\i\\dbch\\afs48\\ab\\dbch \\u26085?}";
    EXPECT_EQ(LookOf(east).halfPoints, 48);
    EXPECT_TRUE(LookOf(east).bold);
    EXPECT_TRUE(LookOf(east).italic);
    EXPECT_EQ(LookOf("{\\fs30\\ltrch\\loch \\rtlch\\afs40\\ai0\\i \\u1513?}").halfPoints, 40);
    EXPECT_FALSE(LookOf("{\\fs30\\ltrch\\loch \\rtlch\\afs40\\ai0\\i \\u1513?}").italic);
    EXPECT_NE(LookOf("{\\f0 x}").font, LookOf("{\\f1 x}").font);
    EXPECT_EQ(LookOf("{\\f0\\ltrch\\loch \\rtlch\\af1 \\u1513?}").font, LookOf("{\\f1 x}").font);
    EXPECT_EQ(LookOf("{\\rtlch\\af1 \\ltrch\\f0 x}").font, LookOf("{\\f0 x}").font);
    // What is said of other scripts doesn't count for this one.
    EXPECT_EQ(LookOf("{\\rtlch\\af1\\afs40\\ab \\ltrch\\fs30 x}").halfPoints, 30);
    EXPECT_FALSE(LookOf("{\\rtlch\\afs40\\ab \\ltrch\\fs30 x}").bold);
    EXPECT_EQ(LookOf("{\\rtlch\\afs40\\plain\\fs22 x}").halfPoints, 22);
}

TEST(RtfReader, LooksEndWithTheirGroup) {
    EXPECT_TRUE(LookOf("{\\b bold}plain", 0).bold);
    EXPECT_FALSE(LookOf("{\\b bold}plain", 1).bold);
    EXPECT_FALSE(LookOf("\\b b\\b0 x", 1).bold);
    EXPECT_EQ(LookOf("\\fs30\\plain x").halfPoints, 24);
}

TEST(RtfReader, LooksOfCharacters) {
    const CharFormat look = LookOf("\\f1\\fs21\\i\\ulw\\strike\\scaps\\cf1\\highlight2\\up6 x");
    EXPECT_EQ(look.halfPoints, 21);
    EXPECT_TRUE(look.italic && look.underline && look.strike && look.smallCaps);
    EXPECT_EQ(look.fore, Colour{0x0000FF});
    EXPECT_EQ(look.back, Colour{0x800000});
    EXPECT_EQ(look.baseLine, 60);
    EXPECT_EQ(LookOf("\\super x").script, Script::Raised);
    EXPECT_EQ(LookOf("{\\*\\kvsuper}x").script, Script::Raised);
    EXPECT_EQ(LookOf("\\dn x").baseLine, -60);
    EXPECT_EQ(LookOf("\\up4{\\*\\kvbase37}x").baseLine, 37);
    EXPECT_EQ(LookOf("\\cf0 x").fore, kNoColour);
    EXPECT_EQ(LookOf("\\cf99 x").fore, kNoColour);
}

TEST(RtfReader, HiddenAndForeignTextIsLeftOut) {
    EXPECT_EQ(TextOf("a{\\v hidden}b{\\footnote no}{\\*\\unknown no{\\b no}}{\\header no}c"), "abc");
    EXPECT_EQ(TextOf("a{\\unknown yes}"), "ayes");
    EXPECT_EQ(TextOf("{\\*\\shppict{\\pict\\wmetafile8 0102}}{\\nonshppict{\\pict 01}}x"), "\uFFFCx");
    EXPECT_EQ(TextOf("{\\object\\objemb{\\*\\objdata 0102}{\\result gone}}x"), "x");
    EXPECT_EQ(TextOf("a{\\info{\\title } \\} x}b"), "ab");
}

TEST(RtfReader, WhatFollowsTheDocumentIsIgnored) {
    EXPECT_EQ(PlainText(ReadRtf("{\\rtf1 a}b{c}").document), u"a");
}

TEST(RtfReader, LengthsOfParagraphs) {
    const ParaFormat shape = ShapeOf("\\qc\\li100\\ri200\\fi-50\\sb30\\sa40\\pagebb x");
    EXPECT_EQ(shape.alignment, Alignment::Centred);
    EXPECT_EQ(shape.left, 100);
    EXPECT_EQ(shape.right, 200);
    EXPECT_EQ(shape.first, -50);
    EXPECT_EQ(shape.before, 30);
    EXPECT_EQ(shape.after, 40);
    EXPECT_TRUE(shape.pageBreakBefore);
}

TEST(RtfReader, LineSpacingIsExactOrAMultiple) {
    EXPECT_EQ(ShapeOf("\\sl360\\slmult1 x").spacingPercent, 150);
    EXPECT_EQ(ShapeOf("\\slmult1\\sl276 x").spacingPercent, 115);
    EXPECT_EQ(ShapeOf("\\sl-320\\slmult0 x").spacingExact, 320);
    EXPECT_EQ(ShapeOf("\\sl320\\slmult0 x").spacingExact, 0);
    EXPECT_EQ(ShapeOf("\\sl320\\slmult0 x").spacingPercent, 100);
}

TEST(RtfReader, TabsAreSorted) {
    const ParaFormat shape = ShapeOf("\\tx900\\tqr\\tx300\\tqdec\\tx600\\tqc\\tx300 x");
    EXPECT_EQ(shape.tabs,
              (std::vector<TabStop>{{300, TabType::Centred}, {600, TabType::Decimal}, {900, TabType::Left}}));
}

TEST(RtfReader, FramesOfParagraphs) {
    const ParaFormat shape = ShapeOf("\\brdrl\\brdrdb\\brdrw40\\brsp80\\brdrt\\brdrdb x");
    EXPECT_EQ(shape.frame, kFrameLeft | kFrameTop | kFrameDouble);
    EXPECT_EQ(shape.frameWidth, 40);
    EXPECT_EQ(shape.frameDistance, 80);
    EXPECT_EQ(ShapeOf("\\box\\brdrs x").frame, kFrameSides | kFrameSingle);
    EXPECT_EQ(ShapeOf("\\box\\brdrs{\\*\\kvframe23} x").frame, 23);
}

TEST(RtfReader, AParagraphsShapeEndsWithItsGroup) {
    const Document document = Read("\\li100{\\li200 a\\par}b\\par");
    EXPECT_EQ(document.FormatOf(document.paragraphs[0]).left, 200);
    EXPECT_EQ(document.FormatOf(document.paragraphs[1]).left, 100);
}

TEST(RtfReader, APageBreakComesBeforeTheNextParagraph) {
    const Document document = Read("a\\page b\\par c");
    EXPECT_EQ(PlainText(document), u"a\r\nb\r\nc");
    EXPECT_TRUE(document.FormatOf(document.paragraphs[1]).pageBreakBefore);
    EXPECT_FALSE(document.FormatOf(document.paragraphs[2]).pageBreakBefore);
}

TEST(RtfReader, ThePageIsTold) {
    const ReadResult read = ReadRtf("{\\rtf1\\paperw8000\\margl300\\deftab360 x}");
    EXPECT_EQ(read.document.page[Page::Width], 8000);
    EXPECT_EQ(read.document.page[Page::MarginLeft], 300);
    EXPECT_EQ(read.document.defaultTab, 360);
    EXPECT_EQ(read.pageGiven, (std::array<bool, 6>{true, false, true, false, false, false}));
}

TEST(RtfReader, ATableHasRowsAndCells) {
    const Document document =
        Read("\\trowd\\trgaph70\\trleft-10\\clbrdrt\\brdrs\\brdrw30\\clcbpat1\\cellx990\\clpadl25\\cellx2000 "
             "\\pard\\intbl a\\par b\\cell c\\cell\\row\\pard after");
    EXPECT_EQ(PlainText(document), u"a\r\nb\r\nc\r\nafter");
    const std::vector<CellFormat>& cells = document.tables.at(1).rows.at(0).cells;
    ASSERT_EQ(cells.size(), 2u);
    EXPECT_EQ(cells[0].left, -10);
    EXPECT_EQ(cells[0].width, 1000);
    EXPECT_EQ(cells[0].gapLeft, 70);
    EXPECT_EQ(cells[0].border[static_cast<std::size_t>(Side::Top)], 30);
    EXPECT_EQ(cells[0].back, Colour{0x0000FF});
    EXPECT_EQ(cells[1].gapLeft, 25);
    EXPECT_EQ(document.paragraphs[1].cell, (CellPlace{1, 0, 0}));
}

TEST(RtfReader, ATableInACellBecomesText) {
    EXPECT_EQ(TextOf("\\trowd\\cellx900\\pard\\intbl a\\itap2 "
                     "b\\nestcell{\\*\\nesttableprops\\trowd\\cellx500\\nestrow}"
                     "{\\nonesttables\\par}\\itap1 c\\cell\\row"),
              "ab\r\nc\r\n");
}

TEST(RtfReader, ALinksTextIsAField) {
    const Document document =
        Read("{\\field{\\*\\fldinst{HYPERLINK \"http://a.b\"}}{\\fldrslt{\\ul link}}} x");
    EXPECT_EQ(PlainText(document), u"link x");
    ASSERT_NE(document.paragraphs[0].runs[0].field, 0u);
    EXPECT_EQ(document.fields.at(document.paragraphs[0].runs[0].field).typeData, u"http://a.b");
    EXPECT_EQ(document.paragraphs[0].runs[1].field, 0u);
}

TEST(RtfReader, AnotherFieldIsItsText) {
    const Document document = Read("{\\field{\\*\\fldinst{PAGE}}{\\fldrslt 7}}");
    EXPECT_EQ(PlainText(document), u"7");
    EXPECT_EQ(document.paragraphs[0].runs[0].field, 0u);
}

TEST(RtfReader, PicturesKeepTheirBytesAndSize) {
    const Document document =
        Read("{\\pict\\pngblip\\picwgoal300\\pichgoal200\\picscalex50{\\*\\blipuid 99}0a0B}");
    ASSERT_EQ(document.images.size(), 1u);
    EXPECT_EQ(document.images[0].kind, ImageKind::Png);
    EXPECT_EQ(document.images[0].bytes.View(), "\x0A\x0B");
    EXPECT_EQ(document.images[0].width, 150);
    EXPECT_EQ(document.images[0].height, 200);
}

TEST(RtfReader, APictureMayComeAsBytes) {
    const Document document = Read("{\\pict\\jpegblip\\bin3 }{\\}x");
    EXPECT_EQ(document.images.at(0).bytes.View(), "}{\\");
    EXPECT_EQ(PlainText(document), u"\uFFFCx");
}

TEST(RtfReader, ListsComeFromTheirTable) {
    const ParaFormat shape =
        ShapeOf("{\\*\\listtable{\\list{\\listlevel\\levelnfc23\\levelstartat1{\\leveltext x;}}"
                "{\\listlevel\\levelnfc4\\levelstartat5}\\listid77}}"
                "{\\*\\listoverridetable{\\listoverride\\listid77\\ls3}}"
                "\\ls3\\ilvl1{\\listtext 1.\\tab}item\\par");
    EXPECT_EQ(shape.list, (ListMark{ListKind::LowerLetter, 1, 5, 3}));
}

TEST(RtfReader, OldListsHaveAMarkToo) {
    EXPECT_EQ(ShapeOf("{\\pntext 1}{\\*\\pn\\pnlvlbody\\pndec{\\pntxta .}}item\\par").list.kind,
              ListKind::Decimal);
    EXPECT_EQ(TextOf("{\\pntext 1}{\\*\\pn\\pnlvlblt{\\pntxtb x}}item\\par"), "item");
}

} // namespace
} // namespace korvane::doc
