#include "dbops/rules/TextBlock.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(TextBlock, LinesAreRowsAndTabsSeparateCells) {
    EXPECT_EQ(RowsOfTextBlock(u"a\tb\r\nc\td\r\n"), (TextRows{{u"a", u"b"}, {u"c", u"d"}}));
    EXPECT_EQ(RowsOfTextBlock(u"a\nb\rc"), (TextRows{{u"a"}, {u"b"}, {u"c"}}));
}

TEST(TextBlock, EmptyCellsAreCells) {
    EXPECT_EQ(RowsOfTextBlock(u"\t\n\nx\t"), (TextRows{{u"", u""}, {u""}, {u"x", u""}}));
    EXPECT_TRUE(RowsOfTextBlock(u"").empty());
}

TEST(TextBlock, QuotesKeepTheLinesAndTabsOfACellTogether) {
    EXPECT_EQ(RowsOfTextBlock(u"\"one\ntwo\tand \"\"three\"\"\"\tb\nc"),
              (TextRows{{u"one\r\ntwo\tand \"three\"", u"b"}, {u"c"}}));
}

TEST(TextBlock, OtherQuotesAreText) {
    EXPECT_EQ(RowsOfTextBlock(u"\"a\"\tb"), (TextRows{{u"\"a\"", u"b"}}));
    EXPECT_EQ(RowsOfTextBlock(u"\"a\nb"), (TextRows{{u"\"a"}, {u"b"}}));
    EXPECT_EQ(RowsOfTextBlock(u"\"a\nb\"c"), (TextRows{{u"\"a"}, {u"b\"c"}}));
    EXPECT_EQ(RowsOfTextBlock(u"\""), (TextRows{{u"\""}}));
    EXPECT_EQ(RowsOfTextBlock(u"a \"b\nc\""), (TextRows{{u"a \"b"}, {u"c\""}}));
}

} // namespace
} // namespace korvane
