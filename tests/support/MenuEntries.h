#pragma once

#include "controls/Menu.h"

#include <string>
#include <utility>
#include <vector>

namespace korvane {

/// Each entry is a name and a caption.
using Entries = std::vector<std::pair<std::string, Text>>;

/// The commands in a window's menu bar in their order, without the captions of the menus.
inline Entries EntriesOf(const Menu& menu) {
    Entries entries;
    for (const MenuEntry& entry : menu.Entries()) {
        if (entry.level == 1) entries.emplace_back(entry.name, entry.caption);
    }
    return entries;
}

/// The captions of the menus themselves.
inline std::vector<Text> TitlesOf(const Menu& menu) {
    std::vector<Text> titles;
    for (const MenuEntry& entry : menu.Entries()) {
        if (entry.level == 0) titles.emplace_back(entry.caption);
    }
    return titles;
}

} // namespace korvane
