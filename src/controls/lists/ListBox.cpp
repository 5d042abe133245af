#include "controls/lists/ListBox.h"

#include <algorithm>

namespace korvane {

Text ListBox::List(int index) const {
    return Holds(index) ? items_[static_cast<std::size_t>(index)].text : Text{};
}

void ListBox::SetList(int index, TextView text) {
    if (!Holds(index)) return;
    items_[static_cast<std::size_t>(index)].text = Text(text);
    TellChanged(index, index);
}

void ListBox::SetSample(int index, Colour back, Colour text) {
    if (!Holds(index)) return;
    items_[static_cast<std::size_t>(index)].sample = Sample{back, text};
    TellChanged(index, index);
}

std::optional<ListBox::Sample> ListBox::SampleAt(int index) const {
    return Holds(index) ? items_[static_cast<std::size_t>(index)].sample : std::nullopt;
}

void ListBox::AddItem(TextView text) {
    InsertItem(ListCount(), text);
}

void ListBox::InsertItem(int index, TextView text) {
    if (index < 0 || index > ListCount()) return;
    items_.insert(items_.begin() + index, Item{Text(text), false});
    if (listIndex_ >= index) ++listIndex_;
    TellInserted(index, index);
}

void ListBox::RemoveItem(int index) {
    if (!Holds(index)) return;
    items_.erase(items_.begin() + index);
    if (listIndex_ > index) --listIndex_;
    listIndex_ = std::min(listIndex_, ListCount() - 1);
    TellRemoved(index, index);
}

void ListBox::Clear() {
    items_.clear();
    listIndex_ = -1;
    TellReset();
}

void ListBox::SetListIndex(int index) {
    if (index == listIndex_ || (index != -1 && !Holds(index))) return;
    listIndex_ = index;
    TellCurrent(listIndex_);
    if (Click) Click();
}

bool ListBox::Selected(int index) const {
    return Holds(index) && items_[static_cast<std::size_t>(index)].selected;
}

void ListBox::SetSelected(int index, bool selected) {
    if (!Holds(index) || Selected(index) == selected) return;
    items_[static_cast<std::size_t>(index)].selected = selected;
    TellChanged(index, index);
    TellPicks();
    if (ItemCheck) ItemCheck(index);
}

void ListBox::DoubleClick(int index) {
    SetListIndex(index);
    if (DblClick) DblClick();
}

} // namespace korvane
