#pragma once

#include "controls/Control.h"

#include <set>
#include <span>
#include <string>

namespace korvane {

/// One entry of a menu, in the order in which it is shown. `level` 0 is on the bar (or directly in a pop-up),
/// and 1 is in the menu of the entry of level 0 before it. An empty caption draws a separator.
struct MenuEntry {
    int level = 0;
    std::string_view name;
    TextView caption;
    /// "Ctrl+Shift+F8"; empty for none.
    std::string_view shortcut;
};

/// A menu bar or a pop-up menu. No entry is ever disabled.
class Menu : public Control {
public:
    /// `entries` outlive the menu.
    Menu(Form& owner, std::string_view name, std::span<const MenuEntry> entries);

    std::span<const MenuEntry> Entries() const { return entries_; }

    /// The name of the chosen entry.
    std::function<void(std::string_view)> Chosen;

    bool Checked(std::string_view entry) const;
    void SetChecked(std::string_view entry, bool checked);

    /// What the user does.
    void Choose(std::string_view entry);

private:
    std::span<const MenuEntry> entries_;
    std::set<std::string, std::less<>> checked_;
};

} // namespace korvane
