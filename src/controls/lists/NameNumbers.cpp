#include "controls/lists/NameNumbers.h"

namespace korvane {

std::uint32_t NameNumbers::NumberOf(TextView name) {
    if (names_[last_] == name) return last_;
    const auto [place, isNew] = numbers_.try_emplace(Text(name), static_cast<std::uint32_t>(names_.size()));
    if (isNew) names_.emplace_back(name);
    return last_ = place->second;
}

void NameNumbers::Clear() {
    *this = {};
}

} // namespace korvane
