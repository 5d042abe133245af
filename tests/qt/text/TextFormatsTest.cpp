#include "platform/qt/text/TextFormats.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QLocale>

namespace korvane {
namespace {

constexpr std::int32_t kInch = 1440;

TEST(TextFormats, CharactersLookAsTheirFormatSays) {
    doc::CharFormat format;
    format.halfPoints = 25;
    format.bold = format.italic = format.underline = format.strike = format.smallCaps = true;
    format.fore = {0x0000FF};
    format.back = {0xFF0000};
    const QTextCharFormat look = CharLook(format, u"Courier New");
    EXPECT_EQ(look.fontFamilies().toStringList(), QStringList("Courier New"));
    EXPECT_EQ(look.fontPointSize(), 12.5);
    EXPECT_EQ(look.fontWeight(), QFont::Bold);
    EXPECT_TRUE(look.fontItalic() && look.fontUnderline() && look.fontStrikeOut());
    EXPECT_EQ(look.fontCapitalization(), QFont::SmallCaps);
    EXPECT_EQ(look.foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(look.background().color(), QColor(0, 0, 255));
}

TEST(TextFormats, RaisedCharactersAreRaisedByTheirLength) {
    doc::CharFormat format;
    format.baseLine = 60;
    const QTextCharFormat look = CharLook(format, u"Arial");
    EXPECT_NEAR(look.baselineOffset() / 100 * QFontMetricsF(look.font()).height(), TextPixels(60), 0.01);
    format.halfPoints = 48;
    const QTextCharFormat larger = CharLook(format, u"Arial");
    EXPECT_NEAR(larger.baselineOffset() / 100 * QFontMetricsF(larger.font()).height(), TextPixels(60), 0.01);
    format = {.script = doc::Script::Raised};
    EXPECT_EQ(CharLook(format, u"Arial").verticalAlignment(), QTextCharFormat::AlignSuperScript);
}

TEST(TextFormats, CharactersOnAColourCanBeRead) {
    const auto foreOn = [](Colour back) { return CharLook({.back = back}, u"Arial").foreground().color(); };
    EXPECT_EQ(foreOn(Colour{0x00FFFF}), Qt::black);
    EXPECT_EQ(foreOn(Colour{0x800000}), Qt::white);
    EXPECT_EQ(CharLook({.fore = Colour{255}, .back = Colour{255}}, u"Arial").foreground().color(), Qt::red);
    EXPECT_FALSE(CharLook({}, u"Arial").hasProperty(QTextFormat::ForegroundBrush));
}

TEST(TextFormats, LengthsComeBack) {
    for (const std::int32_t twips : {-36, 0, 1, 7, 15, 284, 567, 11906})
        EXPECT_EQ(TextTwips(TextPixels(twips)), twips);
}

TEST(TextFormats, AParagraphHasItsIndents) {
    doc::ParaFormat format;
    format.left = kInch;
    format.first = -kInch / 2;
    format.right = 100;
    format.before = 40;
    format.after = 60;
    const QTextBlockFormat look = ParagraphLook(format);
    EXPECT_EQ(look.leftMargin(), TextPixels(kInch));
    EXPECT_EQ(look.textIndent(), TextPixels(-kInch / 2));
    EXPECT_EQ(look.rightMargin(), TextPixels(100));
    EXPECT_EQ(look.topMargin(), TextPixels(40));
    EXPECT_EQ(look.bottomMargin(), TextPixels(60));
}

TEST(TextFormats, AnIndentBeforeTheMarginIsShownAtTheMargin) {
    doc::ParaFormat format;
    format.left = -300;
    format.first = -300;
    const QTextBlockFormat look = ParagraphLook(format);
    EXPECT_EQ(look.leftMargin(), 0);
    EXPECT_EQ(look.textIndent(), 0);
}

TEST(TextFormats, TabsCountFromTheStartOfTheLine) {
    doc::ParaFormat format;
    format.left = 1000;
    format.first = -400;
    format.tabs = {{500, doc::TabType::Left}, {2000, doc::TabType::Right}, {3000, doc::TabType::Decimal}};
    const auto tabs = ParagraphLook(format).tabPositions();
    ASSERT_EQ(tabs.size(), 3);
    // The stop before the line is out of reach, and the hanging line has one at the indent.
    EXPECT_EQ(tabs[0].position, TextPixels(400));
    EXPECT_EQ(tabs[1].position, TextPixels(1400));
    EXPECT_EQ(tabs[1].type, QTextOption::RightTab);
    EXPECT_EQ(tabs[2].type, QTextOption::DelimiterTab);
}

TEST(TextFormats, ADecimalTabIsForTheSignOfTheLanguage) {
    doc::ParaFormat format;
    format.tabs = {{3000, doc::TabType::Decimal}};
    const QLocale before;
    for (const auto& [language, sign] : {std::pair{QLocale::German, u','}, {QLocale::English, u'.'}}) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(ParagraphLook(format).tabPositions().at(0).delimiter, sign);
    }
    QLocale::setDefault(before);
}

TEST(TextFormats, LinesAreApartAsTheFormatSays) {
    doc::ParaFormat format;
    format.spacingPercent = 150;
    EXPECT_EQ(ParagraphLook(format).lineHeightType(), QTextBlockFormat::ProportionalHeight);
    EXPECT_EQ(ParagraphLook(format).lineHeight(), 150);
    format.spacingExact = 300;
    EXPECT_EQ(ParagraphLook(format).lineHeightType(), QTextBlockFormat::FixedHeight);
    EXPECT_EQ(ParagraphLook(format).lineHeight(), TextPixels(300));
}

TEST(TextFormats, AFrameMakesRoomOnItsSides) {
    doc::ParaFormat format;
    format.frame = doc::kFrameLeft | doc::kFrameSingle;
    format.frameDistance = 60;
    format.frameWidth = 20;
    EXPECT_EQ(ParagraphLook(format).leftMargin(), TextPixels(80));
    EXPECT_EQ(ParagraphLook(format).rightMargin(), 0);
}

TEST(TextFormats, AParagraphWithoutFormatsIsThatOfQt) {
    EXPECT_EQ(ParagraphLook({}), QTextBlockFormat());
}

} // namespace
} // namespace korvane
