#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <type_traits>

namespace korvane::doc {

/// Finds the row with a name in a constant table, whose rows have a member `name`. The compiler makes the
/// hash table.
template <const auto& kRows>
class NameTable {
public:
    using Row = std::remove_cvref_t<decltype(kRows[0])>;

    /// The row of the name, or nullptr.
    static const Row* Find(std::string_view name) {
        for (std::size_t slot = SlotOf(name); kNumbers[slot] != 0; slot = (slot + 1) % kSlots) {
            const Row& row = kRows[kNumbers[slot] - 1];
            if (row.name == name) return &row;
        }
        return nullptr;
    }

private:
    static constexpr std::size_t kSlots = std::bit_ceil(std::size(kRows) * 4);

    static constexpr std::size_t SlotOf(std::string_view name) {
        std::uint32_t hash = 0x811C9DC5u;
        for (const char c : name)
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x01000193u;
        return (hash ^ hash >> 15) % kSlots;
    }

    /// Each slot has the number of a row, counted from 1. A row whose slot is taken has the next free one.
    static constexpr std::array<std::uint16_t, kSlots> MakeNumbers() {
        std::array<std::uint16_t, kSlots> numbers{};
        std::uint16_t number = 0;
        for (const Row& row : kRows) {
            std::size_t slot = SlotOf(row.name);
            while (numbers[slot] != 0)
                slot = (slot + 1) % kSlots;
            numbers[slot] = ++number;
        }
        return numbers;
    }

    static constexpr std::array<std::uint16_t, kSlots> kNumbers = MakeNumbers();
};

} // namespace korvane::doc
