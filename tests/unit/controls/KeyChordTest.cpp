#include "controls/KeyChord.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

constexpr int kAllModifiers = Mask::Shift | Mask::Ctrl | Mask::Alt;

bool Names(std::string_view text, int code, int modifiers) {
    const auto chord = KeyChord::Parse(text);
    return chord && chord->Code() == code && chord->Modifiers() == modifiers;
}

TEST(KeyChord, IsALetterADigitOrAKeyWithAName) {
    EXPECT_TRUE(Names("A", 'A', Mask::None));
    EXPECT_TRUE(Names("Z", 'Z', Mask::None));
    EXPECT_TRUE(Names("0", '0', Mask::None));
    EXPECT_TRUE(Names("9", '9', Mask::None));
    EXPECT_TRUE(Names("Esc", 27, Mask::None));
    EXPECT_TRUE(Names("Return", 13, Mask::None));
    EXPECT_TRUE(Names("Backspace", 8, Mask::None));
    EXPECT_TRUE(Names("Tab", 9, Mask::None));
    EXPECT_TRUE(Names("Clear", 12, Mask::None));
    EXPECT_TRUE(Names("Space", 32, Mask::None));
    EXPECT_TRUE(Names("PageUp", 33, Mask::None));
    EXPECT_TRUE(Names("PageDown", 34, Mask::None));
    EXPECT_TRUE(Names("End", 35, Mask::None));
    EXPECT_TRUE(Names("Home", 36, Mask::None));
    EXPECT_TRUE(Names("Left", 37, Mask::None));
    EXPECT_TRUE(Names("Up", 38, Mask::None));
    EXPECT_TRUE(Names("Right", 39, Mask::None));
    EXPECT_TRUE(Names("Down", 40, Mask::None));
    EXPECT_TRUE(Names("Insert", 45, Mask::None));
    EXPECT_TRUE(Names("Delete", 46, Mask::None));
    EXPECT_TRUE(Names("NumPlus", 107, Mask::None));
    EXPECT_TRUE(Names("NumMinus", 109, Mask::None));
}

TEST(KeyChord, KnowsTheTwelveFunctionKeys) {
    for (int number = 1; number <= 12; ++number)
        EXPECT_TRUE(Names("F" + std::to_string(number), 111 + number, Mask::None)) << number;
}

TEST(KeyChord, HasItsModifiersInOneOrderSoThatASearchFindsIt) {
    EXPECT_TRUE(Names("Ctrl+S", 'S', Mask::Ctrl));
    EXPECT_TRUE(Names("Alt+S", 'S', Mask::Alt));
    EXPECT_TRUE(Names("Shift+F9", Key::F(9), Mask::Shift));
    EXPECT_TRUE(Names("Ctrl+Alt+S", 'S', Mask::Ctrl | Mask::Alt));
    EXPECT_TRUE(Names("Ctrl+Shift+S", 'S', Mask::Ctrl | Mask::Shift));
    EXPECT_TRUE(Names("Alt+Shift+S", 'S', Mask::Alt | Mask::Shift));
    EXPECT_TRUE(Names("Ctrl+Alt+Shift+S", 'S', kAllModifiers));
    for (const std::string_view text : {"Shift+Ctrl+S", "Alt+Ctrl+S", "Shift+Alt+S", "Ctrl+Any+S"})
        EXPECT_FALSE(KeyChord::Parse(text)) << text;
}

TEST(KeyChord, IsNothingElse) {
    for (const std::string_view text :
         {"",   "+",   "Ctrl", "Ctrl+",  "Any+",  "Ctrl++", "Ctrl+Ctrl+S", "s", "ctrl+S", "Ctrl-S", "Ctrl+ S",
          "F0", "F13", "F1O",  "Escape", "Enter", "AB",     "/",           ":", "@",      "[",      "\xC4"})
        EXPECT_FALSE(KeyChord::Parse(text)) << text;
}

TEST(KeyChord, IsFoundAsItWasWritten) {
    constexpr KeyChord chord = "Any+Ctrl+F9";
    EXPECT_EQ(chord.Name(), "Any+Ctrl+F9");
}

/// The modifiers that may be held with it.
std::string HeldWith(const KeyChord& chord, int code) {
    std::string held;
    for (int mask = Mask::None; mask <= kAllModifiers; ++mask)
        held += chord.Matches({code, mask}) ? std::to_string(mask) : "";
    return held;
}

TEST(KeyChord, MatchesItsOwnModifiersAlone) {
    EXPECT_EQ(HeldWith("X", 'X'), "0");
    EXPECT_EQ(HeldWith("Shift+X", 'X'), "1");
    EXPECT_EQ(HeldWith("Ctrl+X", 'X'), "2");
    EXPECT_EQ(HeldWith("Alt+X", 'X'), "4");
    EXPECT_EQ(HeldWith("Ctrl+Alt+Shift+X", 'X'), "7");
    EXPECT_EQ(HeldWith("X", 'Y'), "");
}

TEST(KeyChord, MatchesFurtherModifiersWhereTheyAreLeftOpen) {
    EXPECT_EQ(HeldWith("Any+X", 'X'), "01234567");
    EXPECT_EQ(HeldWith("Any+Ctrl+X", 'X'), "2367");
    EXPECT_EQ(HeldWith("Any+Alt+Shift+X", 'X'), "57");
    EXPECT_EQ(HeldWith("Any+X", 'Y'), "");
}

TEST(Shortcut, IsAChordOrNone) {
    constexpr Shortcut none;
    constexpr Shortcut empty = "";
    constexpr Shortcut save = "Ctrl+S";
    EXPECT_EQ(none.Name(), "");
    EXPECT_EQ(empty.Name(), "");
    EXPECT_EQ(save.Name(), "Ctrl+S");
    EXPECT_TRUE(save.Matches({'S', Mask::Ctrl}));
    EXPECT_FALSE(save.Matches({'S', Mask::Ctrl | Mask::Shift}));
    EXPECT_FALSE(none.Matches({}));
    EXPECT_FALSE(empty.Matches({}));
}

} // namespace
} // namespace korvane
