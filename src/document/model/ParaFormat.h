#pragma once

#include "document/model/FormatPool.h"

#include <cstdint>
#include <vector>

namespace korvane::doc {

enum class TabType : std::uint8_t { Left = 1, Right = 2, Centred = 3, Decimal = 4 };

/// A tab stop. Its place is counted from the page's margin.
struct TabStop {
    std::int32_t at = 0;
    TabType type = TabType::Left;

    bool operator==(const TabStop&) const = default;
};

enum class Alignment : std::uint8_t { Left, Right, Centred, Justified };

enum class ListKind : std::uint8_t {
    None,
    Bullet,
    Decimal,
    LowerLetter,
    UpperLetter,
    LowerRoman,
    UpperRoman
};

/// The mark of a paragraph that belongs to a list.
struct ListMark {
    ListKind kind = ListKind::None;
    std::uint8_t level = 0;
    /// The number of the first paragraph of the list.
    std::int32_t start = 1;
    /// Paragraphs of one list have the same number, and their marks count on.
    std::uint32_t list = 0;

    bool operator==(const ListMark&) const = default;
};

/// The bits of a paragraph's frame.
enum FrameBit : std::uint16_t {
    kFrameLeft = 1,
    kFrameRight = 2,
    kFrameTop = 4,
    kFrameBottom = 8,
    kFrameTabLines = 16,
    kFrameSingle = 32,
    kFrameDouble = 64,
    kFrameConnected = 128,
};
inline constexpr std::uint16_t kFrameSides = kFrameLeft | kFrameRight | kFrameTop | kFrameBottom;

/// How a paragraph looks. Lengths are in twips.
struct ParaFormat {
    Alignment alignment = Alignment::Left;
    std::int32_t left = 0;
    std::int32_t right = 0;
    /// The indent of the first line, beyond `left`.
    std::int32_t first = 0;
    std::int32_t before = 0;
    std::int32_t after = 0;
    /// The distance of the lines in per cent; used while `spacingExact` is 0.
    std::int32_t spacingPercent = 100;
    std::int32_t spacingExact = 0;
    /// The bits of `FrameBit`, and above them the bits of parts that are explicitly off.
    std::uint16_t frame = 0;
    std::int32_t frameDistance = 0;
    std::int32_t frameWidth = 0;
    bool pageBreakBefore = false;
    ListMark list{};
    /// In the order of their places.
    std::vector<TabStop> tabs{};

    bool operator==(const ParaFormat&) const = default;
};

std::size_t HashOf(const ParaFormat& format);

} // namespace korvane::doc
