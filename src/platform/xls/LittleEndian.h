#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>

namespace korvane::xls {

using U8 = std::uint8_t;
using U16 = std::uint16_t;
using U32 = std::uint32_t;

/// Puts the numbers, each as wide as its type, at the end of `bytes`, low bytes first.
template <std::unsigned_integral... Ints>
void AppendLittle(std::string& bytes, Ints... numbers) {
    std::array<char, (sizeof(Ints) + ... + 0)> packed{};
    std::size_t at = 0;
    const auto pack = [&](auto number) {
        for (std::size_t i = 0; i < sizeof number; ++i)
            packed[at++] = static_cast<char>(static_cast<unsigned char>(number >> (8 * i)));
    };
    (pack(numbers), ...);
    bytes.append(packed.data(), packed.size());
}

} // namespace korvane::xls
