#include "controls/views/TabStyles.h"

#include "common/text/FindEntry.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

/// A colour as it is usually written, red first.
constexpr Colour Rgb(std::uint32_t rgb) {
    return Colour{static_cast<std::int32_t>((rgb & 0xFFU) << 16U | (rgb & 0xFF00U) | rgb >> 16U)};
}

// On light strips text is black, on dark ones white.
constexpr TabStyleColours kPlainLight{Rgb(0xF0F0F0), Rgb(0x2F74C0)};
constexpr TabStyleColours kPlainDark{Rgb(0x2B2B2B), Rgb(0x6AA5E8)};
constexpr TabStyleColours kGrayLight{Rgb(0xDADDE1), Rgb(0x6C757F)};
constexpr TabStyleColours kGrayDark{Rgb(0x3A3D41), Rgb(0xA9B1BA)};
constexpr TabStyleColours kBlueLight{Rgb(0xCFE2F7), Rgb(0x2F74C0)};
constexpr TabStyleColours kBlueDark{Rgb(0x1F3A57), Rgb(0x6AA5E8)};
constexpr TabStyleColours kBlueOrangeLight{Rgb(0xCFE2F7), Rgb(0xD97A1A)};
constexpr TabStyleColours kBlueOrangeDark{Rgb(0x1F3A57), Rgb(0xF0A04C)};
constexpr TabStyleColours kBlueWhiteLight{Rgb(0xE3EEFA), Rgb(0xFFFFFF)};
constexpr TabStyleColours kBlueWhiteDark{Rgb(0x27425E), Rgb(0xE8E8E8)};
constexpr TabStyleColours kBlueGrayLight{Rgb(0xC9D5E0), Rgb(0x4A6885)};
constexpr TabStyleColours kBlueGrayDark{Rgb(0x2E3C49), Rgb(0x93B0CB)};
constexpr TabStyleColours kGreenLight{Rgb(0xD3EADF), Rgb(0x2E7D5B)};
constexpr TabStyleColours kGreenDark{Rgb(0x21402F), Rgb(0x71C49D)};
constexpr TabStyleColours kOrangeLight{Rgb(0xF9E2C7), Rgb(0xB8640F)};
constexpr TabStyleColours kOrangeDark{Rgb(0x4A3317), Rgb(0xF0A04C)};

constexpr std::array<TabStyle, 17> kStyles{{
    {0, kPlainLight, kPlainDark, 0, 0, TabMark::Below},
    {1, kPlainLight, kPlainDark, 4, 25, TabMark::Above},
    {5, kGrayLight, kGrayDark, 0, 40, TabMark::Outlined},
    {6, kBlueOrangeLight, kBlueOrangeDark, 0, 40, TabMark::Above},
    {7, kOrangeLight, kOrangeDark, 3, 60, TabMark::Below},
    {10, kBlueOrangeLight, kBlueOrangeDark, 5, 80, TabMark::Filled},
    {11, kGreenLight, kGreenDark, 5, 40, TabMark::Above},
    {12, kBlueWhiteLight, kBlueWhiteDark, 4, 60, TabMark::Filled},
    {13, kBlueLight, kBlueDark, 7, 60, TabMark::Below},
    {14, kGrayLight, kGrayDark, 7, 60, TabMark::Filled},
    {20, kBlueGrayLight, kBlueGrayDark, 0, 30, TabMark::Below},
    {25, kBlueGrayLight, kBlueGrayDark, 4, 100, TabMark::Filled},
    {30, kGreenLight, kGreenDark, 0, 70, TabMark::Filled},
    {31, kGreenLight, kGreenDark, 9, 100, TabMark::Outlined},
    {32, kBlueLight, kBlueDark, 0, 100, TabMark::Filled},
    {33, kOrangeLight, kOrangeDark, 9, 100, TabMark::Filled},
    {40, kBlueLight, kBlueDark, 12, 90, TabMark::Outlined},
}};

const TabStyle* Find(int number) {
    return FindEntry(kStyles, number, &TabStyle::number);
}

} // namespace

std::span<const TabStyle> TabStyles() {
    return kStyles;
}

const TabStyle& TabStyleOf(int number) {
    const TabStyle* found = Find(number);
    return found == nullptr ? kStyles.front() : *found;
}

int SteppedTabStyle(int number, StyleStep step) {
    const TabStyle* found = Find(number);
    if (found == nullptr) return number;
    const auto index = static_cast<std::size_t>(found - kStyles.data());
    const std::size_t moved = step == StyleStep::Forward ? index + 1 : index + kStyles.size() - 1;
    return kStyles[moved % kStyles.size()].number;
}

} // namespace korvane
