#include "tbx/formats/CsvReader.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Record = std::vector<std::string>;

struct Outcome {
    std::vector<Record> records;
    std::vector<std::size_t> lines;
    std::optional<CsvFault> fault;
    std::size_t faultLine = 0;
};

Outcome Read(std::string_view bytes, char delimiter = ',') {
    CsvReader reader(bytes, delimiter);
    Outcome outcome;
    for (CsvReader::Record record; reader.ReadRecord(record);) {
        outcome.records.emplace_back(record.begin(), record.end());
        outcome.lines.push_back(reader.RecordLine());
    }
    outcome.fault = reader.Fault();
    outcome.faultLine = reader.FaultLine();
    return outcome;
}

TEST(CsvReader, ARecordEndsAtCrLfLfCrOrTheEndOfTheFile) {
    const Outcome outcome = Read("a,b\r\nc,d\ne,f\rg,h");
    EXPECT_THAT(outcome.records,
                ElementsAre(Record{"a", "b"}, Record{"c", "d"}, Record{"e", "f"}, Record{"g", "h"}));
    EXPECT_THAT(outcome.lines, ElementsAre(1u, 2u, 3u, 4u));
}

TEST(CsvReader, AFinalLineEndOpensNoFurtherRecord) {
    EXPECT_THAT(Read("a\r\n").records, ElementsAre(Record{"a"}));
    EXPECT_THAT(Read("").records, IsEmpty());
}

TEST(CsvReader, AnEmptyLineIsARecordOfOneEmptyField) {
    EXPECT_THAT(Read("a\n\nb\n").records, ElementsAre(Record{"a"}, Record{""}, Record{"b"}));
}

TEST(CsvReader, ADelimiterAtTheEndOpensAnEmptyField) {
    EXPECT_THAT(Read("a,\n,b\n,").records, ElementsAre(Record{"a", ""}, Record{"", "b"}, Record{"", ""}));
}

TEST(CsvReader, QuotesHoldDelimitersLineBreaksAndDoubledQuotes) {
    const Outcome outcome = Read("\"a,b\",\"say \"\"hi\"\"\"\r\n\"one\r\ntwo\nthree\rfour\",\"\"\r\nx,y");
    EXPECT_THAT(outcome.records, ElementsAre(Record{"a,b", "say \"hi\""},
                                             Record{"one\r\ntwo\nthree\rfour", ""}, Record{"x", "y"}));
    EXPECT_THAT(outcome.lines, ElementsAre(1u, 2u, 6u));
}

TEST(CsvReader, BlanksBelongToTheField) {
    EXPECT_THAT(Read(" a , b ").records, ElementsAre(Record{" a ", " b "}));
}

TEST(CsvReader, AQuoteInsideAnUnquotedFieldIsACharacter) {
    EXPECT_THAT(Read("5\" disk,a\"\"b").records, ElementsAre(Record{"5\" disk", "a\"\"b"}));
}

TEST(CsvReader, AByteOrderMarkInFrontIsPassedOver) {
    EXPECT_THAT(Read("\xEF\xBB\xBF\"a\",b").records, ElementsAre(Record{"a", "b"}));
    EXPECT_THAT(Read("a,\xEF\xBB\xBF").records, ElementsAre(Record{"a", "\xEF\xBB\xBF"}));
}

TEST(CsvReader, TakesAnotherDelimiter) {
    EXPECT_THAT(Read("a,b;\"c;d\"", ';').records, ElementsAre(Record{"a,b", "c;d"}));
}

TEST(CsvReader, KeepsNulAndBytesPastAscii) {
    const std::string bytes("a\0b,\xFF", 5);
    EXPECT_THAT(Read(bytes).records, ElementsAre(Record{std::string("a\0b", 3), "\xFF"}));
}

TEST(CsvReader, AnUnclosedQuoteIsAFaultOfTheLineWhereItOpens) {
    const Outcome outcome = Read("a,b\r\nc,\"d\r\ne,f\r\n");
    EXPECT_THAT(outcome.records, ElementsAre(Record{"a", "b"}));
    EXPECT_EQ(outcome.fault, CsvFault::UnclosedQuote);
    EXPECT_EQ(outcome.faultLine, 2u);
}

TEST(CsvReader, TextAfterAClosingQuoteIsAFaultOfTheLineWhereItCloses) {
    const Outcome outcome = Read("\"a\nb\"c\n");
    EXPECT_THAT(outcome.records, IsEmpty());
    EXPECT_EQ(outcome.fault, CsvFault::TextAfterQuote);
    EXPECT_EQ(outcome.faultLine, 2u);
}

TEST(CsvReader, ARecordWithMoreFieldsThanAllowedIsAFaultOfItsLine) {
    CsvReader reader("a,b\nc,d,e\nf\n");
    CsvReader::Record record;
    EXPECT_TRUE(reader.ReadRecord(record, 2));
    EXPECT_FALSE(reader.ReadRecord(record, 2));
    EXPECT_EQ(reader.Fault(), CsvFault::TooManyFields);
    EXPECT_EQ(reader.FaultLine(), 2u);
}

TEST(CsvReader, NothingIsReadAfterAFault) {
    CsvReader reader("\"a\"b\nc\n");
    CsvReader::Record record;
    EXPECT_FALSE(reader.ReadRecord(record));
    EXPECT_FALSE(reader.ReadRecord(record));
    EXPECT_THAT(record, IsEmpty());
}

} // namespace
} // namespace korvane
