#include "shell/commands/GridKeys.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

using enum GridKey::Target;

constexpr int kShiftAlt = Mask::Shift | Mask::Alt;
constexpr int kCtrlAlt = Mask::Ctrl | Mask::Alt;
constexpr int kCtrlShift = Mask::Ctrl | Mask::Shift;
constexpr bool kNotSwallowed = false;

constexpr std::array kGridKeys{
    GridKey{Key::F(10), GridKey::kAnyMask, Tab, "mnuFile_SaveAs_Clack"},
    GridKey{'X', Mask::Alt, Main, "mnuSwitchFocus"},
    GridKey{Key::F(4), Mask::None, Tab, "mnuEdit_EditCell_Clack"},
    GridKey{'1', Mask::Ctrl, Tab, "mnuEdit_Font_Clack"},
    GridKey{'D', kCtrlAlt, Main, "ToggleDesktop"},
    GridKey{'V', kCtrlAlt, Main, "ViewAndPaste"},
    GridKey{'X', kCtrlAlt, Tab, "ExploreTableFolder"},
    // The nine looks of a row, by number and by letter.
    GridKey{'1', kCtrlAlt, Tab, "RowColour0", kNotSwallowed},
    GridKey{'F', kCtrlAlt, Tab, "RowColour0", kNotSwallowed},
    GridKey{'2', kCtrlAlt, Tab, "RowColour1", kNotSwallowed},
    GridKey{'H', kCtrlAlt, Tab, "RowColour1", kNotSwallowed},
    GridKey{'3', kCtrlAlt, Tab, "RowColour2", kNotSwallowed},
    GridKey{'Y', kCtrlAlt, Tab, "RowColour2", kNotSwallowed},
    GridKey{'4', kCtrlAlt, Tab, "RowColour3", kNotSwallowed},
    GridKey{'R', kCtrlAlt, Tab, "RowColour3", kNotSwallowed},
    GridKey{'5', kCtrlAlt, Tab, "RowColour4", kNotSwallowed},
    GridKey{'K', kCtrlAlt, Tab, "RowColour4", kNotSwallowed},
    GridKey{'6', kCtrlAlt, Tab, "RowColour5", kNotSwallowed},
    GridKey{'L', kCtrlAlt, Tab, "RowColour5", kNotSwallowed},
    GridKey{'7', kCtrlAlt, Tab, "RowColour6", kNotSwallowed},
    GridKey{'G', kCtrlAlt, Tab, "RowColour6", kNotSwallowed},
    GridKey{'8', kCtrlAlt, Tab, "RowColour7", kNotSwallowed},
    GridKey{'A', kCtrlAlt, Tab, "RowColour7", kNotSwallowed},
    GridKey{'9', kCtrlAlt, Tab, "RowColour8", kNotSwallowed},
    GridKey{'O', kCtrlAlt, Tab, "RowColour8", kNotSwallowed},
    GridKey{Key::F(7), kShiftAlt, TabThenFocus, "mnuSidebarWidth_Clack"},
    GridKey{'B', Mask::Alt, Main, "CustomBrowser"},
    GridKey{'I', kCtrlShift, Tab, "MakeEmailItalic"},
    GridKey{'B', kCtrlShift, Tab, "MakeEmailBold"},
    GridKey{'X', kCtrlShift, Tab, "MakeEmailStrikethru"},
    GridKey{'Z', Mask::Ctrl, Tab, "UndoEdit"},
    GridKey{'Z', kCtrlShift, Tab, "RedoEdit"},
};

} // namespace

std::span<const GridKey> GridKeys() {
    return kGridKeys;
}

const GridKey* FindGridKey(const KeyEvent& key) {
    const auto found = std::find_if(kGridKeys.begin(), kGridKeys.end(),
                                    [&key](const GridKey& candidate) { return candidate.Matches(key); });
    return found == kGridKeys.end() ? nullptr : &*found;
}

} // namespace korvane
