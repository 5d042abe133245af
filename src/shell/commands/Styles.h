#pragma once

namespace korvane {

class Menu;
struct MainParts;

/// Gives the tab strip the style of an entry of `mnuStyle`, by the entry's index, with its check mark, and
/// the window its colours.
template <int menuIndex>
void mnuStyle(const MainParts& main);
// The next and the previous style of the strip. They leave menu and colours as they are.
void StyleForward(const MainParts& main);
void StyleBack(const MainParts& main);

/// The number of the style that an entry of `mnuStyle` chooses, by the entry's index.
int TabStyleOfMenuIndex(int menuIndex);

/// Checks the entry of `mnuStyle` that the program starts with.
void CheckFirstStyle(Menu& menuBar);

/// Gives the surfaces of the main window the colours of the strip's style.
void ApplyStyleColours(const MainParts& main);

void ChooseTabStyle(const MainParts& main, int menuIndex);

template <int menuIndex>
void mnuStyle(const MainParts& main) {
    ChooseTabStyle(main, menuIndex);
}

} // namespace korvane
