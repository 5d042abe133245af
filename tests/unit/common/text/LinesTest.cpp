#include "common/text/Lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

std::vector<std::string> Split(std::string_view bytes, LineEnds ends) {
    LineReader reader(bytes, ends);
    std::vector<std::string> lines;
    for (std::string_view line; reader.Next(line);)
        lines.emplace_back(line);
    return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, ALineWithoutItsEndIsTheLastOne) {
    EXPECT_EQ(Split("a\r\n\r\nb", LineEnds::CrLf), (Lines{"a", "", "b"}));
    EXPECT_EQ(Split("a\r\nb\r\n", LineEnds::CrLf), (Lines{"a", "b"}));
    EXPECT_EQ(Split("", LineEnds::CrLf), Lines{});
    EXPECT_EQ(Split("\r\n", LineEnds::CrLf), Lines{""});
}

TEST(LineReader, ThePairAloneLeavesSingleEndsInTheLine) {
    EXPECT_EQ(Split("a\rb\nc\n\r\r\nd", LineEnds::CrLf), (Lines{"a\rb\nc\n\r", "d"}));
}

TEST(LineReader, ALoneCarriageReturnEndsALineWhereItMay) {
    EXPECT_EQ(Split("a\rb\nc\r\nd\r", LineEnds::CrLfOrCr), (Lines{"a", "b\nc", "d"}));
}

TEST(LineReader, ALoneLineFeedEndsALineWhereItMay) {
    EXPECT_EQ(Split("a\rb\nc\r\nd\n\r", LineEnds::CrLfOrCrOrLf), (Lines{"a", "b", "c", "d", ""}));
}

TEST(LineReader, NothingIsTouchedAtTheEnd) {
    LineReader reader("a", LineEnds::CrLf);
    std::string_view line;
    EXPECT_TRUE(reader.Next(line));
    EXPECT_FALSE(reader.Next(line));
    EXPECT_EQ(line, "a");
}

} // namespace
} // namespace korvane
