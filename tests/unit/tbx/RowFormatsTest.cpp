#include "tbx/formats/CsvRows.h"
#include "tbx/formats/JsonRows.h"
#include "tbx/formats/TsvRows.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using Texts = std::vector<Text>;

std::vector<CellText> CellsOf(const Texts& texts) {
    return {texts.begin(), texts.end()};
}

template <class Format>
std::string Write(Format format, const Texts& headers, const std::vector<Texts>& rows) {
    StringOutput out;
    format.Begin(std::vector<TextView>(headers.begin(), headers.end()), out);
    for (const Texts& row : rows)
        format.AddRow(CellsOf(row), out);
    format.End(out);
    out.Flush();
    return out.Bytes();
}

Texts Keys(const Texts& headers) {
    Texts keys;
    for (const JsonKey& key : DistinctKeys(std::vector<TextView>(headers.begin(), headers.end())))
        keys.push_back(Text(key.header) + key.addition);
    return keys;
}

TEST(CsvRows, QuotesOnlyWhatNeedsIt) {
    EXPECT_EQ(Write(CsvRows(), {u"Name", u"a,b"}, {{u"Zoë", u"say \"hi\""}, {u"one\r\ntwo", u" x;y "}}),
              "Name,\"a,b\"\r\nZoë,\"say \"\"hi\"\"\"\r\n\"one\r\ntwo\", x;y \r\n");
}

TEST(CsvRows, TakesAnotherDelimiter) {
    EXPECT_EQ(Write(CsvRows(';'), {u"a,b", u"c;d"}, {}), "a,b;\"c;d\"\r\n");
}

TEST(CsvRows, TheEmptyFieldOfASingleColumnIsQuoted) {
    EXPECT_EQ(Write(CsvRows(), {u"a"}, {{u""}}), "a\r\n\"\"\r\n");
    EXPECT_EQ(Write(CsvRows(), {u"a", u"b"}, {{u"", u""}}), "a,b\r\n,\r\n");
}

TEST(TsvRows, EscapesTabsLineBreaksAndBackslashes) {
    EXPECT_EQ(Write(TsvRows(), {u"Name", u"Note"}, {{u"a\tb\\", u"one\r\ntwo"}, {u"", u"\"é\""}}),
              "Name\tNote\na\\tb\\\\\tone\\r\\ntwo\n\t\"é\"\n");
}

TEST(JsonRows, EveryRowIsAnObjectOnALineOfItsOwn) {
    EXPECT_EQ(Write(JsonRows(), {u"Name", u"No\"te"}, {{u"Zoë", u"a\r\nb"}, {u"", u"x"}}), R"([
{"Name":"Zoë","No\"te":"a\r\nb"},
{"Name":"","No\"te":"x"}
]
)");
}

TEST(JsonRows, ATableWithoutRowsIsAnEmptyArray) {
    EXPECT_EQ(Write(JsonRows(), {u"Name"}, {}), "[]\n");
}

TEST(JsonRows, AKeyIsNumberedWhereItsHeaderStoodBefore) {
    EXPECT_THAT(Keys({u"a", u"b", u"a", u"a"}), ElementsAre(u"a", u"b", u"a 2", u"a 3"));
    EXPECT_THAT(Keys({u"a", u"a", u"a 2"}), ElementsAre(u"a", u"a 3", u"a 2"));
    EXPECT_THAT(Keys({u"a", u"a 2", u"a 2"}), ElementsAre(u"a", u"a 2", u"a 2 2"));
}

TEST(JsonRows, AnEmptyHeaderGetsTheNumberOfItsColumn) {
    EXPECT_THAT(Keys({u"", u"x", u""}), ElementsAre(u"column 1", u"x", u"column 3"));
    EXPECT_THAT(Keys({u"", u"column 1"}), ElementsAre(u"column 1 2", u"column 1"));
}

TEST(JsonRows, ALongHeaderIsAKeyToo) {
    const Text name = Text(20'000, u'n') + u"\"";
    const std::string json = std::string(20'000, 'n') + "\\\"";
    EXPECT_EQ(Write(JsonRows(), {name, name}, {{u"a", u"b"}}),
              "[\n{\"" + json + "\":\"a\",\"" + json + " 2\":\"b\"}\n]\n");
}

TEST(RowFormats, ATableWithoutColumnsGivesNoLines) {
    EXPECT_EQ(Write(CsvRows(), {}, {{}, {}}), "");
    EXPECT_EQ(Write(TsvRows(), {}, {{}, {}}), "");
    EXPECT_EQ(Write(JsonRows(), {}, {{}, {}}), "[\n{},\n{}\n]\n");
}

} // namespace
} // namespace korvane
