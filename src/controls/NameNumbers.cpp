#include "controls/NameNumbers.h"

namespace korvane {

std::uint32_t NameNumbers::NumberOf(TextView name) {
    const auto [place, isNew] = numbers_.try_emplace(Text(name), static_cast<std::uint32_t>(names_.size()));
    if (isNew) names_.emplace_back(name);
    return place->second;
}

void NameNumbers::Clear() {
    *this = {};
}

} // namespace korvane
