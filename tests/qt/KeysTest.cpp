#include "platform/qt/base/Keys.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace korvane {
namespace {

KeyEvent Pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return ToKeyEvent(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

TEST(KeysTest, LettersAndDigitsHaveTheCodeOfTheirCharacter) {
    EXPECT_EQ(Pressed(Qt::Key_X).code, 88);
    EXPECT_EQ(Pressed(Qt::Key_1).code, 49);
}

TEST(KeysTest, FunctionKeysCountFrom112) {
    EXPECT_EQ(Pressed(Qt::Key_F1).code, 112);
    EXPECT_EQ(Pressed(Qt::Key_F10).code, 121);
    EXPECT_EQ(Pressed(Qt::Key_F12).code, Key::F(12));
}

TEST(KeysTest, TheMaskAddsUp) {
    const auto all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    EXPECT_EQ(Pressed(Qt::Key_A, all).mask, Mask::Shift | Mask::Ctrl | Mask::Alt);
    EXPECT_EQ(Pressed(Qt::Key_A, Qt::AltModifier).mask, Mask::Alt);
}

TEST(KeysTest, TheKeypadHasDigitsOfItsOwnAndTheSameReturn) {
    EXPECT_EQ(Pressed(Qt::Key_5, Qt::KeypadModifier).code, 101);
    EXPECT_EQ(Pressed(Qt::Key_Plus, Qt::KeypadModifier).code, 107);
    EXPECT_EQ(Pressed(Qt::Key_Enter, Qt::KeypadModifier).code, Key::Return);
    EXPECT_EQ(Pressed(Qt::Key_Left, Qt::KeypadModifier).code, Key::Left);
}

TEST(KeysTest, BothMinusKeysHaveACodeOfTheirOwn) {
    EXPECT_EQ(Pressed(Qt::Key_Minus).code, 189);
    EXPECT_EQ(Pressed(Qt::Key_Minus, Qt::KeypadModifier).code, Key::NumMinus);
}

TEST(KeysTest, ASignIsToldWhateverKeyTypesIt) {
    const auto typed = [](int key, Qt::KeyboardModifiers modifiers, const char* text) {
        return ToKeyEvent(QKeyEvent(QEvent::KeyPress, key, modifiers, QString::fromLatin1(text))).typed;
    };
    EXPECT_EQ(typed(Qt::Key_Minus, Qt::NoModifier, "-"), u'-');
    EXPECT_EQ(typed(Qt::Key_6, Qt::NoModifier, "-"), u'-');
    EXPECT_EQ(typed(Qt::Key_Minus, Qt::KeypadModifier, "-"), u'-');
    EXPECT_EQ(typed(Qt::Key_6, Qt::ShiftModifier, "6"), u'6');
    EXPECT_EQ(typed(Qt::Key_Minus, Qt::AltModifier, "-"), u'\0');
    EXPECT_EQ(typed(Qt::Key_Return, Qt::NoModifier, "\r"), u'\0');
    EXPECT_EQ(typed(Qt::Key_F1, Qt::NoModifier, ""), u'\0');
}

TEST(KeysTest, TabBackwardsIsTabWithShift) {
    const KeyEvent key = Pressed(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(key.Is(Key::Tab, Mask::Shift));
}

TEST(KeysTest, AKeyWithoutACodeIsNone) {
    EXPECT_EQ(Pressed(Qt::Key_MediaPlay).code, 0);
}

} // namespace
} // namespace korvane
