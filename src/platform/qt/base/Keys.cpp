#include "platform/qt/base/Keys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace korvane {

namespace {

struct NamedKey {
    int toolkit;
    int code;
};

constexpr int kNumpad0 = 96;
constexpr int kMultiply = 106;
constexpr int kDivide = 111;

constexpr std::array kNamedKeys{
    NamedKey{Qt::Key_Backspace, Key::Back},
    NamedKey{Qt::Key_Tab, Key::Tab},
    NamedKey{Qt::Key_Backtab, Key::Tab},
    NamedKey{Qt::Key_Clear, Key::Clear},
    NamedKey{Qt::Key_Return, Key::Return},
    NamedKey{Qt::Key_Enter, Key::Return},
    NamedKey{Qt::Key_Shift, Key::Shift},
    NamedKey{Qt::Key_Control, Key::Control},
    NamedKey{Qt::Key_Alt, Key::Alt},
    NamedKey{Qt::Key_Pause, 19},
    NamedKey{Qt::Key_CapsLock, 20},
    NamedKey{Qt::Key_Escape, Key::Escape},
    NamedKey{Qt::Key_Space, Key::Space},
    NamedKey{Qt::Key_PageUp, Key::PageUp},
    NamedKey{Qt::Key_PageDown, Key::PageDown},
    NamedKey{Qt::Key_End, Key::End},
    NamedKey{Qt::Key_Home, Key::Home},
    NamedKey{Qt::Key_Left, Key::Left},
    NamedKey{Qt::Key_Up, Key::Up},
    NamedKey{Qt::Key_Right, Key::Right},
    NamedKey{Qt::Key_Down, Key::Down},
    NamedKey{Qt::Key_Insert, Key::Insert},
    NamedKey{Qt::Key_Delete, Key::Delete},
    NamedKey{Qt::Key_Menu, 93},
    NamedKey{Qt::Key_Semicolon, 186},
    NamedKey{Qt::Key_Plus, 187},
    NamedKey{Qt::Key_Equal, 187},
    NamedKey{Qt::Key_Comma, 188},
    NamedKey{Qt::Key_Minus, 189},
    NamedKey{Qt::Key_Period, 190},
    NamedKey{Qt::Key_Slash, 191},
};

constexpr std::array kKeypadKeys{
    NamedKey{Qt::Key_Asterisk, kMultiply},
    NamedKey{Qt::Key_Plus, Key::NumPlus},
    NamedKey{Qt::Key_Minus, Key::NumMinus},
    NamedKey{Qt::Key_Slash, kDivide},
};

template <std::size_t N>
int Find(const std::array<NamedKey, N>& keys, int toolkit) {
    const auto found =
        std::find_if(keys.begin(), keys.end(), [toolkit](NamedKey key) { return key.toolkit == toolkit; });
    return found == keys.end() ? 0 : found->code;
}

bool IsDigit(int key) {
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

int KeypadCode(int key) {
    return IsDigit(key) ? kNumpad0 + key - Qt::Key_0 : Find(kKeypadKeys, key);
}

/// With Shift, and always on some keyboards, Qt reports a digit key as the sign printed above the digit. The
/// scan code tells which digit it is: X11 and Wayland number the keys "1" to "0" from 10 to 19.
int DigitByPlace(quint32 scanCode) {
    const QString platform = QGuiApplication::platformName();
    if (platform != QLatin1String("xcb") && !platform.startsWith(QLatin1String("wayland"))) return 0;
    constexpr quint32 kFirst = 10;
    constexpr quint32 kLast = 19;
    if (scanCode < kFirst || scanCode > kLast) return 0;
    return static_cast<int>('0' + (scanCode - kFirst + 1) % 10);
}

int Code(const QKeyEvent& event) {
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (const int code = KeypadCode(key); code != 0) return code;
    }
    if (IsDigit(key) || (key >= Qt::Key_A && key <= Qt::Key_Z)) return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return Key::F(key - Qt::Key_F1 + 1);
    if (const int code = DigitByPlace(event.nativeScanCode()); code != 0) return code;
    return Find(kNamedKeys, key);
}

int MaskOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? Mask::Shift : Mask::None) |
           (modifiers.testFlag(Qt::ControlModifier) ? Mask::Ctrl : Mask::None) |
           (modifiers.testFlag(Qt::AltModifier) ? Mask::Alt : Mask::None);
}

char16_t Typed(const QKeyEvent& event) {
    const QString text = event.text();
    const bool plain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    return plain && text.size() == 1 && text[0].isPrint() ? text[0].unicode() : u'\0';
}

} // namespace

KeyEvent ToKeyEvent(const QKeyEvent& event) {
    return {Code(event), MaskOf(event.modifiers()), false, Typed(event)};
}

} // namespace korvane
