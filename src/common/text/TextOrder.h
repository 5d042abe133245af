#pragma once

#include "common/text/Text.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace korvane {

/// In which order texts are sorted.
class TextOrder {
public:
    virtual ~TextOrder() = default;
    /// The rank of each text: of two texts, the one with the lower rank comes first. Texts that don't differ
    /// for the user have the same rank.
    virtual std::vector<int> RanksOf(const std::vector<Text>& texts) const = 0;
};

/// An order that is the same for every user: letters without regard to accents and case, which count only
/// where nothing else differs, and numbers inside the texts by their value.
class PlainTextOrder final : public TextOrder {
public:
    std::vector<int> RanksOf(const std::vector<Text>& texts) const override;
};

/// The rank of each key among all keys, which are compared with `<`.
template <class Key>
std::vector<int> RanksByKeys(const std::vector<Key>& keys) {
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    std::vector<int> ranks(keys.size());
    int rank = 0;
    for (std::size_t place = 1; place < order.size(); ++place) {
        if (keys[order[place - 1]] < keys[order[place]]) ++rank;
        ranks[order[place]] = rank;
    }
    return ranks;
}

} // namespace korvane
