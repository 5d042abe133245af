#include "platform/xls/XlsWriter.h"

#include "common/number/Number.h"
#include "support/PlainXlsReader.h"

#include <gmock/gmock.h>

#include <random>

namespace korvane::xls {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// The file's number for colour 35 of the palette.
constexpr int kLightGreen = 42;
constexpr PlainFormat kPlain;
constexpr PlainFormat kWrapped{true, 0};

class StringFile final : public FileWriter {
public:
    std::string bytes;
    /// A write fails when the file would become larger than this.
    std::size_t room = std::string().max_size();

    bool Write(std::string_view more) override {
        if (more.size() > room - bytes.size()) return false;
        bytes += more;
        return true;
    }
    bool Close() override { return true; }
};

PlainXls WrittenAndRead(const Workbook& book) {
    StringFile file;
    EXPECT_TRUE(WriteXls(book, file));
    return ReadXls(file.bytes);
}

/// The text that the file stores for a cell with this text.
Text Stored(TextView text) {
    Workbook book;
    book.SetText({0, 0}, text);
    return WrittenAndRead(book).TextAt(0, 0);
}

TEST(XlsWriter, AnEmptyWorkbookIsASheetWithoutCells) {
    const PlainXls read = WrittenAndRead(Workbook());
    EXPECT_EQ(read.sheetName, "Sheet1");
    EXPECT_THAT(read.formats, IsEmpty());
    EXPECT_EQ(read.size, (PlainXls::Place{0, 0}));
    EXPECT_EQ(read.activeCell, (PlainXls::Place{0, 0}));
}

TEST(XlsWriter, CellsAreWhereTheyWerePut) {
    Workbook book;
    book.SetText({0, 0}, u"a1");
    book.SetText({0, 23}, u"x1");
    book.SetText({4, 1}, u"b5");
    const PlainXls read = WrittenAndRead(book);
    EXPECT_THAT(read.texts,
                ElementsAre(Pair(PlainXls::Place{0, 0}, u"a1"), Pair(PlainXls::Place{0, 23}, u"x1"),
                            Pair(PlainXls::Place{4, 1}, u"b5")));
    EXPECT_EQ(read.size, (PlainXls::Place{5, 24}));
}

TEST(XlsWriter, TheOrderInWhichCellsAreFilledMakesNoDifference) {
    Workbook book;
    book.SetText({2, 2}, u"c3");
    book.SetText({0, 3}, u"d1");
    book.SetText({0, 1}, u"b1");
    book.SetText({0, 2}, u"c1");
    EXPECT_THAT(WrittenAndRead(book).texts,
                ElementsAre(Pair(PlainXls::Place{0, 1}, u"b1"), Pair(PlainXls::Place{0, 2}, u"c1"),
                            Pair(PlainXls::Place{0, 3}, u"d1"), Pair(PlainXls::Place{2, 2}, u"c3")));
}

TEST(XlsWriter, ALaterTextTakesThePlaceOfAnEarlierOne) {
    Workbook book;
    book.SetText({0, 0}, u"one\r\ntwo");
    book.SetText({0, 0}, u"three");
    const PlainXls read = WrittenAndRead(book);
    EXPECT_EQ(read.TextAt(0, 0), u"three");
    EXPECT_EQ(read.FormatAt(0, 0), kPlain);
}

TEST(XlsWriter, AnEmptyTextMakesNoCell) {
    Workbook book;
    book.SetText({0, 0}, u"");
    EXPECT_THAT(WrittenAndRead(book).formats, IsEmpty());
}

TEST(XlsWriter, AnEmptyTextEmptiesACellAndLeavesItsColour) {
    Workbook book;
    book.SetText({0, 0}, u"one\r\ntwo");
    book.SetFill({0, 0}, 35);
    book.SetText({0, 0}, u"");
    const PlainXls read = WrittenAndRead(book);
    EXPECT_THAT(read.texts, IsEmpty());
    EXPECT_EQ(read.FormatAt(0, 0), (PlainFormat{false, kLightGreen}));
}

TEST(XlsWriter, ATextThatLooksLikeSomethingElseStaysAsItIs) {
    for (const TextView text : {u"=1+1", u"'quoted", u"007", u"12.50", u"1e5", u"TRUE", u"2026-11-21",
                                u"#N/A", u"@x", u"+44 20", u" ", u"-"})
        EXPECT_EQ(Stored(text), text);
}

TEST(XlsWriter, TextsOfAllScriptsComeThrough) {
    for (const TextView text :
         {u"\u00E4\u00F6\u00FC\u00DF", u"\u20AC", u"\u0416", u"\u4E2D\u6587", u"\U0001F600", u"e\u0301"})
        EXPECT_EQ(Stored(text), text);
}

TEST(XlsWriter, CharactersThatAreNoneComeThrough) {
    for (const char16_t character : {char16_t{0}, char16_t{0x1F}, char16_t{0xD800}, char16_t{0xFFFF}}) {
        const Text text = Text(u"a") + character + u"b";
        EXPECT_EQ(Stored(text), text);
    }
}

TEST(XlsWriter, ALineEndBecomesALineFeedAndTheCellShowsItsLines) {
    Workbook book;
    book.SetText({0, 0}, u"one\r\ntwo\r\n\r\nthree\r\n");
    book.SetText({0, 1}, u"one line");
    const PlainXls read = WrittenAndRead(book);
    EXPECT_EQ(read.TextAt(0, 0), u"one\ntwo\n\nthree\n");
    EXPECT_EQ(read.FormatAt(0, 0), kWrapped);
    EXPECT_EQ(read.FormatAt(0, 1), kPlain);
}

TEST(XlsWriter, ARowIsHighEnoughForItsLinesUpToTheHighestThereIs) {
    Workbook book;
    book.SetText({0, 0}, u"one");
    book.SetText({1, 0}, u"one\r\ntwo\r\nthree");
    book.SetText({1, 1}, u"one\r\ntwo");
    book.SetText({2, 0}, Text(1000, u'\n'));
    EXPECT_THAT(WrittenAndRead(book).rowHeights, ElementsAre(Pair(0, 255), Pair(1, 3 * 255), Pair(2, 8190)));
}

TEST(XlsWriter, LoneCarriageReturnsAndLineFeedsStay) {
    EXPECT_EQ(Stored(u"a\rb\nc\n\rd"), u"a\rb\nc\n\rd");
}

TEST(XlsWriter, TheLongestTextComesThroughAndALongerOneIsCut) {
    const Text longest(32767, u'x');
    EXPECT_EQ(Stored(longest), longest);
    EXPECT_EQ(Stored(longest + u"y"), longest);
    const Text wide(32767, u'\u4E2D');
    EXPECT_EQ(Stored(wide + u"y"), wide);
}

TEST(XlsWriter, LineEndsCountAsOneCharacterTowardsTheLimit) {
    const Text tail(32766, u'x');
    EXPECT_EQ(Stored(u"\r\n" + tail), u"\n" + tail);
}

TEST(XlsWriter, TheCutNeverPartsTheTwoHalvesOfACharacter) {
    const Text before(32766, u'x');
    EXPECT_EQ(Stored(before + u"\U0001F600"), before);
}

TEST(XlsWriter, AFilledCellHasTheColourOfThePalette) {
    Workbook book;
    book.SetText({0, 0}, u"Name");
    book.SetFill({0, 0}, 35);
    book.SetFill({0, 1}, 1);
    book.SetFill({0, 2}, 56);
    const PlainXls read = WrittenAndRead(book);
    EXPECT_EQ(read.TextAt(0, 0), u"Name");
    EXPECT_EQ(read.FormatAt(0, 0), (PlainFormat{false, kLightGreen}));
    EXPECT_EQ(read.FormatAt(0, 1), (PlainFormat{false, 8}));
    EXPECT_EQ(read.FormatAt(0, 2), (PlainFormat{false, 63}));
}

TEST(XlsWriter, AFilledCellOfSeveralLinesIsBoth) {
    Workbook book;
    book.SetFill({0, 0}, 35);
    book.SetText({0, 0}, u"a\nb");
    EXPECT_EQ(WrittenAndRead(book).FormatAt(0, 0), (PlainFormat{true, kLightGreen}));
}

TEST(XlsWriter, AColumnOf32CharactersIsAsWideAsThese) {
    Workbook book;
    book.SetColumnWidth(0, 32);
    book.SetColumnWidth(23, 255);
    // The width is 32 characters of 7 pixels and 5 pixels of margin, in 256ths of a character.
    EXPECT_THAT(WrittenAndRead(book).columnWidths, ElementsAre(Pair(0, 8374), Pair(23, 65462)));
}

TEST(XlsWriter, TextsAreStoredOnce) {
    Workbook book;
    for (U16 row = 0; row < 10; ++row)
        book.SetText({row, 0}, u"same");
    const PlainXls read = WrittenAndRead(book);
    EXPECT_EQ(read.sharedTexts, std::vector<Text>{u"same"});
    EXPECT_EQ(read.textUses, 10u);
    EXPECT_EQ(read.texts.size(), 10u);
}

TEST(XlsWriter, RowsWithoutCellsBetweenOthersAreNoObstacle) {
    Workbook book;
    book.SetText({0, 0}, u"first");
    book.SetText({31, 5}, u"end of the first block");
    book.SetText({100, 1}, u"last");
    const PlainXls read = WrittenAndRead(book);
    EXPECT_EQ(read.texts.size(), 3u);
    EXPECT_EQ(read.size, (PlainXls::Place{101, 6}));
}

TEST(XlsWriter, KnowsTheLastCellOfASheet) {
    Workbook book;
    book.SetText({65535, 255}, u"last");
    EXPECT_EQ(WrittenAndRead(book).TextAt(65535, 255), u"last");
}

TEST(XlsWriter, RandomCellsComeThrough) {
    std::mt19937 random(20261121);
    const auto below = [&random](unsigned limit) {
        return std::uniform_int_distribution<unsigned>(0, limit - 1)(random);
    };
    constexpr std::u16string_view kLetters = u"ab \u00E4\u00FF\u0100\u20AC\u4E2D\n";
    Workbook book;
    std::map<PlainXls::Place, Text> expected;
    for (int i = 0; i < 2000; ++i) {
        const CellPlace place{static_cast<U16>(below(300)), static_cast<U16>(below(24))};
        const std::size_t alphabet = below(2) == 0 ? 5 : kLetters.size();
        Text text(1 + below(below(20) == 0 ? 20'000 : 60), u' ');
        for (char16_t& letter : text)
            letter = kLetters[below(static_cast<unsigned>(alphabet))];
        book.SetText(place, text);
        expected[{place.row, place.col}] = text;
    }
    EXPECT_EQ(WrittenAndRead(book).texts, expected);
}

TEST(XlsWriter, TellsOfAFullDisk) {
    Workbook book;
    book.SetText({0, 0}, u"text");
    StringFile whole;
    ASSERT_TRUE(WriteXls(book, whole));
    StringFile file;
    file.room = whole.bytes.size() - 1;
    EXPECT_FALSE(WriteXls(book, file));
}

} // namespace
} // namespace korvane::xls
