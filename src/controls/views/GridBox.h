#pragma once

#include "controls/Control.h"
#include "grid/FieldText.h"
#include "grid/Grid.h"
#include "platform/Screen.h"

#include <memory>
#include <optional>

namespace korvane {

enum class MouseButton : std::uint8_t { Left, Right, Middle };

/// The grid of a window. It owns the store and reports what the user does. The shown grid hears of changes
/// from the store itself (`GridListener`).
class GridBox : public Control {
public:
    GridBox(Form& owner, std::string_view name, std::unique_ptr<Grid> store);

    Grid& Store() { return *store_; }
    const Grid& Store() const { return *store_; }
    /// The column and the order of the last sort by a header; column 0 before the first.
    Col SortedBy() const { return sortedBy_; }
    SortOrder Order() const { return order_; }

    /// The user typed a new value into the cell and committed it; the store holds it already.
    std::function<void(Row, Col)> AfterEdit;
    /// This runs before the grid sorts. It sorts when `SortOnHeaderClick` is true afterwards.
    std::function<void(Col)> HeaderClick;
    /// The user changed the table, and everything that follows from it has happened.
    std::function<void()> AfterChange;
    std::function<void(MouseButton)> MouseUp;
    /// The cell is the current one already.
    std::function<void(Row, Col)> CellClick;
    /// Something that can be seen of the table changed, or the current cell moved.
    std::function<void()> Seen;
    /// The user went on from the last cell.
    std::function<void()> PastEnd;
    /// Something was typed into the field of a cell, or that field has closed.
    std::function<void()> Typing;
    /// The mouse pointer came over the grid (true) or left it.
    std::function<void(bool)> Hover;

    /// How the current row is drawn; `kNoColour` leaves it to the look of the grid.
    Property<Colour> HighlightBackColor{*this, Aspect::Colours};
    Property<Colour> HighlightForeColor{*this, Aspect::Colours};
    /// This text is highlighted wherever a cell contains it; case counts. Nothing is highlighted while it is
    /// empty.
    Property<Text> MarkedText{*this, Aspect::Text};
    /// The text of column 1 in rows that are drawn faded. Empty for none.
    Property<Text> FadedMark{*this, Aspect::Text};
    /// The form of the mouse pointer over the grid.
    Property<Pointer> MousePointer{*this, Aspect::Pointer, Pointer::Default};
    /// A picture file for the pointer in the form of a hand. When it can't be read, the system's hand is
    /// used.
    Property<Text> HandImage{*this, Aspect::Pointer};

    /// Whether the text in the field of a cell isn't the one with which it was opened. The view sets it.
    bool FieldAltered = false;
    /// What that field has. The view sets it.
    std::function<std::optional<FieldText>()> ReadField;

    /// How wide the grid is on the screen, as the view set it last; 0 while it isn't shown.
    Twips ShownWidth;

    // What the user does.

    /// Writes the cell and raises `AfterEdit`; nothing happens when the text is the same.
    void CommitEdit(Row row, Col col, TextView text);
    /// Ticks or unticks the row's box, which counts as a committed edit.
    void ClickCheck(Row row);
    /// A second click on the same header reverses the order.
    void ClickHeader(Col col);
    /// Makes the cell the current one and raises `CellClick`.
    void ClickCell(Row row, Col col);
    /// Goes to the next cell (1) or the previous one (-1) that is shown, row by row. Where there is no next
    /// one, `PastEnd` runs.
    void StepCell(int step);
    /// Gives the column a width while its edge is dragged. `ReleaseColumn` follows when the edge is let go.
    void DragColumn(Col col, int width);
    void ReleaseColumn();

private:
    void TellChange();
    std::optional<Row> ShownRowBeside(Row row, int step) const;

    std::unique_ptr<Grid> store_;
    Col sortedBy_;
    SortOrder order_ = SortOrder::Ascending;
    bool dragged_ = false;
};

} // namespace korvane
