#pragma once

#include "controls/KeyEvent.h"

#include <array>
#include <optional>
#include <string_view>

namespace korvane {

/// What the compiler names where a text is no key. Nothing calls it in a program that compiles, so it has no
/// body.
void ThisTextNamesNoKey();

/// A key with its modifiers as menus write it, the modifiers in the order Ctrl, Alt, Shift:
/// "Ctrl+Alt+Shift+F7".
///
/// "Any+" in front leaves the modifiers open that aren't named: "Any+F10" is F10 whatever is held with it,
/// "Any+Ctrl+C" is C with Ctrl, alone or with others.
class KeyChord {
public:
    /// A text that names no key doesn't compile.
    consteval KeyChord(const char* name) : KeyChord() {
        const auto parsed = Parse(name);
        if (!parsed) ThisTextNamesNoKey();
        *this = *parsed;
    }

    /// The same while the program runs; nothing for a text that names no key. The text outlives the chord.
    static constexpr std::optional<KeyChord> Parse(std::string_view name);

    constexpr std::string_view Name() const { return name_; }
    constexpr int Code() const { return code_; }
    /// The modifiers that have to be held.
    constexpr int Modifiers() const { return modifiers_; }

    constexpr bool Matches(const KeyEvent& key) const {
        return key.code == code_ && (key.mask & tested_) == modifiers_;
    }

private:
    constexpr KeyChord() = default;

    static constexpr int CodeOf(std::string_view key);

    std::string_view name_;
    int code_ = 0;
    int modifiers_ = Mask::None;
    /// The modifiers that are looked at.
    int tested_ = Mask::Ctrl | Mask::Alt | Mask::Shift;
};

/// The key of a menu entry: one chord, or none for an empty text.
class Shortcut {
public:
    constexpr Shortcut() = default;
    /// A text that names no key, or leaves modifiers open, doesn't compile.
    consteval Shortcut(const char* name) {
        const std::string_view text(name);
        if (text.starts_with("Any+")) ThisTextNamesNoKey();
        if (!text.empty()) chord_ = KeyChord(name);
    }

    /// Empty for none.
    constexpr std::string_view Name() const { return chord_ ? chord_->Name() : std::string_view(); }
    constexpr bool Matches(const KeyEvent& key) const { return chord_ && chord_->Matches(key); }

private:
    std::optional<KeyChord> chord_;
};

constexpr std::optional<KeyChord> KeyChord::Parse(std::string_view name) {
    KeyChord chord;
    chord.name_ = name;
    const auto take = [&name](std::string_view prefix) {
        if (!name.starts_with(prefix)) return false;
        name.remove_prefix(prefix.size());
        return true;
    };
    const bool open = take("Any+");
    if (take("Ctrl+")) chord.modifiers_ |= Mask::Ctrl;
    if (take("Alt+")) chord.modifiers_ |= Mask::Alt;
    if (take("Shift+")) chord.modifiers_ |= Mask::Shift;
    if (open) chord.tested_ = chord.modifiers_;
    chord.code_ = CodeOf(name);
    return chord.code_ == 0 ? std::nullopt : std::optional(chord);
}

/// 0 for a text that is none.
constexpr int KeyChord::CodeOf(std::string_view key) {
    struct NamedKey {
        std::string_view name;
        int code;
    };
    constexpr std::array kNamedKeys{
        NamedKey{"Backspace", Key::Back},  NamedKey{"Tab", Key::Tab},
        NamedKey{"Clear", Key::Clear},     NamedKey{"Return", Key::Return},
        NamedKey{"Esc", Key::Escape},      NamedKey{"Space", Key::Space},
        NamedKey{"PageUp", Key::PageUp},   NamedKey{"PageDown", Key::PageDown},
        NamedKey{"End", Key::End},         NamedKey{"Home", Key::Home},
        NamedKey{"Left", Key::Left},       NamedKey{"Up", Key::Up},
        NamedKey{"Right", Key::Right},     NamedKey{"Down", Key::Down},
        NamedKey{"Insert", Key::Insert},   NamedKey{"Delete", Key::Delete},
        NamedKey{"NumPlus", Key::NumPlus}, NamedKey{"NumMinus", Key::NumMinus},
        NamedKey{"F10", Key::F(10)},       NamedKey{"F11", Key::F(11)},
        NamedKey{"F12", Key::F(12)},
    };
    for (const NamedKey& named : kNamedKeys) {
        if (named.name == key) return named.code;
    }
    const auto within = [](char sign, char first, char last) { return sign >= first && sign <= last; };
    if (key.size() == 1 && (within(key[0], 'A', 'Z') || within(key[0], '0', '9'))) return key[0];
    if (key.size() == 2 && key[0] == 'F' && within(key[1], '1', '9')) return Key::F(key[1] - '0');
    return 0;
}

} // namespace korvane
