#include "platform/qt/base/Convert.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(ConvertTest, EveryLineEndOfATextIsALineFeedInAWidget) {
    EXPECT_EQ(ToLines(u"a\r\nb\rc\nd"), QString("a\nb\nc\nd"));
}

TEST(ConvertTest, EveryLineOfAWidgetEndsInCrLf) {
    EXPECT_EQ(FromLines("a\nb\n"), u"a\r\nb\r\n");
}

TEST(ConvertTest, PositionsCountACrLfAsOneInAWidget) {
    EXPECT_EQ(ToLinesPosition(u"a\r\nb", 3), 2);
    EXPECT_EQ(FromLinesPosition(u"a\r\nb", 2), 3);
    EXPECT_EQ(FromLinesPosition(u"a\r\nb", 99), 4);
    EXPECT_EQ(ToLinesPosition(u"a\r\nb", 99), 3);
}

TEST(ConvertTest, ALoneHalfOfACharacterSurvives) {
    const Text half{0xD83D};
    EXPECT_EQ(ToText(ToQString(half)), half);
}

TEST(ConvertTest, RedStandsInTheLowByte) {
    EXPECT_EQ(ToQColor(Colour{255}), QColor(255, 0, 0));
    EXPECT_EQ(ToQColor(Colour{0xFF0000}), QColor(0, 0, 255));
    EXPECT_FALSE(ToQColor(kNoColour).isValid());
}

TEST(ConvertTest, ATipThatLooksLikeMarkupIsShownAsItStands) {
    EXPECT_EQ(PlainToolTip(u"Find string"), QString("Find string"));
    EXPECT_EQ(PlainToolTip(u"<b>x</b>"), QString("<qt>&lt;b&gt;x&lt;/b&gt;</qt>"));
}

TEST(ConvertTest, FifteenTwipsAreAPixel) {
    EXPECT_EQ(ToPixels(Twips{4800}), 320);
    EXPECT_EQ(ToTwips(320), Twips{4800});
    EXPECT_EQ(ToPixels(Twips{8}), 1);
}

TEST(Convert, OnlyTheBeginningOfALongFontNameIsLookedFor) {
    EXPECT_EQ(WithSpec({}, {Text(1'000'000, u'f'), 12}).family(), QString(1000, 'f'));
}

} // namespace
} // namespace korvane
