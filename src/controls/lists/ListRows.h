#pragma once

#include "controls/lists/ListRow.h"
#include "controls/lists/NameNumbers.h"
#include "controls/lists/PackedTexts.h"
#include "controls/lists/PlaceOrder.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// The rows of a list with columns, counted from 0, in little memory. A row that is inserted, removed or
/// sorted keeps its place in memory: only the order of the rows changes, which takes four bytes for each.
class ListRows {
public:
    int Count() const { return order_.Size(); }
    void Insert(int at, const ListRow& row);
    void Write(int at, const ListRow& row);
    void Remove(int at);
    void Clear();
    /// `order` has for each row, from the first on, the number of the row that moves there.
    void Reorder(const std::vector<int>& order);

    ListRow RowAt(int at) const;
    TextView Key(int at) const { return At(at).texts.At(0); }
    /// Columns count from 0.
    TextView TextAt(int at, std::size_t column) const { return At(at).texts.At(column + 1); }
    void WriteText(int at, std::size_t column, TextView text);
    TextView Icon(int at) const { return icons_.Name(At(at).icon); }
    void SetIcon(int at, TextView name) { At(at).icon = icons_.NumberOf(name); }
    int Tag(int at) const { return At(at).tag; }
    void SetTag(int at, int tag) { At(at).tag = tag; }

    bool Checked(int at) const { return At(at).checked; }
    void SetChecked(int at, bool checked) { At(at).checked = checked; }
    bool Selected(int at) const { return At(at).selected; }
    void SetSelected(int at, bool selected);
    int SelectedCount() const { return selectedCount_; }

private:
    struct Held {
        /// The key and then the texts of the columns.
        PackedTexts texts;
        int tag = 0;
        std::uint32_t icon = 0;
        bool checked = false;
        bool selected = false;
    };

    const Held& At(int at) const { return held_[order_[at]]; }
    Held& At(int at) { return held_[order_[at]]; }
    std::uint32_t FreePlace();
    void Fill(Held& held, const ListRow& row);

    std::vector<Held> held_;
    /// The index in `held_` of each row, and the indices that are free.
    PlaceOrder order_;
    std::vector<std::uint32_t> free_;
    NameNumbers icons_;
    /// Those of the row that is taken just now; kept so that not each row asks for memory.
    std::vector<TextView> texts_;
    int selectedCount_ = 0;
};

} // namespace korvane
