#include "document/model/Edit.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

/// A paragraph, a table of two rows and columns, and a paragraph: "p", "a" "b" / "c" "d", "q".
Document WithTable() {
    Document document = FromPlainText(u"p\r\na\r\nb\r\nc\r\nd\r\nq");
    const TableRow row{{CellFormat{}, CellFormat{}}};
    document.tables[1].rows = {row, row};
    for (Index i = 0; i < 4; ++i)
        document.paragraphs[i + 1].cell = {1, i / 2, i % 2};
    return document;
}

Document Replaced(Document document, const Range& range, const Document& piece) {
    Apply(document, ReplacePatch(document, range, piece).patch);
    EXPECT_TRUE(IsSound(document));
    return document;
}

Text TextOf(const Document& document) {
    return PlainText(document);
}

TEST(Edit, PlacesCountTwoForAParagraphsEnd) {
    const Document document = FromPlainText(u"ab\r\n\r\ncd");
    Places places(document);
    EXPECT_EQ(places.At(2), (Place{0, 2}));
    EXPECT_EQ(places.At(3), (Place{0, 2}));
    EXPECT_EQ(places.At(4), (Place{1, 0}));
    EXPECT_EQ(places.At(7), (Place{2, 1}));
    EXPECT_EQ(places.At(99), (Place{2, 2}));
    EXPECT_EQ(places.At(0), (Place{0, 0}));
    EXPECT_EQ(places.Of({2, 1}), 7u);
}

TEST(Edit, ALineGoesIntoAParagraph) {
    EXPECT_EQ(TextOf(Replaced(FromPlainText(u"abcd"), {{0, 1}, {0, 3}}, FromPlainText(u"-"))), u"a-d");
}

TEST(Edit, ParagraphsPartTheOneTheyComeInto) {
    const Document document = FromPlainText(u"abcd");
    const Replacement made = [&] {
        Document copy = document;
        return ReplacePatch(copy, {{0, 2}, {0, 2}}, FromPlainText(u"1\r\n2\r\n34"));
    }();
    EXPECT_EQ(made.end, (Place{2, 2}));
    EXPECT_EQ(TextOf(Replaced(document, {{0, 2}, {0, 2}}, FromPlainText(u"1\r\n2\r\n34"))),
              u"ab1\r\n2\r\n34cd");
}

TEST(Edit, ADeletionJoinsParagraphs) {
    EXPECT_EQ(TextOf(Replaced(FromPlainText(u"ab\r\nx\r\ncd"), {{0, 1}, {2, 1}}, {})), u"ad");
}

TEST(Edit, ADeletionWithinCellsLeavesTheCells) {
    const Document document = Replaced(WithTable(), {{1, 0}, {3, 1}}, {});
    EXPECT_EQ(TextOf(document), u"p\r\n\r\n\r\n\r\nd\r\nq");
    EXPECT_EQ(document.tables.size(), 1u);
}

TEST(Edit, ADeletionOverATablesEndTakesTheTable) {
    const Document document = Replaced(WithTable(), {{0, 1}, {4, 1}}, {});
    EXPECT_EQ(TextOf(document), u"p\r\nq");
    EXPECT_TRUE(document.tables.empty());
    EXPECT_EQ(TextOf(Replaced(WithTable(), {{1, 0}, {5, 0}}, {})), u"p\r\nq");
    EXPECT_EQ(TextOf(Replaced(WithTable(), {{0, 0}, {5, 1}}, {})), u"");
}

TEST(Edit, ADeletionIntoATableEmptiesItsCells) {
    const Document document = Replaced(WithTable(), {{0, 0}, {2, 1}}, {});
    EXPECT_EQ(TextOf(document), u"\r\n\r\n\r\nc\r\nd\r\nq");
    EXPECT_EQ(document.tables.size(), 1u);
}

TEST(Edit, ATableInATableBecomesParagraphs) {
    const Document document = Replaced(WithTable(), {{1, 1}, {1, 1}}, WithTable());
    EXPECT_EQ(document.tables.size(), 1u);
    EXPECT_EQ(TextOf(document), u"p\r\nap\r\na\r\nb\r\nc\r\nd\r\nq\r\nb\r\nc\r\nd\r\nq");
}

TEST(Edit, ATableAtAParagraphsStartComesBeforeIt) {
    const Document table = Slice(WithTable(), {{1, 0}, {5, 0}});
    EXPECT_EQ(TextOf(table), u"a\r\nb\r\nc\r\nd\r\n");
    EXPECT_TRUE(IsSound(table));
    EXPECT_EQ(TextOf(Replaced(FromPlainText(u"xy"), {{0, 0}, {0, 0}}, table)), u"a\r\nb\r\nc\r\nd\r\nxy");
    EXPECT_EQ(TextOf(Replaced(FromPlainText(u"xy"), {{0, 1}, {0, 1}}, table)), u"x\r\na\r\nb\r\nc\r\nd\r\ny");
}

TEST(Edit, TwoTablesHaveTwoNumbers) {
    const Document document = Replaced(WithTable(), {{5, 1}, {5, 1}}, WithTable());
    EXPECT_EQ(document.tables.size(), 2u);
    EXPECT_EQ(TextOf(document), u"p\r\na\r\nb\r\nc\r\nd\r\nqp\r\na\r\nb\r\nc\r\nd\r\nq");
}

TEST(Edit, ASliceWithinOneRowHasNoTable) {
    const Document slice = Slice(WithTable(), {{1, 0}, {2, 1}});
    EXPECT_TRUE(slice.tables.empty());
    EXPECT_EQ(TextOf(slice), u"a\r\nb");
}

TEST(Edit, ASliceOfSeveralRowsHasWholeRows) {
    const Document slice = Slice(WithTable(), {{2, 0}, {3, 1}});
    EXPECT_TRUE(IsSound(slice));
    ASSERT_EQ(slice.tables.size(), 1u);
    EXPECT_EQ(slice.tables.at(1).rows.size(), 2u);
    EXPECT_EQ(TextOf(slice), u"\r\nb\r\nc\r\n\r\n");
}

TEST(Edit, ASliceThatEndsBeforeATableHasNothingOfIt) {
    const Document slice = Slice(WithTable(), {{0, 0}, {1, 0}});
    EXPECT_TRUE(slice.tables.empty());
    EXPECT_EQ(TextOf(slice), u"p\r\n");
}

TEST(Edit, ASliceFromATableEndOnHasNothingOfIt) {
    const Document slice = Slice(WithTable(), {{4, 1}, {5, 1}});
    EXPECT_TRUE(slice.tables.empty());
    EXPECT_EQ(TextOf(slice), u"\r\nq");
}

TEST(Edit, ANewTableComesAfterTheTextBeforeIt) {
    Document document = FromPlainText(u"ab");
    EXPECT_FALSE(InsertTablePatch(document, {0, 1}, 0, 1));
    auto inserted = InsertTablePatch(document, {0, 1}, 2, 2);
    ASSERT_TRUE(inserted);
    Apply(document, std::move(inserted->first));
    EXPECT_EQ(TextOf(document), u"a\r\n\r\n\r\n\r\n\r\nb");
    EXPECT_TRUE(IsSound(document));
    EXPECT_FALSE(InsertTablePatch(document, {1, 0}, 1, 1));
    EXPECT_EQ(ParagraphsOfTable(document, inserted->second), std::pair(std::size_t{1}, std::size_t{5}));
    EXPECT_EQ(ParagraphsOfCell(document, {1, 1, 0}), std::pair(std::size_t{3}, std::size_t{4}));
    EXPECT_EQ(ParagraphsOfCell(document, {1, 7, 0}).first, document.paragraphs.size());
}

TEST(Edit, AFormatChangesTheRangeOnly) {
    Document document = FromPlainText(u"abc\r\n\r\ndef");
    const Index bold = document.chars.Add(CharFormat{.bold = true});
    Apply(document, FormatPatch(document, {{0, 2}, {2, 1}}, [bold](doc::Run run) {
              run.format = bold;
              return run;
          }));
    EXPECT_EQ(document.paragraphs[0].runs, (Runs{{2, 0}, {1, bold}}));
    EXPECT_EQ(document.paragraphs[1].emptyFormat, bold);
    EXPECT_EQ(document.paragraphs[2].runs, (Runs{{1, bold}, {2, 0}}));
}

TEST(Edit, AParagraphFormatChangesWhatTheRangeTouches) {
    Document document = FromPlainText(u"a\r\nb\r\nc");
    Apply(document,
          FormatParasPatch(document, {{0, 1}, {1, 0}}, [](ParaFormat& format) { format.left = 9; }));
    EXPECT_EQ(document.FormatOf(document.paragraphs[1]).left, 9);
    EXPECT_EQ(document.FormatOf(document.paragraphs[2]).left, 0);
}

TEST(Edit, AnEmptiedParagraphKeepsItsLook) {
    Document document = FromPlainText(u"abc");
    const Index bold = document.chars.Add(CharFormat{.bold = true});
    document.paragraphs[0].runs[0].format = bold;
    document = Replaced(document, {{0, 0}, {0, 3}}, {});
    EXPECT_EQ(document.paragraphs[0].emptyFormat, bold);
}

TEST(Edit, ALineThatGoesLeavesTheNextAsItWas) {
    Document document = FromPlainText(u"a\r\nb");
    document.paragraphs[1].format = document.paras.Add(ParaFormat{.left = 5});
    document = Replaced(document, {{0, 0}, {1, 0}}, {});
    EXPECT_EQ(TextOf(document), u"b");
    EXPECT_EQ(document.FormatOf(document.paragraphs[0]).left, 5);
}

TEST(Edit, ADeltaChangesWhatItNames) {
    Document document;
    const CharFormat before{.halfPoints = 30, .italic = true, .script = Script::Raised};
    const CharFormat after = Changed(document, before, {.font = u"Calibri", .bold = true, .baseLine = 0});
    EXPECT_EQ(document.fonts[after.font], u"Calibri");
    EXPECT_TRUE(after.bold && after.italic);
    EXPECT_EQ(after.halfPoints, 30);
    EXPECT_EQ(after.script, Script::Normal);
}

} // namespace
} // namespace korvane::doc
