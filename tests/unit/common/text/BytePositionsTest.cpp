#include "common/text/BytePositions.h"

#include <gmock/gmock.h>

#include <random>
#include <string>
#include <vector>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::size_t> All(std::string_view text, char byte) {
    std::vector<std::size_t> places;
    BytePositions positions(text, byte);
    for (std::size_t at = positions.Next(); at != text.size(); at = positions.Next())
        places.push_back(at);
    return places;
}

std::vector<std::size_t> OneByOne(std::string_view text, char byte) {
    std::vector<std::size_t> places;
    for (std::size_t at = text.find(byte); at != text.npos; at = text.find(byte, at + 1))
        places.push_back(at);
    return places;
}

TEST(BytePositionsTest, GivesEveryPlaceInOrder) {
    EXPECT_THAT(All("a.b..c.", '.'), ElementsAre(1, 3, 4, 6));
    EXPECT_THAT(All("no such byte", '.'), IsEmpty());
    EXPECT_THAT(All("", '.'), IsEmpty());
}

TEST(BytePositionsTest, GivesTheSizeAgainAndAgainAtTheEnd) {
    BytePositions positions("a.", '.');
    EXPECT_EQ(positions.Next(), 1u);
    EXPECT_EQ(positions.Next(), 2u);
    EXPECT_EQ(positions.Next(), 2u);
}

TEST(BytePositionsTest, FindsBytesThatAreZeroOrHigh) {
    const std::string zeros(3, '\0');
    EXPECT_THAT(All(zeros, '\0'), ElementsAre(0, 1, 2));
    EXPECT_THAT(All("\xA7"
                    "a"
                    "\xA7",
                    '\xA7'),
                ElementsAre(0, 2));
}

TEST(BytePositionsTest, FindsAPlaceAnywhereInTextsOfEveryLength) {
    for (std::size_t length = 1; length <= 200; ++length)
        for (std::size_t at = 0; at < length; ++at) {
            std::string text(length, '.');
            text[at] = '\r';
            ASSERT_THAT(All(text, '\r'), ElementsAre(at)) << length;
        }
}

TEST(BytePositionsTest, FindsTheSamePlacesAsASearchByteByByte) {
    std::mt19937 random(1);
    for (int round = 0; round < 200; ++round) {
        std::string text(random() % 1000, '.');
        for (char& byte : text)
            if (random() % (1 + static_cast<unsigned>(round)) == 0) byte = '\r';
        ASSERT_EQ(All(text, '\r'), OneByOne(text, '\r'));
    }
}

} // namespace
} // namespace korvane
