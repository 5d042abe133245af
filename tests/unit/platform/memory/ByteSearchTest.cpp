#include "platform/memory/ByteSearch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

TEST(ByteSearch, FindsThePartWhereverItStands) {
    const std::vector<std::string> parts{"x", "xy", "x23456789y", std::string(100, 'x')};
    for (const std::string& part : parts) {
        for (std::size_t length = part.size(); length < 300; ++length) {
            for (const std::size_t at : {std::size_t{0}, (length - part.size()) / 2, length - part.size()}) {
                std::string bytes(length, '.');
                bytes.replace(at, part.size(), part);
                EXPECT_TRUE(ContainsBytes(bytes, part)) << part << " at " << at << " of " << length;
            }
        }
    }
}

TEST(ByteSearch, DoesNotFindWhatMerelyBeginsAndEndsAlike) {
    std::string bytes;
    while (bytes.size() < 1000)
        bytes += "x-z";
    EXPECT_FALSE(ContainsBytes(bytes, "xyz"));
    EXPECT_FALSE(ContainsBytes(bytes, "-x"));
}

TEST(ByteSearch, DoesNotReadPastTheEnd) {
    const std::string part = "abc";
    for (std::size_t length = 0; length < 200; ++length)
        EXPECT_FALSE(
            ContainsBytes(std::string_view(std::string(length, '.') + "ab").substr(0, length + 2), part));
}

TEST(ByteSearch, AnEmptyPartIsInEverything) {
    EXPECT_TRUE(ContainsBytes("", ""));
    EXPECT_TRUE(ContainsBytes("abc", ""));
}

TEST(ByteSearch, BytesAboveAsciiAndZerosAreBytesLikeOthers) {
    using namespace std::string_literals;
    using namespace std::string_view_literals;
    const std::string bytes = std::string(150, '\xE4') + "\0\xFF"s + std::string(70, '\xE4');
    EXPECT_TRUE(ContainsBytes(bytes, "\0\xFF"sv));
    EXPECT_FALSE(ContainsBytes(bytes, "\xFF\0"sv));
}

} // namespace
} // namespace korvane
