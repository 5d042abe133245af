#include "common/text/CaseFold.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace korvane {
namespace {

struct CasePair {
    TextView small;
    TextView capital;
};

constexpr CasePair kPairs[] = {
    {u"abcxyz", u"ABCXYZ"},
    {u"àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ", u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ"},
    {u"ÿœšž", u"ŸŒŠŽ"},
    {u"āăąćčďđēęěğģħįĳķ", u"ĀĂĄĆČĎĐĒĘĚĞĢĦĮĲĶ"},
    {u"ĺľłńňŋőŕřśşţťūůűųŵŷźżž", u"ĹĽŁŃŇŊŐŔŘŚŞŢŤŪŮŰŲŴŶŹŻŽ"},
    {u"șțơưǎǿ", u"ȘȚƠƯǍǾ"},
    {u"ḁẽếệợữỹ", u"ḀẼẾỆỢỮỸ"},
    {u"αβγρστωάέήίόύώϊϋ", u"ΑΒΓΡΣΤΩΆΈΉΊΌΎΏΪΫ"},
    {u"абвгдежзийклмнопрстуфхцчшщъыьэюя", u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"},
    {u"ѐёђѓєѕіїјљњћќѝўџґқңүһәө", u"ЀЁЂЃЄЅІЇЈЉЊЋЌЍЎЏҐҚҢҮҺӘӨ"},
};

TEST(CaseFold, SmallAndCapitalLettersAreTurnedIntoEachOther) {
    for (const auto& [small, capital] : kPairs) {
        EXPECT_EQ(ToUpper(small), capital);
        EXPECT_EQ(ToLower(capital), small);
        EXPECT_EQ(ToUpper(capital), capital);
        EXPECT_EQ(ToLower(small), small);
    }
}

TEST(CaseFold, WhatIsNoLetterStaysAsItIs) {
    const TextView signs = u"0123456789 @[`{§×÷€\u0080\uFFFD日😀";
    EXPECT_EQ(ToUpper(signs), signs);
    EXPECT_EQ(ToLower(signs), signs);
}

TEST(CaseFold, LettersWithoutAPartnerOfOneUnitStayAsTheyAre) {
    const TextView letters = u"ßıİſµ";
    EXPECT_EQ(ToUpper(letters), letters);
    EXPECT_EQ(ToLower(letters), letters);
}

TEST(CaseFold, BothSmallSigmasHaveOneCapital) {
    EXPECT_EQ(ToUpper(u"σς"), u"ΣΣ");
    EXPECT_EQ(ToLower(u"Σ"), u"σ");
    EXPECT_TRUE(EqualIgnoringCase(u"ΟΔΟΣ", u"οδος"));
}

TEST(CaseFold, EverySmallLetterComesBackToItsCapital) {
    int small = 0;
    for (unsigned number = 0; number < 0x10000; ++number) {
        const auto letter = static_cast<char16_t>(number);
        const char16_t capital = ToUpper(letter);
        ASSERT_EQ(ToUpper(capital), capital) << number;
        ASSERT_EQ(ToUpper(ToLower(letter)), capital) << number;
        ASSERT_EQ(ToLower(ToLower(letter)), ToLower(letter)) << number;
        if (capital != letter) ++small;
    }
    EXPECT_EQ(small, 473);
}

TEST(CaseFold, LettersLikeNamesEveryFormOfALetter) {
    EXPECT_EQ(LettersLike(u'a'), u"Aa");
    EXPECT_EQ(LettersLike(u'A'), u"Aa");
    EXPECT_EQ(LettersLike(u'1'), u"1");
    EXPECT_EQ(LettersLike(u'\u03C3'), u"\u03A3\u03C2\u03C3");
    std::map<char16_t, Text> alike;
    for (char16_t character = 0; character < 0x2000; ++character)
        alike[ToUpper(character)] += character;
    for (char16_t character = 0; character < 0x2000; ++character) {
        Text named = LettersLike(character);
        std::ranges::sort(named);
        ASSERT_EQ(named, alike[ToUpper(character)]) << int{character};
    }
}

TEST(CaseFold, EqualIgnoringCaseComparesLettersAndAccents) {
    EXPECT_TRUE(EqualIgnoringCase(u"", u""));
    EXPECT_TRUE(EqualIgnoringCase(u"Größe Été", u"GRÖßE éTÉ"));
    EXPECT_FALSE(EqualIgnoringCase(u"Ete", u"Été"));
    EXPECT_FALSE(EqualIgnoringCase(u"abc", u"ab"));
    EXPECT_FALSE(EqualIgnoringCase(u"[", u"{"));
}

TEST(CaseFold, EndsWithIgnoringCaseComparesTheEndAlone) {
    EXPECT_TRUE(EndsWithIgnoringCase(u"name.TbX", u".tbx"));
    EXPECT_TRUE(EndsWithIgnoringCase(u"tbx", u"TBX"));
    EXPECT_TRUE(EndsWithIgnoringCase(u"tbx", u""));
    EXPECT_FALSE(EndsWithIgnoringCase(u"bx", u"tbx"));
    EXPECT_FALSE(EndsWithIgnoringCase(u"name.tbx.txt", u".tbx"));
}

TEST(CaseFold, InStrIgnoringCaseGivesThePositionFromOneOrZero) {
    EXPECT_EQ(InStrIgnoringCase(u"Straße ÄRGER", u"ärger"), 8u);
    EXPECT_EQ(InStrIgnoringCase(u"abAB", u"AB"), 1u);
    EXPECT_EQ(InStrIgnoringCase(u"abAB", u"ab", 2), 3u);
    EXPECT_EQ(InStrIgnoringCase(u"aab", u"AB"), 2u);
    EXPECT_EQ(InStrIgnoringCase(u"abc", u"abcd"), 0u);
    EXPECT_EQ(InStrIgnoringCase(u"abc", u"x"), 0u);
    EXPECT_EQ(InStrIgnoringCase(u"abc", u"a", 0), 0u);
    EXPECT_EQ(InStrIgnoringCase(u"abc", u"a", 9), 0u);
}

TEST(CaseFold, InStrIgnoringCaseFindsTheEmptyTextWhereInStrDoes) {
    for (std::size_t start = 0; start < 6; ++start) {
        EXPECT_EQ(InStrIgnoringCase(u"abc", u"", start), InStr(u"abc", u"", start)) << start;
    }
}

TEST(CaseFold, ContainsIgnoringCaseLooksAnywhereInTheText) {
    EXPECT_TRUE(ContainsIgnoringCase(u"C:\\DATA\\Äpfel.tbx", u"data\\äPFEL"));
    EXPECT_TRUE(ContainsIgnoringCase(u"abc", u""));
    EXPECT_FALSE(ContainsIgnoringCase(u"", u"a"));
    EXPECT_FALSE(ContainsIgnoringCase(u"Apfel", u"Äpfel"));
}

} // namespace
} // namespace korvane
