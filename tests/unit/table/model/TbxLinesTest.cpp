#include "table/model/TbxLines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

std::vector<std::string> Split(std::string_view bytes) {
    std::vector<std::string> lines;
    TbxLines reader(bytes);
    while (!reader.AtEnd()) {
        reader.Next();
        EXPECT_EQ(bytes.substr(reader.Begin(), reader.End() - reader.Begin()), reader.Line());
        lines.emplace_back(reader.Line());
    }
    return lines;
}

using Strings = std::vector<std::string>;

TEST(TbxLines, CrLfEndsALine) {
    EXPECT_EQ(Split("a\r\nb\r\n"), (Strings{"a", "b"}));
}

TEST(TbxLines, ALoneCrEndsALine) {
    EXPECT_EQ(Split("a\rb\r\r\nc\r"), (Strings{"a", "b", "", "c"}));
}

TEST(TbxLines, ALoneLfStaysInTheLine) {
    EXPECT_EQ(Split("a\nb\r\n\nc\n"), (Strings{"a\nb", "\nc\n"}));
}

TEST(TbxLines, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(Split("a\r\nb"), (Strings{"a", "b"}));
}

TEST(TbxLines, AnEmptyFileHasNoLine) {
    EXPECT_EQ(Split(""), Strings{});
    EXPECT_EQ(Split("\r\n"), Strings{""});
    EXPECT_EQ(Split("\r\n\r\n"), (Strings{"", ""}));
}

TEST(TbxLines, TheEndIsReachedWithTheLastLine) {
    TbxLines lines("a\r\nb\r\n");
    lines.Next();
    EXPECT_FALSE(lines.AtEnd());
    lines.Next();
    EXPECT_TRUE(lines.AtEnd());
    EXPECT_EQ(lines.Line(), "b");
}

TEST(TbxLines, TellsALoneCrFromCrLf) {
    TbxLines lines("a\rb\r\nc");
    lines.Next();
    EXPECT_TRUE(lines.EndsInLoneCr());
    lines.Next();
    EXPECT_FALSE(lines.EndsInLoneCr());
    lines.Next();
    EXPECT_FALSE(lines.EndsInLoneCr());
}

TEST(TbxLines, TheFirstByteOfAnEmptyLineIsItsCr) {
    TbxLines lines("\r\n@\r\n\xA7x");
    lines.Next();
    EXPECT_EQ(lines.First(), '\r');
    lines.Next();
    EXPECT_EQ(lines.First(), '@');
    lines.Next();
    EXPECT_EQ(lines.First(), '\xA7');
}

} // namespace
} // namespace korvane
