#include "shell/commands/Styles.h"

#include "context/App.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/views/TabStrip.h"
#include "controls/views/TabStyles.h"
#include "platform/Screen.h"
#include "shell/commands/MainParts.h"

#include <array>
#include <string>

namespace korvane {

namespace {

/// The style numbers by the index of the menu, from 0; any other index has the last style. Kept for
/// compatibility: style-numbers-out-of-order.
constexpr std::array kStylesByIndex{0, 1, 5, 6, 7, 10, 11, 12, 14, 13, 20, 25, 30, 31, 32, 33};
constexpr int kAnyOtherStyle = 40;

constexpr std::string_view kStyleEntry = "mnuStyle";
constexpr int kCheckedAtFirst = 9;

/// The styles below this one have a framed strip.
constexpr int kFirstFrameless = 11;

std::string EntryName(int menuIndex) {
    return std::string(kStyleEntry) + std::to_string(menuIndex);
}

bool IsStyleEntry(const MenuEntry& entry) {
    return entry.level == 1 && entry.name.starts_with(kStyleEntry);
}

void SetStyle(const MainParts& main, int number) {
    main.app.Settings.TabStyle = static_cast<std::int16_t>(number);
    main.strip.Style = number;
}

void SetBackColour(Control& control, Colour colour) {
    if (auto* panel = dynamic_cast<Panel*>(&control)) panel->BackColor = colour;
    if (auto* label = dynamic_cast<Label*>(&control)) label->BackColor = colour;
    if (auto* button = dynamic_cast<CommandButton*>(&control)) button->BackColor = colour;
}

} // namespace

/// The colours of the window stay as they are. Kept for compatibility: style-step-keeps-colours.
void StyleForward(const MainParts& main) {
    SetStyle(main, SteppedTabStyle(main.strip.Style, StyleStep::Forward));
}

void StyleBack(const MainParts& main) {
    SetStyle(main, SteppedTabStyle(main.strip.Style, StyleStep::Back));
}

void ChooseTabStyle(const MainParts& main, int menuIndex) {
    for (const MenuEntry& entry : main.menuBar.Entries()) {
        if (IsStyleEntry(entry)) main.menuBar.SetChecked(entry.name, entry.name == EntryName(menuIndex));
    }
    SetStyle(main, TabStyleOfMenuIndex(menuIndex));
    ApplyStyleColours(main);
}

int TabStyleOfMenuIndex(int menuIndex) {
    const bool known = menuIndex >= 0 && menuIndex < static_cast<int>(kStylesByIndex.size());
    return known ? kStylesByIndex[static_cast<std::size_t>(menuIndex)] : kAnyOtherStyle;
}

void CheckFirstStyle(Menu& menuBar) {
    menuBar.SetChecked(EntryName(kCheckedAtFirst), true);
}

void ApplyStyleColours(const MainParts& main) {
    const int number = main.strip.Style;
    const Colour strip = TabStyleOf(number).Colours(main.app.Screen().IsDark()).strip;
    for (Control* control : main.window.Controls())
        SetBackColour(*control, strip);
    main.strip.Framed = number < kFirstFrameless;
}

} // namespace korvane
