#include "controls/ListView.h"

#include "common/text/CaseFold.h"

#include <algorithm>

namespace korvane {

ListView::ListView(Form& owner, std::string_view name, std::vector<ListColumn> columns)
    : Control(owner, name) {
    Columns = std::move(columns);
}

const ListRow& ListView::RowAt(int index) const {
    static const ListRow none;
    return Holds(index) ? rows_[static_cast<std::size_t>(index - 1)] : none;
}

void ListView::Add(ListRow row) {
    Insert(Count() + 1, std::move(row));
}

void ListView::Insert(int index, ListRow row) {
    if (index < 1 || index > Count() + 1) return;
    rows_.insert(rows_.begin() + (index - 1), std::move(row));
    if (current_ >= index) ++current_;
    Notify(Aspect::Items);
}

void ListView::Set(int index, ListRow row) {
    if (!Holds(index)) return;
    At(index) = std::move(row);
    Notify(Aspect::Items);
}

void ListView::Remove(int index) {
    if (!Holds(index)) return;
    rows_.erase(rows_.begin() + (index - 1));
    if (current_ > index) --current_;
    current_ = std::min(current_, Count());
    Notify(Aspect::Items);
}

void ListView::Clear() {
    rows_.clear();
    current_ = 0;
    Notify(Aspect::Items);
}

int ListView::IndexOf(TextView key) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [key](const ListRow& row) { return row.key == key; });
    return found == rows_.end() ? 0 : static_cast<int>(found - rows_.begin()) + 1;
}

void ListView::SetCurrent(int index) {
    if (!Holds(index)) return;
    for (ListRow& row : rows_)
        row.selected = false;
    At(index).selected = true;
    current_ = index;
    Notify(Aspect::Selection);
    if (ItemClick) ItemClick();
}

void ListView::SetSelected(int index, bool selected) {
    if (!Holds(index) || At(index).selected == selected) return;
    At(index).selected = selected;
    Notify(Aspect::Selection);
}

void ListView::SetChecked(int index, bool checked) {
    if (!Holds(index) || At(index).checked == checked) return;
    At(index).checked = checked;
    Notify(Aspect::Value);
    if (ItemCheck) ItemCheck(index);
}

void ListView::SortBy(int column, SortOrder order) {
    struct Keyed {
        Text key;
        std::size_t from;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(rows_.size());
    for (const ListRow& row : rows_) {
        const auto at = static_cast<std::size_t>(column - 1);
        const bool held = column >= 1 && at < row.texts.size();
        keyed.push_back({held ? ToUpper(row.texts[at]) : Text{}, keyed.size()});
    }
    std::stable_sort(keyed.begin(), keyed.end(), [order](const Keyed& a, const Keyed& b) {
        return order == SortOrder::Ascending ? a.key < b.key : b.key < a.key;
    });
    std::vector<ListRow> sorted;
    sorted.reserve(rows_.size());
    int current = 0;
    for (const Keyed& entry : keyed) {
        if (static_cast<int>(entry.from) + 1 == current_) current = static_cast<int>(sorted.size()) + 1;
        sorted.push_back(std::move(rows_[entry.from]));
    }
    rows_ = std::move(sorted);
    current_ = current;
    Notify(Aspect::Items);
}

void ListView::DoubleClick(int index) {
    SetCurrent(index);
    if (DblClick) DblClick();
}

void ListView::ClickColumn(int column) {
    if (ColumnClick) ColumnClick(column);
}

} // namespace korvane
