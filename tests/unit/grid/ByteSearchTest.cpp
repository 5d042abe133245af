#include "grid/ByteSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {
namespace {

/// The pattern for each of the ways to search, which the bytes of the sample choose.
std::vector<BytePattern> Patterns(const std::string& bytes) {
    const std::string common = bytes + bytes + bytes;
    std::string wholeOfIt = std::string(20000, '.');
    wholeOfIt.replace(0, common.size(), common);
    return {BytePattern(bytes, ""), BytePattern(bytes, common), BytePattern(bytes, wholeOfIt),
            BytePattern(bytes, std::string(20000, bytes.empty() ? '.' : bytes.front()))};
}

bool IsIn(const std::string& bytes, std::string_view searched) {
    const std::vector<BytePattern> patterns = Patterns(bytes);
    const bool first = patterns[0].IsIn(searched);
    for (const BytePattern& pattern : patterns)
        EXPECT_EQ(pattern.IsIn(searched), first) << bytes;
    return first;
}

TEST(ByteSearch, FindsThePartWhereverItIs) {
    const std::vector<std::string> parts{"x", "xy", "x23456789y", std::string(100, 'x')};
    for (const std::string& part : parts) {
        for (std::size_t length = part.size(); length < 300; ++length) {
            for (const std::size_t at : {std::size_t{0}, (length - part.size()) / 2, length - part.size()}) {
                std::string bytes(length, '.');
                bytes.replace(at, part.size(), part);
                EXPECT_TRUE(IsIn(part, bytes)) << part << " at " << at << " of " << length;
            }
        }
    }
}

TEST(ByteSearch, DoesNotFindWhatMerelyBeginsAndEndsAlike) {
    std::string bytes;
    while (bytes.size() < 1000)
        bytes += "x-z";
    EXPECT_FALSE(IsIn("xyz", bytes));
    EXPECT_FALSE(IsIn("-x", bytes));
}

TEST(ByteSearch, DoesNotLookPastTheEnd) {
    const std::string all = std::string(400, '.') + "abc";
    for (std::size_t length = 0; length < 400; ++length)
        EXPECT_FALSE(IsIn("abc", std::string_view(all).substr(400 - length, length + 2)));
}

TEST(ByteSearch, AnEmptyPatternIsInEverything) {
    EXPECT_TRUE(IsIn("", ""));
    EXPECT_TRUE(IsIn("", "abc"));
}

TEST(ByteSearch, BytesAboveAsciiAndZerosAreBytesLikeOthers) {
    using namespace std::string_literals;
    const std::string bytes = std::string(150, '\xE4') + "\0\xFF"s + std::string(270, '\xE4');
    EXPECT_TRUE(IsIn("\0\xFF"s, bytes));
    EXPECT_FALSE(IsIn("\xFF\0"s, bytes));
}

TEST(ByteSearch, AgreesWithThePlainSearchOnRandomBytes) {
    std::mt19937 random(7);
    const auto below = [&random](std::size_t bound) { return random() % bound; };
    for (int round = 0; round < 20000; ++round) {
        std::string bytes(below(600), 'a');
        for (char& byte : bytes)
            byte = static_cast<char>('a' + below(3));
        std::string part(1 + below(9), 'a');
        for (char& byte : part)
            byte = static_cast<char>('a' + below(3));
        const BytePattern pattern(part, bytes);
        ASSERT_EQ(pattern.IsIn(bytes), bytes.find(part) != std::string::npos) << part << " in " << bytes;
    }
}

} // namespace
} // namespace korvane
