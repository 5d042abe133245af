#include "controls/lists/PackedTexts.h"

#include <algorithm>
#include <cstdint>

namespace korvane {

namespace {

// A number takes two units.
constexpr std::size_t kNumber = 2;

std::size_t NumberAt(const char16_t* units) {
    return units[0] | static_cast<std::size_t>(units[1]) << 16U;
}

void PutNumber(char16_t* units, std::size_t number) {
    units[0] = static_cast<char16_t>(number & 0xFFFFU);
    units[1] = static_cast<char16_t>(number >> 16U & 0xFFFFU);
}

} // namespace

PackedTexts::PackedTexts(std::span<const TextView> texts) {
    std::size_t length = kNumber * (texts.size() + 1);
    for (const TextView text : texts)
        length += text.size();
    units_ = std::make_unique_for_overwrite<char16_t[]>(length);
    PutNumber(units_.get(), texts.size());
    std::size_t end = kNumber * (texts.size() + 1);
    for (std::size_t index = 0; index < texts.size(); ++index) {
        std::copy(texts[index].begin(), texts[index].end(), units_.get() + end);
        end += texts[index].size();
        PutNumber(units_.get() + kNumber * (index + 1), end);
    }
}

std::size_t PackedTexts::Size() const {
    return units_ == nullptr ? 0 : NumberAt(units_.get());
}

TextView PackedTexts::At(std::size_t index) const {
    const std::size_t size = Size();
    if (index >= size) return {};
    const char16_t* const ownEnd = units_.get() + kNumber * (index + 1);
    const std::size_t start = index == 0 ? kNumber * (size + 1) : NumberAt(ownEnd - kNumber);
    return {units_.get() + start, NumberAt(ownEnd) - start};
}

} // namespace korvane
