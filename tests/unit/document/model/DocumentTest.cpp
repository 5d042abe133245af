#include "document/model/Document.h"

#include "support/RandomDocument.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

TEST(Document, APlainTextEndsAParagraphAtAnyLineEnd) {
    const Document document = FromPlainText(u"a\r\nb\rc\nd\n\re");
    ASSERT_EQ(document.paragraphs.size(), 6u);
    EXPECT_EQ(PlainText(document), u"a\r\nb\r\nc\r\nd\r\n\r\ne");
    EXPECT_TRUE(IsSound(document));
}

TEST(Document, AnEmptyTextIsOneParagraph) {
    EXPECT_EQ(FromPlainText({}).paragraphs.size(), 1u);
    EXPECT_TRUE(SameContent(FromPlainText({}), Document{}));
}

TEST(Document, FontsAreThereOnce) {
    Document document;
    EXPECT_EQ(document.FontNumber(u"Arial"), 0);
    EXPECT_EQ(document.FontNumber(u"Calibri"), 1);
    EXPECT_EQ(document.FontNumber(u"Calibri"), 1);
}

TEST(Document, RunsThatLookAlikeBecomeOne) {
    Runs runs;
    AddRun(runs, {2, 1});
    AddRun(runs, {3, 1});
    AddRun(runs, {0, 5});
    AddRun(runs, {1, 1, 7});
    EXPECT_EQ(runs, (Runs{{5, 1}, {1, 1, 7}}));
}

TEST(Document, PicturesStayRunsOfTheirOwn) {
    Runs runs;
    AddRun(runs, {1, 0, 0, 1});
    AddRun(runs, {1, 0, 0, 1});
    EXPECT_EQ(runs.size(), 2u);
}

TEST(Document, FormatsAreComparedByWhatTheyMean) {
    Document a = FromPlainText(u"x");
    Document b = FromPlainText(u"x");
    CharFormat bold;
    bold.bold = true;
    a.chars.Add(CharFormat{.italic = true});
    a.paragraphs[0].runs[0].format = a.chars.Add(bold);
    EXPECT_FALSE(SameContent(a, b));
    b.paragraphs[0].runs[0].format = b.chars.Add(bold);
    EXPECT_TRUE(SameContent(a, b));
}

TEST(Document, TheLastParagraphIsInNoTable) {
    Document document;
    document.tables[1].rows = {TableRow{{CellFormat{}}}};
    document.paragraphs[0].cell = {1, 0, 0};
    EXPECT_FALSE(IsSound(document));
    document.paragraphs.emplace_back();
    EXPECT_TRUE(IsSound(document));
}

TEST(Document, EveryCellHasAParagraph) {
    Document document;
    document.tables[1].rows = {TableRow{{CellFormat{}, CellFormat{}}}};
    document.paragraphs = {Paragraph{.cell = {1, 0, 0}}, Paragraph{}};
    EXPECT_FALSE(IsSound(document));
    document.paragraphs.insert(document.paragraphs.begin() + 1, Paragraph{.cell = {1, 0, 1}});
    EXPECT_TRUE(IsSound(document));
}

TEST(Document, RunsCoverTheText) {
    Document document = FromPlainText(u"abc");
    document.paragraphs[0].runs[0].length = 2;
    EXPECT_FALSE(IsSound(document));
}

TEST(Document, RandomDocumentsAreSound) {
    for (unsigned seed = 0; seed < 300; ++seed)
        ASSERT_TRUE(IsSound(RandomDocument(seed))) << seed;
}

} // namespace
} // namespace korvane::doc
