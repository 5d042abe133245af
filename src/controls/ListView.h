#pragma once

#include "common/number/SortOrder.h"
#include "controls/Control.h"

#include <cstddef>
#include <vector>

namespace korvane {

/// One row of a list with columns: `texts` holds one text for each column.
struct ListRow {
    Text key;
    std::vector<Text> texts;
    bool checked = false;
    bool selected = false;
    /// A number that the window keeps with the row. It isn't shown.
    int tag = 0;
    /// Which of the window's images is shown before the row; 0 for none.
    int image = 0;
};

struct ListColumn {
    Text header;
    /// 0 hides the column.
    Twips width;
    bool operator==(const ListColumn&) const = default;
};

/// A list with columns, for file lists and the like. Rows count from 1; 0 is none.
class ListView : public Control {
public:
    ListView(Form& owner, std::string_view name, std::vector<ListColumn> columns);

    Property<std::vector<ListColumn>> Columns{*this, Aspect::Range};
    /// Whether several rows can be picked at once, and whether rows have check boxes.
    Property<bool> MultiSelect{*this, Aspect::Range};
    Property<bool> CheckBoxes{*this, Aspect::Range};
    /// Whether lines are drawn between rows and columns.
    Property<bool> GridLines{*this, Aspect::Range};
    Property<Colour> BackColor{*this, Aspect::Colours};

    int Count() const { return static_cast<int>(rows_.size()); }
    /// An empty row outside the list.
    const ListRow& RowAt(int index) const;
    void Add(ListRow row);
    void Insert(int index, ListRow row);
    void Set(int index, ListRow row);
    void Remove(int index);
    void Clear();
    /// Position of the row of this key; 0 when there is none.
    int IndexOf(TextView key) const;

    /// The current row; setting it picks it alone and fires `ItemClick`.
    int Current() const { return current_; }
    void SetCurrent(int index);
    void SetSelected(int index, bool selected);
    void SetChecked(int index, bool checked);

    /// Sorts by the texts of a column (from 1), case ignored; rows that compare alike keep their order.
    void SortBy(int column, SortOrder order);

    std::function<void()> ItemClick;
    std::function<void()> DblClick;
    std::function<void(int index)> ItemCheck;
    std::function<void(int column)> ColumnClick;

    // What the user does.
    void Select(int index) { SetCurrent(index); }
    void DoubleClick(int index);
    void ClickColumn(int column);

private:
    bool Holds(int index) const { return index >= 1 && index <= Count(); }
    ListRow& At(int index) { return rows_[static_cast<std::size_t>(index - 1)]; }

    std::vector<ListRow> rows_;
    int current_ = 0;
};

} // namespace korvane
