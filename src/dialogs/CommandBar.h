#pragma once

#include "controls/views/GridBox.h"

#include <functional>
#include <vector>

namespace korvane {

/// A grid of one column that serves as a bar of commands, each of which a click, Space or Return runs.
class CommandBar {
public:
    /// `run` gets the place of the command in the bar, counted from 0.
    using Run = std::function<void(int index)>;

    /// The grid outlives the bar.
    CommandBar(GridBox& grid, Run run);

    /// Fills the grid; an empty font name and a size of 0 leave the grid's own font.
    void Build(const std::vector<Text>& captions, int columnWidth, int rowHeight, const FontSpec& font = {});
    /// Gives the keyboard to the grid, with its row selected.
    void TakeFocus();
    /// The bar's own keys; the grid's `KeyDown` unless the window needs further ones.
    void KeyDown(KeyEvent& key);

private:
    void RunRow(Row row);
    void SelectRow(Row row);
    void Hover(bool over);

    GridBox& grid_;
    Run run_;
};

} // namespace korvane
