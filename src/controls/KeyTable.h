#pragma once

#include "controls/Handler.h"
#include "controls/KeyChord.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <span>
#include <type_traits>

namespace korvane {

/// Whether the control still sees a key that a row took.
enum class KeyUse : std::uint8_t { Consumed, Passes };

/// A row of a table of keys: a key, and what it starts. The rows are tested from top to bottom, and the first
/// that has the key wins.
template <class Starts>
struct KeyRow {
    KeyChord key;
    Starts starts;
    KeyUse use = KeyUse::Consumed;
};

/// nullptr when no row has the key. The table outlives the result.
template <class Starts>
constexpr const KeyRow<Starts>* FindKey(std::span<const KeyRow<Starts>> table, const KeyEvent& key) {
    const auto found =
        std::ranges::find_if(table, [&key](const KeyRow<Starts>& row) { return row.key.Matches(key); });
    return found == table.end() ? nullptr : &*found;
}

template <class Window>
using WindowKey = KeyRow<Handler<Window>>;
/// The keys of a window or of one of its controls. The rows outlive it.
template <class Window>
using KeyTable = std::span<const WindowKey<Window>>;

/// Runs what the first row with the key starts; false when none has it. The window may be gone afterwards.
template <class Window>
bool RunKey(std::type_identity_t<KeyTable<Window>> table, Window& window, KeyEvent& key) {
    const WindowKey<Window>* row = FindKey(table, key);
    if (row == nullptr) return false;
    key.consumed = row->use == KeyUse::Consumed;
    row->starts.Run(window, key);
    return true;
}

/// What a control's `KeyDown` is to be for these keys. The window outlives the control.
template <class Window>
std::function<void(KeyEvent&)> KeysOf(Window& window, std::type_identity_t<KeyTable<Window>> table) {
    return [&window, table](KeyEvent& key) { RunKey(table, window, key); };
}

} // namespace korvane
