#include "controls/lists/ListView.h"

#include "common/text/FoldedOrder.h"

#include <algorithm>

namespace korvane {

namespace {

int PlaceOf(int row, const std::vector<int>& order) {
    return static_cast<int>(std::ranges::find(order, row) - order.begin());
}

bool NamesEachOnce(const std::vector<int>& order, int count) {
    std::vector<bool> named(static_cast<std::size_t>(count));
    for (const int row : order) {
        if (row < 0 || row >= count || named[static_cast<std::size_t>(row)]) return false;
        named[static_cast<std::size_t>(row)] = true;
    }
    return order.size() == named.size();
}

} // namespace

ListView::ListView(Form& owner, std::string_view name, std::vector<ListColumn> columns)
    : RowsControl(owner, name) {
    Columns = std::move(columns);
}

Twips ListView::ColumnWidth(int column) const {
    const auto& columns = Columns.Get();
    if (column < 1 || column > static_cast<int>(columns.size())) return {};
    return columns[static_cast<std::size_t>(column - 1)].width;
}

void ListView::SetColumnWidth(int column, Twips width) {
    std::vector<ListColumn> columns = Columns;
    if (column < 1 || column > static_cast<int>(columns.size())) return;
    columns[static_cast<std::size_t>(column - 1)].width = width;
    Columns = std::move(columns);
}

// ---- Rows ---------------------------------------------------------------------------------------------

void ListView::Insert(int index, const ListRow& row) {
    if (index < 1 || index > Count() + 1) return;
    rows_.Insert(index - 1, row);
    if (current_ >= index) ++current_;
    TellInserted(index - 1, index - 1);
    if (row.selected) TellPicks();
}

void ListView::Set(int index, const ListRow& row) {
    if (!Holds(index)) return;
    const bool wasSelected = Selected(index);
    rows_.Write(index - 1, row);
    TellChanged(index - 1, index - 1);
    if (row.selected != wasSelected) TellPicks();
}

void ListView::Remove(int index) {
    if (!Holds(index)) return;
    rows_.Remove(index - 1);
    if (current_ > index) --current_;
    current_ = std::min(current_, Count());
    TellRemoved(index - 1, index - 1);
}

void ListView::Clear() {
    rows_.Clear();
    current_ = 0;
    TellReset();
}

ListRow ListView::RowAt(int index) const {
    return Holds(index) ? rows_.RowAt(index - 1) : ListRow();
}

TextView ListView::TextAt(int index, int column) const {
    if (!Holds(index) || column < 1) return {};
    return rows_.TextAt(index - 1, static_cast<std::size_t>(column - 1));
}

void ListView::SetText(int index, int column, TextView text) {
    if (!Holds(index) || column < 1 || TextAt(index, column) == text) return;
    rows_.WriteText(index - 1, static_cast<std::size_t>(column - 1), text);
    TellChanged(index - 1, index - 1);
}

TextView ListView::KeyAt(int index) const {
    return Holds(index) ? rows_.Key(index - 1) : TextView();
}

TextView ListView::IconAt(int index) const {
    return Holds(index) ? rows_.Icon(index - 1) : TextView();
}

void ListView::SetIcon(int index, TextView icon) {
    if (!Holds(index) || IconAt(index) == icon) return;
    rows_.SetIcon(index - 1, icon);
    TellChanged(index - 1, index - 1);
}

int ListView::TagAt(int index) const {
    return Holds(index) ? rows_.Tag(index - 1) : 0;
}

void ListView::SetTag(int index, int tag) {
    if (Holds(index)) rows_.SetTag(index - 1, tag);
}

int ListView::IndexOf(TextView key) const {
    int at = 0;
    while (at < Count() && rows_.Key(at) != key)
        ++at;
    return at == Count() ? 0 : at + 1;
}

// ---- The current row, picks and check marks -----------------------------------------------------------

void ListView::SetCurrent(int index) {
    if (!Holds(index)) return;
    ClearPicks();
    rows_.SetSelected(index - 1, true);
    current_ = index;
    TellPicks();
    TellCurrent(current_ - 1);
    if (ItemClick) ItemClick();
}

void ListView::ClearPicks() {
    // Mostly the current row is the only one.
    if (current_ != 0) rows_.SetSelected(current_ - 1, false);
    for (int at = 0; rows_.SelectedCount() > 0; ++at)
        rows_.SetSelected(at, false);
}

bool ListView::Selected(int index) const {
    return Holds(index) && rows_.Selected(index - 1);
}

void ListView::SetSelected(int index, bool selected) {
    if (!Holds(index) || Selected(index) == selected) return;
    rows_.SetSelected(index - 1, selected);
    TellPicks();
}

void ListView::SetAllSelected(bool selected) {
    for (int at = 0; at < Count(); ++at)
        rows_.SetSelected(at, selected);
    TellPicks();
}

std::vector<int> ListView::SelectedRows() const {
    std::vector<int> selected;
    selected.reserve(static_cast<std::size_t>(SelectedCount()));
    for (int index = 1; index <= Count(); ++index) {
        if (Selected(index)) selected.push_back(index);
    }
    return selected;
}

bool ListView::Checked(int index) const {
    return Holds(index) && rows_.Checked(index - 1);
}

void ListView::SetChecked(int index, bool checked) {
    if (!Holds(index) || Checked(index) == checked) return;
    rows_.SetChecked(index - 1, checked);
    TellChanged(index - 1, index - 1);
    if (ItemCheck) ItemCheck(index);
}

void ListView::EnsureVisible(int index) {
    if (Holds(index)) TellWanted(index - 1);
}

// ---- Sorting ------------------------------------------------------------------------------------------

void ListView::SortBy(int column, SortOrder order) {
    std::vector<TextView> texts;
    texts.reserve(static_cast<std::size_t>(Count()));
    for (int index = 1; index <= Count(); ++index)
        texts.push_back(TextAt(index, column));
    const std::vector<std::uint32_t> sorted = FoldedOrder(texts, order);
    TakeOrder({sorted.begin(), sorted.end()});
}

void ListView::Reorder(const std::vector<int>& order) {
    std::vector<int> fromZero(order.size());
    std::transform(order.begin(), order.end(), fromZero.begin(), [](int index) { return index - 1; });
    if (NamesEachOnce(fromZero, Count())) TakeOrder(fromZero);
}

void ListView::TakeOrder(const std::vector<int>& order) {
    rows_.Reorder(order);
    if (current_ != 0) current_ = PlaceOf(current_ - 1, order) + 1;
    TellReset();
    TellCurrent(current_ - 1);
}

// ---- What the user does -------------------------------------------------------------------------------

void ListView::DoubleClick(int index) {
    SetCurrent(index);
    if (DblClick) DblClick();
}

void ListView::TypeText(int index, TextView text, int step) {
    if (!Holds(index) || EditColumn == 0) return;
    if (TextTyped) TextTyped(index, text);
    if (Holds(index + step)) SetCurrent(index + step);
}

void ListView::ClickColumn(int column) {
    if (ColumnClick) ColumnClick(column);
}

} // namespace korvane
