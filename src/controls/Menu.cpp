#include "controls/Menu.h"

#include <algorithm>

namespace korvane {

Menu::Menu(Form& owner, std::string_view name, std::span<const MenuEntry> entries)
    : Control(owner, name), entries_(entries.begin(), entries.end()) {}

bool Menu::Checked(std::string_view entry) const {
    return checked_.contains(entry);
}

void Menu::SetChecked(std::string_view entry, bool checked) {
    if (checked == Checked(entry)) return;
    if (checked) {
        checked_.emplace(entry);
    } else {
        checked_.erase(checked_.find(entry));
    }
    Notify(Aspect::Items);
}

void Menu::Choose(std::string_view entry) {
    const bool known = std::any_of(entries_.begin(), entries_.end(),
                                   [entry](const MenuEntry& candidate) { return candidate.name == entry; });
    if (known && Chosen) Chosen(entry);
}

} // namespace korvane
