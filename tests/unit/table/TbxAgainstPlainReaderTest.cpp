#include "TbxFixtures.h"
#include "support/PlainTbxReader.h"

#include <random>

namespace korvane {
namespace {

constexpr std::string_view kParts[] = {
    "@row_1",
    "@row",
    "@col_1",
    "@col",
    "@other",
    "?1IBX",
    "?0",
    "?",
    "\xA7"
    "255",
    "\xA7-999",
    "\xA7",
    ";",
    "; x",
    "!Name",
    "!80",
    "!",
    "text",
    "a\nb",
    "---",
    "",
    "\r\n",
    "\r\n",
    "\r\n",
    "\r\n",
    "\r\n",
    "\r\n",
    "\r\n",
    "\r\n",
    "\r",
    "\n",
    " ",
    "\x80",
    "\x81",
    "@",
    "@ro",
    "12",
    "-1.5",
    "9999999999",
};

/// Joins parts of table files in any order, mostly after a usual header.
std::string RandomFile(std::mt19937& random) {
    std::string file;
    if (random() % 8 != 0) file = kHeader;
    if (random() % 4 != 0) file += kTwoColumns;
    for (auto left = random() % 60; left > 0; --left)
        file += kParts[random() % std::size(kParts)];
    return file;
}

class TbxAgainstPlainReaderTest : public testing::TestWithParam<unsigned> {};

TEST_P(TbxAgainstPlainReaderTest, AnyFileGivesTheTableOfThePlainReader) {
    std::mt19937 random(GetParam());
    for (int round = 0; round < 2000; ++round) {
        const std::string file = RandomFile(random);
        TestTable plain;
        const bool plainDone = ReadPlainly(file, plain.model);
        // The second reader takes every file for a large one.
        for (const std::size_t large : {TbxReader::kLarge, std::size_t{0}}) {
            TestTable table;
            TbxReader reader(table.model, table.host, false, Share(file), large);
            ASSERT_EQ(reader.Read() == TbxReader::Outcome::Done, plainDone) << file;
            ASSERT_EQ(DifferenceBetween(table.model, plain.model), "") << file;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TbxAgainstPlainReaderTest, testing::Range(1u, 6u));

} // namespace
} // namespace korvane
