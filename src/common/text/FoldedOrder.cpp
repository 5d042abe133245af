#include "common/text/FoldedOrder.h"

#include "common/text/CaseFold.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr std::size_t kUnitsInKey = 4;

/// Some units of a text as one number, which compares as they do.
struct Key {
    std::uint64_t units = 0;
    std::uint32_t index = 0;

    auto operator<=>(const Key&) const = default;
};

/// Texts that are alike up to a place, and are to be sorted from there on.
struct AlikeTexts {
    std::size_t first = 0;
    std::size_t last = 0;
    std::size_t from = 0;
};

/// As `ToUpper`, which is needed for few letters.
char16_t Fold(char16_t unit) {
    if (unit >= u'a' && unit <= u'z') return static_cast<char16_t>(unit - u'a' + u'A');
    return unit < 0x80 ? unit : ToUpper(unit);
}

std::uint64_t UnitsAt(TextView text, std::size_t from) {
    std::uint64_t units = 0;
    for (std::size_t at = from; at < from + kUnitsInKey; ++at)
        units = units << 16U | (at < text.size() ? Fold(text[at]) : 0U);
    return units;
}

class FoldedSort {
public:
    FoldedSort(std::span<const TextView> texts, SortOrder order)
        : texts_(texts), turned_(order == SortOrder::Ascending ? 0 : ~std::uint64_t{0}), keys_(texts.size()) {
        for (std::size_t index = 0; index < keys_.size(); ++index)
            keys_[index].index = static_cast<std::uint32_t>(index);
    }

    std::vector<std::uint32_t> Run() {
        // The texts of one list mostly begin alike, and often end alike. So a comparison of whole texts would
        // go over the same units again and again.
        runs_.push_back({0, keys_.size(), CommonLength()});
        while (!runs_.empty()) {
            const AlikeTexts run = runs_.back();
            runs_.pop_back();
            Sort(run);
        }
        std::vector<std::uint32_t> order(keys_.size());
        std::ranges::transform(keys_, order.begin(), &Key::index);
        return order;
    }

private:
    /// How many units all texts have in common at their beginnings.
    std::size_t CommonLength() const {
        if (texts_.empty()) return 0;
        TextView common = texts_.front();
        for (const TextView text : texts_) {
            const auto end = std::ranges::mismatch(common, text).in1;
            common = common.substr(0, static_cast<std::size_t>(end - common.begin()));
        }
        return common.size();
    }

    void Sort(const AlikeTexts& run) {
        const std::span<Key> keys(keys_.begin() + static_cast<std::ptrdiff_t>(run.first),
                                  keys_.begin() + static_cast<std::ptrdiff_t>(run.last));
        for (Key& key : keys)
            key.units = UnitsAt(texts_[key.index], run.from) ^ turned_;
        if (!std::ranges::is_sorted(keys)) std::ranges::sort(keys);
        for (std::size_t first = 0; first < keys.size();) {
            std::size_t last = first + 1;
            while (last < keys.size() && keys[last].units == keys[first].units)
                ++last;
            const bool goesOn = ((keys[first].units ^ turned_) & 0xFFFFU) != 0;
            if (goesOn && last - first > 1)
                runs_.push_back({run.first + first, run.first + last, run.from + kUnitsInKey});
            first = last;
        }
    }

    std::span<const TextView> texts_;
    std::uint64_t turned_;
    std::vector<Key> keys_;
    std::vector<AlikeTexts> runs_;
};

} // namespace

std::vector<std::uint32_t> FoldedOrder(std::span<const TextView> texts, SortOrder order) {
    return FoldedSort(texts, order).Run();
}

} // namespace korvane
