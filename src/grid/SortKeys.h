#pragma once

#include "common/text/SortOrder.h"
#include "common/text/TextOrder.h"

#include <vector>

namespace korvane {

/// Where the texts of a column belong when it is sorted: numbers by their value, then other texts, and blank
/// ones at the end in both orders.
class SortKeys {
public:
    SortKeys(const std::vector<Text>& texts, const TextOrder& order);

    bool ComesBefore(std::size_t a, std::size_t b, SortOrder order) const;

private:
    struct Key {
        bool isText = false;
        double number = 0;
        int rank = 0;
        auto operator<=>(const Key&) const = default;
    };

    std::vector<Key> keys_;
    std::vector<bool> blank_;
};

} // namespace korvane
