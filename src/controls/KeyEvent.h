#pragma once

namespace korvane {

/// The modifier mask of a key. A test for a mask means exactly that mask.
namespace Mask {
inline constexpr int None = 0;
inline constexpr int Shift = 1;
inline constexpr int Ctrl = 2;
inline constexpr int Alt = 4;
} // namespace Mask

/// Virtual key codes. Letters and digits have the code of their capital or digit character.
namespace Key {
inline constexpr int Back = 8;
inline constexpr int Tab = 9;
inline constexpr int Clear = 12;
inline constexpr int Return = 13;
inline constexpr int Shift = 16;
inline constexpr int Control = 17;
inline constexpr int Alt = 18;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Insert = 45;
inline constexpr int Delete = 46;
inline constexpr int NumPlus = 107;
inline constexpr int NumMinus = 109;
inline constexpr int F1 = 112;
/// F1 to F12.
constexpr int F(int number) {
    return F1 + number - 1;
}
} // namespace Key

/// A key going down. A handler that sets `consumed` keeps it from the control.
struct KeyEvent {
    int code = 0;
    int mask = Mask::None;
    bool consumed = false;
    /// The character that it types; 0 when it types none, and with Ctrl or Alt. Which key types a sign
    /// differs between keyboards.
    char16_t typed = 0;

    bool Is(int wantedCode, int wantedMask) const { return code == wantedCode && mask == wantedMask; }
    /// Whether the key only changes what others mean.
    bool IsModifier() const { return code >= Key::Shift && code <= Key::Alt; }
};

} // namespace korvane
