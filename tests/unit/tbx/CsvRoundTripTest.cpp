#include "common/text/CodePage.h"
#include "tbx/formats/CsvReader.h"
#include "tbx/formats/CsvRows.h"

#include <gtest/gtest.h>

#include <random>

namespace korvane {
namespace {

using Table = std::vector<std::vector<Text>>;

/// The characters that mean something in a CSV file are far more frequent than by chance.
char16_t RandomCharacter(std::mt19937& random) {
    constexpr std::u16string_view kTurning = u"\",;\r\n\t \uFEFF";
    if (random() % 2 == 0) return kTurning[random() % kTurning.size()];
    return CodePage::Windows1252().Decode(static_cast<unsigned char>(random() % 256));
}

Text RandomText(std::mt19937& random) {
    Text text(random() % 6, u' ');
    for (char16_t& character : text)
        character = RandomCharacter(random);
    return text;
}

Table RandomTable(std::mt19937& random) {
    Table table(1 + random() % 5, std::vector<Text>(1 + random() % 4));
    for (auto& row : table)
        for (Text& cell : row)
            cell = RandomText(random);
    return table;
}

std::string Write(const Table& table, char delimiter) {
    CsvRows format(delimiter);
    StringOutput out;
    for (const std::vector<Text>& row : table)
        format.AddRow(std::vector<CellText>(row.begin(), row.end()), out);
    out.Flush();
    return out.Bytes();
}

Table Read(std::string_view bytes, char delimiter) {
    Table table;
    CsvReader reader(bytes, delimiter);
    for (CsvReader::Record record; reader.ReadRecord(record);) {
        table.emplace_back();
        for (const std::string_view field : record)
            table.back().push_back(FromUtf8(field));
    }
    EXPECT_FALSE(reader.Fault());
    return table;
}

TEST(CsvRoundTrip, AnyTableComesBackAsItWasWritten) {
    std::mt19937 random(20261121);
    for (int i = 0; i < 20000; ++i) {
        const Table table = RandomTable(random);
        const char delimiter = ",;\t"[random() % 3];
        const std::string bytes = Write(table, delimiter);
        ASSERT_EQ(Read(bytes, delimiter), table) << "round " << i << ":\n" << bytes;
    }
}

TEST(CsvRoundTrip, EveryCharacterOfThePageComesBack) {
    const CodePage page = CodePage::Windows1252();
    for (int byte = 0; byte < 256; ++byte) {
        const Text character(1, page.Decode(static_cast<unsigned char>(byte)));
        for (const Text& cell : {character, u"a" + character + u"b", character + character}) {
            const Table table{{cell}, {cell, u"x", cell}};
            EXPECT_EQ(Read(Write(table, ','), ','), table) << "byte " << byte;
        }
    }
}

} // namespace
} // namespace korvane
