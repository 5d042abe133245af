#include "tbx/SavedValues.h"

#include "common/number/Number.h"
#include "common/number/Units.h"
#include "table/model/TbxFormat.h"

#include <cstdint>

namespace korvane {

namespace {

/// Instead of a row's colour, this number leaves the colour as it is.
constexpr double kKeepColour = -999;

template <class Int>
Int Rounded(double number, Int before) {
    StoreRounded(number, before);
    return before;
}

} // namespace

std::string SavedColour(std::string_view value) {
    return std::to_string(Rounded<std::int32_t>(Val(value), 0));
}

std::string SavedFontSize(std::string_view value) {
    return std::to_string(Rounded<std::int16_t>(Val(value), 0));
}

std::string SavedRowHeight(std::string_view value) {
    const auto height = Rounded<std::int16_t>(Val(value) / tbx::kHeightScale, 0);
    return ToUtf8(NumberText(height * tbx::kHeightScale));
}

std::string SavedColumnWidth(std::string_view value) {
    const auto width = Rounded<std::int32_t>(Val(value) / tbx::kWidthScale, 0);
    return std::to_string(std::int64_t{width} * tbx::kWidthScale);
}

std::string SavedRowColour(std::string_view value) {
    const double number = Val(value);
    if (number == kKeepColour) return SavedNoColour();
    return std::to_string(Rounded(number, kNoColour.value));
}

std::string SavedNoColour() {
    return std::to_string(kNoColour.value);
}

std::string SavedRowState(std::string_view line) {
    constexpr std::string_view kSet = "?1IBX";
    std::string saved = "?0000";
    for (std::size_t i = 1; i < saved.size() && i < line.size(); ++i)
        if (line[i] == kSet[i]) saved[i] = kSet[i];
    return saved;
}

} // namespace korvane
