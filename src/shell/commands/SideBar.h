#pragma once

#include "common/number/Units.h"
#include "controls/views/GridBox.h"
#include "dialogs/CommandBar.h"
#include "shell/commands/CommandCall.h"

#include <cstdint>
#include <functional>

namespace korvane {

class App;
class Label;
class Panel;

/// The sidebar: a column of commands in a grid, each of which a click, Space or Return runs, under a heading.
class SideBar {
public:
    /// Its place on the main window.
    struct Place {
        Panel& panel;
        Label& heading;
        GridBox& grid;
    };
    using RunCommand = std::function<void(const CommandCall&)>;

    /// App and controls outlive the sidebar.
    SideBar(App& app, const Place& place, RunCommand run);

    /// 1 when the next focus toggle goes to the sidebar, 0 when it goes to the table.
    std::int16_t FocusOnSideBar = 1;

    /// Fills the grid, in the font of the settings.
    void BuildSideBar();
    /// Shows or hides the sidebar as the settings say, and gives it its width.
    void Arrange();
    /// Goes to the next of its widths.
    void NextWidth();
    /// Gives the keyboard to the grid, with its row selected. A sidebar that is hidden takes none.
    void TakeFocus();
    GridBox& Commands() { return place_.grid; }

    /// The width of the grid at a step of 0 to 7; any other step has that of step 0.
    static Twips WidthOfStep(int step);
    static constexpr std::int16_t kWidthSteps = 8;

private:
    struct Tables;

    void SetWidth(Twips width);
    void RunRow(int index);
    void SwitchFocus();

    App& app_;
    Place place_;
    RunCommand run_;
    CommandBar bar_;
};

} // namespace korvane
