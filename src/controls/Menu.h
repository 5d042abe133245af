#pragma once

#include "controls/Control.h"
#include "controls/Handler.h"
#include "controls/KeyChord.h"

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace korvane {

/// One entry of a menu, in the order in which it is shown. `level` 0 is on the bar (or directly in a pop-up),
/// and 1 is in the menu of the entry of level 0 before it. An empty caption draws a separator.
struct MenuEntry {
    int level = 0;
    std::string_view name;
    TextView caption;
    /// "Ctrl+Shift+F8"; empty for none.
    Shortcut shortcut;
};

/// An entry and what it starts in its window; nothing for one that opens a menu.
template <class Window>
struct MenuRow {
    int level = 0;
    std::string_view name;
    TextView caption;
    Shortcut shortcut;
    Handler<Window> starts{};
};
/// The entries of a window's menu. The rows outlive it.
template <class Window>
using MenuTable = std::span<const MenuRow<Window>>;

/// A menu bar or a pop-up menu. No entry is ever disabled.
class Menu : public Control {
public:
    Menu(Form& owner, std::string_view name, std::span<const MenuEntry> entries);
    /// The same, and each entry starts what its row says.
    template <class Window>
    Menu(Window& owner, std::string_view name, std::type_identity_t<MenuTable<Window>> table)
        : Menu(static_cast<Form&>(owner), name, std::span<const MenuEntry>()) {
        for (const MenuRow<Window>& row : table)
            entries_.push_back({row.level, row.name, row.caption, row.shortcut});
        Chosen = [&owner, table](std::string_view entry) {
            std::ranges::find(table, entry, &MenuRow<Window>::name)->starts.Run(owner);
        };
    }

    std::span<const MenuEntry> Entries() const { return entries_; }

    /// The name of the chosen entry.
    std::function<void(std::string_view)> Chosen;

    bool Checked(std::string_view entry) const;
    void SetChecked(std::string_view entry, bool checked);

    /// What the user does.
    void Choose(std::string_view entry);

private:
    std::vector<MenuEntry> entries_;
    std::set<std::string, std::less<>> checked_;
};

} // namespace korvane
