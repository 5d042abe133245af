#include "document/model/ListTable.h"

#include <algorithm>

namespace korvane::doc {

namespace {

std::size_t LevelOf(const ListMark& mark) {
    return std::min<std::size_t>(mark.level, ListTable::kLevels - 1);
}

bool Agrees(const std::optional<ListMark>& level, const ListMark& mark) {
    return level && level->kind == mark.kind && level->start == mark.start;
}

} // namespace

ListTable::ListTable(const Document& document) {
    for (Index i = 0; i < document.paras.Size(); ++i) {
        const ListMark& mark = document.paras[i].list;
        if (mark.kind != ListKind::None) Enter(mark);
    }
}

void ListTable::Enter(const ListMark& mark) {
    std::vector<std::uint32_t>& numbers = numbers_[mark.list];
    for (const std::uint32_t number : numbers) {
        std::optional<ListMark>& level = lists_[number][LevelOf(mark)];
        if (!level) level = mark;
        if (Agrees(level, mark)) return;
    }
    const bool free = mark.list != 0 && !lists_.contains(mark.list);
    const std::uint32_t number = free ? mark.list : FreeNumber();
    numbers.push_back(number);
    lists_[number][LevelOf(mark)] = mark;
}

std::uint32_t ListTable::FreeNumber() const {
    std::uint32_t number = 1;
    while (lists_.contains(number))
        ++number;
    return number;
}

std::uint32_t ListTable::NumberOf(const ListMark& mark) const {
    const auto found = numbers_.find(mark.list);
    if (found == numbers_.end()) return 0;
    for (const std::uint32_t number : found->second) {
        if (Agrees(lists_.at(number)[LevelOf(mark)], mark)) return number;
    }
    return 0;
}

} // namespace korvane::doc
