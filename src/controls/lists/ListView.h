#pragma once

#include "common/text/SortOrder.h"
#include "controls/lists/ListRow.h"
#include "controls/lists/ListRows.h"
#include "controls/lists/RowsControl.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace korvane {

enum class ColumnAlign : std::uint8_t { Left, Right, Centre };

struct ListColumn {
    Text header;
    /// 0 hides the column.
    Twips width;
    ColumnAlign align = ColumnAlign::Left;
    bool operator==(const ListColumn&) const = default;
};

/// A list with columns, for file lists and the like. Rows and columns count from 1; 0 is none. What addresses
/// no row has no effect, and is read as an empty one. Apart from `SortBy`, and from what asks or clears all
/// rows, it costs the same in a long list as in a short one.
class ListView : public RowsControl {
public:
    ListView(Form& owner, std::string_view name, std::vector<ListColumn> columns);

    Property<std::vector<ListColumn>> Columns{*this, Aspect::Range};
    Twips ColumnWidth(int column) const;
    void SetColumnWidth(int column, Twips width);
    /// Whether several rows can be picked at once, and whether rows have check boxes.
    Property<bool> MultiSelect{*this, Aspect::Range};
    Property<bool> CheckBoxes{*this, Aspect::Range};
    /// Whether lines are drawn between rows and columns.
    Property<bool> GridLines{*this, Aspect::Range};
    /// The column in which the user can type a text; 0 for none. The list tells what was typed and leaves it
    /// to the window to take it.
    Property<int> EditColumn{*this, Aspect::Range, 0};
    Property<Colour> BackColor{*this, Aspect::Colours};

    int Count() const { return rows_.Count(); }
    void Add(const ListRow& row) { Insert(Count() + 1, row); }
    void Insert(int index, const ListRow& row);
    void Set(int index, const ListRow& row);
    void Remove(int index);
    void Clear();

    /// A copy of the row. What asks many rows for one thing of each asks for that alone.
    ListRow RowAt(int index) const;
    TextView TextAt(int index, int column) const;
    void SetText(int index, int column, TextView text);
    TextView KeyAt(int index) const;
    TextView IconAt(int index) const;
    void SetIcon(int index, TextView icon);
    int TagAt(int index) const;
    void SetTag(int index, int tag);
    /// Position of the row of this key; 0 when there is none. Looks through all rows.
    int IndexOf(TextView key) const;

    /// The current row; setting it picks it alone and fires `ItemClick`.
    int Current() const { return current_; }
    void SetCurrent(int index);
    bool Selected(int index) const;
    void SetSelected(int index, bool selected);
    void SetAllSelected(bool selected);
    int SelectedCount() const { return rows_.SelectedCount(); }
    /// The positions of the picked rows, from the first on.
    std::vector<int> SelectedRows() const;
    bool Checked(int index) const;
    void SetChecked(int index, bool checked);
    /// Scrolls as far as it has to.
    void EnsureVisible(int index);

    /// Sorts by the texts of a column, case ignored; rows that compare alike keep their order.
    void SortBy(int column, SortOrder order);
    /// Sorts as the window wants: `order` has for each row, from the first on, the number of the row that
    /// moves there. Nothing happens unless it has each number once.
    void Reorder(const std::vector<int>& order);

    /// The full paths of the files that the picked rows are; unset where rows aren't files. The user can drag
    /// such rows to other programs, which get copies of the files.
    std::function<std::vector<Text>()> FilesToDrag;

    std::function<void()> ItemClick;
    std::function<void()> DblClick;
    std::function<void(int index)> ItemCheck;
    std::function<void(int column)> ColumnClick;
    std::function<void(int index, TextView text)> TextTyped;
    /// The user let go of the right mouse button. The row under the mouse has become the current one before.
    std::function<void()> RightClick;

    // What the user does.
    void Select(int index) { SetCurrent(index); }
    void DoubleClick(int index);
    void ClickColumn(int column);
    /// Types into the row's cell of `EditColumn` and goes on by `step` rows.
    void TypeText(int index, TextView text, int step = 0);
    /// By dragging its edge.
    void DragColumn(int column, Twips width) { SetColumnWidth(column, width); }

private:
    bool Holds(int index) const { return index >= 1 && index <= Count(); }
    void ClearPicks();
    /// The same with rows that count from 0, as the store's do.
    void TakeOrder(const std::vector<int>& order);

    ListRows rows_;
    int current_ = 0;
};

} // namespace korvane
