#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace korvane {

/// The items with item `order[i]` in the place of item i.
template <class Item>
std::vector<Item> Permuted(const std::vector<Item>& items, std::span<const std::size_t> order) {
    std::vector<Item> permuted;
    permuted.reserve(items.size());
    for (const std::size_t from : order)
        permuted.push_back(items[from]);
    return permuted;
}

} // namespace korvane
