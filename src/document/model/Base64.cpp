#include "document/model/Base64.h"

#include <array>
#include <cstdint>

namespace korvane::doc {

namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::int8_t kForeign = -1;

constexpr std::array<std::int8_t, 256> MakeValues() {
    std::array<std::int8_t, 256> values{};
    values.fill(kForeign);
    for (std::size_t i = 0; i < kAlphabet.size(); ++i)
        values[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::int8_t>(i);
    return values;
}

constexpr std::array<std::int8_t, 256> kValues = MakeValues();

} // namespace

std::string ToBase64(std::string_view bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::string_view three = bytes.substr(i, 3);
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < 3; ++k)
            bits = bits << 8 | (k < three.size() ? static_cast<unsigned char>(three[k]) : 0u);
        for (std::size_t k = 0; k < 4; ++k)
            text += k <= three.size() ? kAlphabet[bits >> (18 - 6 * k) & 63] : '=';
    }
    return text;
}

std::string FromBase64(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    int count = 0;
    for (const char c : text) {
        const std::int8_t value = kValues[static_cast<unsigned char>(c)];
        if (value == kForeign) continue;
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        count += 6;
        if (count < 8) continue;
        count -= 8;
        bytes += static_cast<char>(bits >> count & 0xFF);
    }
    return bytes;
}

} // namespace korvane::doc
