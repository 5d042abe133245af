#include "dbops/rules/RowColours.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

constexpr Colour kTableBack{0x123456};

struct Expected {
    TextView listText;
    TextView keyText;
    int back;
    int keyBack;
    int text;
};

constexpr int kOfTable = kTableBack.value;
constexpr Expected kExpected[] = {
    {u" De[f]ault", u" Alt-1,Ctrl-Alt-F", kOfTable, kOfTable, 0},
    {u" G[h]osted", u" Alt-2,Ctrl-Alt-H", kOfTable, kOfTable, 0xE0E0E0},
    {u" [Y]ellow", u" Alt-3,Ctrl-Alt-Y", 0x80FFFF, 0x00FFFF, 0},
    {u" [R]ed", u" Alt-4,Ctrl-Alt-R", 0x0000FF, 0x0000FF, 0xFFFFFF},
    {u" Dar[k] blue", u" Alt-5,Ctrl-Alt-K", 0xFF0000, 0xFF0000, 0xFFFFFF},
    {u" [L]ight blue", u" Alt-6,Ctrl-Alt-L", 0xFFFFC0, 0xFFFFC0, 0xC00000},
    {u" [G[reen", u" Alt-7,Ctrl-Alt-G", 0xC0FFC0, 0xC0FFC0, 0xC00000},
    {u" Gr[a]y", u" Alt-8,Ctrl-Alt-A", 0xC0C0C0, 0xC0C0C0, 0xFFFFFF},
    {u" [O]range", u" Alt-9,Ctrl-Alt-O", 0x80C0FF, 0x80C0FF, 0xC00000},
};

// Kept for compatibility: row-colour-texts.
TEST(RowColours, AreTheNineOfTheListWithItsTurnedBracket) {
    ASSERT_EQ(RowColourChoices().size(), std::size(kExpected));
    for (int index = 0; index < 9; ++index) {
        const RowColourChoice& choice = *RowColourChoiceAt(index);
        const Expected& expected = kExpected[index];
        EXPECT_EQ(choice.listText, expected.listText);
        EXPECT_EQ(choice.keyText, expected.keyText);
        EXPECT_EQ(choice.ByDialog(kTableBack), (RowColours{{expected.back}, {expected.text}})) << index;
        EXPECT_EQ(choice.ByKey(kTableBack), (RowColours{{expected.keyBack}, {expected.text}})) << index;
    }
}

// Kept for compatibility: two-yellows.
TEST(RowColours, DifferInYellowAloneBetweenDialogAndKey) {
    for (int index = 0; index < 9; ++index) {
        const RowColourChoice& choice = *RowColourChoiceAt(index);
        EXPECT_EQ(choice.ByDialog(kTableBack) == choice.ByKey(kTableBack), index != 2);
    }
}

TEST(RowColours, OutsideTheListThereAreNone) {
    EXPECT_EQ(RowColourChoiceAt(-1), nullptr);
    EXPECT_EQ(RowColourChoiceAt(9), nullptr);
}

} // namespace
} // namespace korvane
