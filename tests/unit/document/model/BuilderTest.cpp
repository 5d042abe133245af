#include "document/model/Builder.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

TEST(Builder, TextAfterTheLastEndIsAParagraphToo) {
    Builder builder({});
    builder.AddAscii("one");
    builder.EndParagraph({});
    builder.AddAscii("two");
    EXPECT_EQ(PlainText(builder.Finish({})), u"one\r\ntwo");
}

TEST(Builder, TheLastEndBeginsNoParagraph) {
    Builder builder({});
    builder.AddAscii("one");
    builder.EndParagraph({});
    EXPECT_EQ(PlainText(builder.Finish({})), u"one");
}

TEST(Builder, OfATextThatIsTooLongTheBeginningStays) {
    Limits limits;
    limits.characters = 5;
    Builder builder(limits);
    builder.AddAscii("abc");
    builder.Add(u"defg");
    builder.AddAscii("h");
    EXPECT_EQ(builder.Told(), Trouble::OverLimit);
    const Document document = builder.Finish({});
    EXPECT_EQ(PlainText(document), u"abcde");
    EXPECT_TRUE(IsSound(document));
}

TEST(Builder, ACellTakesTheParagraphsSinceItOpened) {
    Builder builder({});
    builder.AddAscii("before");
    builder.EndParagraph({});
    builder.OpenCell();
    builder.AddAscii("a");
    builder.EndParagraph({});
    builder.AddAscii("b");
    builder.EndCell({});
    builder.AddAscii("c");
    builder.EndCell({});
    builder.EndRow({CellFormat{.width = 100}});
    const Document document = builder.Finish({});
    EXPECT_EQ(PlainText(document), u"before\r\na\r\nb\r\nc\r\n");
    EXPECT_TRUE(IsSound(document));
    EXPECT_EQ(document.paragraphs[2].cell, (CellPlace{1, 0, 0}));
    EXPECT_EQ(document.paragraphs[3].cell, (CellPlace{1, 0, 1}));
    EXPECT_EQ(document.tables.at(1).rows[0].cells[1].width, 100);
}

TEST(Builder, RowsThatFollowAreOneTable) {
    Builder builder({});
    for (int row = 0; row < 2; ++row) {
        builder.EndCell({});
        builder.EndRow({});
    }
    builder.EndTable();
    builder.EndCell({});
    builder.EndRow({});
    const Document document = builder.Finish({});
    EXPECT_EQ(document.tables.size(), 2u);
    EXPECT_EQ(document.tables.at(1).rows.size(), 2u);
    EXPECT_TRUE(IsSound(document));
}

TEST(Builder, ARowWithoutItsEndStays) {
    Builder builder({});
    builder.AddAscii("cell");
    builder.EndCell({});
    const Document document = builder.Finish({});
    EXPECT_EQ(document.tables.size(), 1u);
    EXPECT_TRUE(IsSound(document));
}

TEST(Builder, ACellThatIsOpenAtARowsEndBeginsTheNextRow) {
    Builder builder({});
    builder.AddAscii("a");
    builder.EndCell({});
    builder.OpenCell();
    builder.AddAscii("b");
    builder.EndParagraph({});
    builder.EndRow({});
    builder.AddAscii("c");
    builder.EndCell({});
    builder.EndRow({});
    const Document document = builder.Finish({});
    EXPECT_TRUE(IsSound(document));
    EXPECT_EQ(document.tables.at(1).rows.size(), 2u);
    EXPECT_EQ(document.paragraphs[1].cell, (CellPlace{1, 1, 0}));
}

TEST(Builder, TextBeyondTheLimitIsLeftOut) {
    Limits limits;
    limits.characters = 10;
    Builder builder(limits);
    builder.AddAscii("12345678");
    builder.AddAscii("1234");
    EXPECT_TRUE(builder.Full());
    EXPECT_EQ(PlainText(builder.Finish({})), u"1234567812");
}

TEST(Builder, CellsBeyondTheLimitBecomeParagraphs) {
    Limits limits;
    limits.cells = 2;
    Builder builder(limits);
    for (int row = 0; row < 3; ++row) {
        builder.AddAscii("x");
        builder.EndCell({});
        builder.EndRow({});
    }
    const Document document = builder.Finish({});
    EXPECT_EQ(document.tables.at(1).rows.size(), 2u);
    EXPECT_EQ(PlainText(document), u"x\r\nx\r\nx");
    EXPECT_TRUE(IsSound(document));
}

TEST(Builder, ColumnsBeyondTheLimitJoinTheLastOne) {
    Limits limits;
    limits.columns = 2;
    Builder builder(limits);
    for (int column = 0; column < 4; ++column)
        builder.EndCell({});
    builder.EndRow({});
    const Document document = builder.Finish({});
    EXPECT_EQ(document.tables.at(1).rows[0].cells.size(), 2u);
    EXPECT_TRUE(IsSound(document));
}

TEST(Builder, AnEmptyParagraphKeepsTheLook) {
    Builder builder({});
    builder.SetFormat(CharFormat{.bold = true});
    builder.EndParagraph({});
    const Document document = builder.Finish({});
    EXPECT_TRUE(document.chars[document.paragraphs[0].emptyFormat].bold);
}

TEST(Builder, TheLastCharacterCanBeTakenAway) {
    Builder builder({});
    builder.AddAscii("a ");
    builder.RemoveLast();
    EXPECT_EQ(builder.Last(), u'a');
    builder.RemoveLast();
    EXPECT_TRUE(builder.AtParagraphStart());
    EXPECT_TRUE(IsSound(builder.Finish({})));
}

} // namespace
} // namespace korvane::doc
