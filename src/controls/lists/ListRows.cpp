#include "controls/lists/ListRows.h"

#include <algorithm>

namespace korvane {

std::uint32_t ListRows::FreePlace() {
    if (free_.empty()) {
        held_.emplace_back();
        return static_cast<std::uint32_t>(held_.size() - 1);
    }
    const std::uint32_t place = free_.back();
    free_.pop_back();
    return place;
}

void ListRows::Insert(int at, const ListRow& row) {
    const std::uint32_t place = FreePlace();
    order_.Insert(at, place);
    Fill(held_[place], row);
}

void ListRows::Write(int at, const ListRow& row) {
    SetSelected(at, false);
    Fill(At(at), row);
}

void ListRows::Fill(Held& held, const ListRow& row) {
    texts_.assign(1, row.key);
    texts_.insert(texts_.end(), row.texts.begin(), row.texts.end());
    held = {PackedTexts(texts_), row.tag, icons_.NumberOf(row.icon), row.checked, row.selected};
    selectedCount_ += row.selected ? 1 : 0;
}

void ListRows::Remove(int at) {
    SetSelected(at, false);
    At(at) = {};
    free_.push_back(order_.Take(at));
}

void ListRows::Clear() {
    *this = {};
}

void ListRows::Reorder(const std::vector<int>& order) {
    std::vector<std::uint32_t> ordered(order.size());
    std::transform(order.begin(), order.end(), ordered.begin(), [this](int from) { return order_[from]; });
    order_.Assign(ordered);
}

ListRow ListRows::RowAt(int at) const {
    const Held& held = At(at);
    ListRow row{Text(held.texts.At(0)), {}, held.checked, held.selected, held.tag, icons_.Name(held.icon)};
    for (std::size_t index = 1; index < held.texts.Size(); ++index)
        row.texts.emplace_back(held.texts.At(index));
    return row;
}

void ListRows::WriteText(int at, std::size_t column, TextView text) {
    const PackedTexts& before = At(at).texts;
    std::vector<TextView> texts(std::max(before.Size(), column + 2));
    for (std::size_t index = 0; index < texts.size(); ++index)
        texts[index] = before.At(index);
    texts[column + 1] = text;
    At(at).texts = PackedTexts(texts);
}

void ListRows::SetSelected(int at, bool selected) {
    Held& held = At(at);
    selectedCount_ += static_cast<int>(selected) - static_cast<int>(held.selected);
    held.selected = selected;
}

} // namespace korvane
