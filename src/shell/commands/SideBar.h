#pragma once

#include "common/number/Units.h"
#include "controls/GridBox.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace korvane {

/// What the sidebar's grid does: a column of commands, each of which a click, Space or Return runs.
class SideBar {
public:
    using RunCommand = std::function<void(std::string_view)>;

    /// The grid outlives the sidebar.
    SideBar(GridBox& grid, RunCommand run);

    /// Fills the grid; an empty font name and a size of 0 leave the grid's own font.
    void BuildSideBar(const FontSpec& font);
    /// Gives the keyboard to the grid, with its row selected.
    void TakeFocus();

    /// The width of the grid at a step of 0 to 7; any other step has that of step 0.
    static Twips WidthOfStep(int step);
    static constexpr std::int16_t kWidthSteps = 8;

private:
    void RunRow(Row row);
    void SelectRow(Row row);
    void KeyDown(KeyEvent& key);
    void Hover(bool over);

    GridBox& grid_;
    RunCommand run_;
};

} // namespace korvane
