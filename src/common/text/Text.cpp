#include "common/text/Text.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>

namespace korvane {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char16_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

void AppendCodePoint(Text& text, char32_t point) {
    if (point < 0x10000) {
        text += static_cast<char16_t>(point);
        return;
    }
    point -= 0x10000;
    text += static_cast<char16_t>(0xD800 + (point >> 10));
    text += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
}

void AppendUtf8(std::string& bytes, char32_t point) {
    const auto put = [&bytes](char32_t value) {
        bytes += static_cast<char>(static_cast<std::uint8_t>(value));
    };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | (point >> 6));
        put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        put(0xE0 | (point >> 12));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xF0 | (point >> 18));
        put(0x80 | ((point >> 12) & 0x3F));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    }
}

struct Utf8Lead {
    std::size_t length;
    char32_t bits;
    char32_t smallest;
};

Utf8Lead ReadLead(std::uint8_t byte) {
    if (byte < 0x80) return {1, byte, 0};
    if (byte >= 0xC2 && byte < 0xE0) return {2, byte & 0x1Fu, 0x80};
    if (byte >= 0xE0 && byte < 0xF0) return {3, byte & 0x0Fu, 0x800};
    if (byte >= 0xF0 && byte < 0xF5) return {4, byte & 0x07u, 0x10000};
    return {0, 0, 0};
}

/// Reads one code point at `at` and moves `at` after it. An ill-formed byte counts alone.
char32_t NextCodePoint(std::string_view bytes, std::size_t& at) {
    const Utf8Lead lead = ReadLead(static_cast<std::uint8_t>(bytes[at]));
    if (lead.length == 0 || at + lead.length > bytes.size()) {
        ++at;
        return kReplacement;
    }
    char32_t point = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const auto byte = static_cast<std::uint8_t>(bytes[at + i]);
        if ((byte & 0xC0) != 0x80) {
            ++at;
            return kReplacement;
        }
        point = (point << 6) | (byte & 0x3Fu);
    }
    const bool surrogate = point >= 0xD800 && point < 0xE000;
    if (point < lead.smallest || point > 0x10FFFF || surrogate) {
        ++at;
        return kReplacement;
    }
    at += lead.length;
    return point;
}

/// How many of the units or bytes, from the first on, are ASCII. In names mostly all are.
template <class UnitsT>
std::size_t AsciiLength(const UnitsT& units) {
    const auto end = std::ranges::find_if(
        units, [](auto unit) { return static_cast<std::make_unsigned_t<decltype(unit)>>(unit) >= 0x80; });
    return static_cast<std::size_t>(end - units.begin());
}

} // namespace

Text FromAscii(std::string_view ascii) {
    return {ascii.begin(), ascii.end()};
}

Text FromUtf8(std::string_view utf8) {
    const std::size_t ascii = AsciiLength(utf8);
    Text text(utf8.begin(), utf8.begin() + ascii);
    text.reserve(utf8.size());
    for (std::size_t at = ascii; at < utf8.size();)
        AppendCodePoint(text, NextCodePoint(utf8, at));
    return text;
}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t at = AsciiLength(bytes); at < bytes.size();) {
        const std::size_t start = at;
        // A replacement character that is really in the bytes takes three of them.
        if (NextCodePoint(bytes, at) == kReplacement && at - start == 1) return false;
    }
    return true;
}

std::string ToUtf8(TextView text) {
    const std::size_t ascii = AsciiLength(text);
    std::string bytes(ascii, '\0');
    std::transform(text.begin(), text.begin() + ascii, bytes.begin(),
                   [](char16_t unit) { return static_cast<char>(unit); });
    bytes.reserve(text.size());
    for (std::size_t i = ascii; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            const char32_t point = 0x10000u + ((unit - 0xD800u) << 10) + (text[i + 1] - 0xDC00u);
            AppendUtf8(bytes, point);
            ++i;
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            AppendUtf8(bytes, kReplacement);
        } else {
            AppendUtf8(bytes, unit);
        }
    }
    return bytes;
}

TextView Mid(TextView text, std::size_t start, std::size_t length) {
    if (start == 0 || start > text.size()) return {};
    return text.substr(start - 1, length);
}

TextView Left(TextView text, std::size_t length) {
    return text.substr(0, length);
}

TextView Right(TextView text, std::size_t length) {
    return length >= text.size() ? text : text.substr(text.size() - length);
}

std::size_t InStr(TextView text, TextView part, std::size_t start) {
    if (start == 0) return 0;
    const std::size_t found = text.find(part, start - 1);
    return found == TextView::npos ? 0 : found + 1;
}

std::size_t InStrRev(TextView text, TextView part) {
    const std::size_t found = text.rfind(part);
    return found == TextView::npos ? 0 : found + 1;
}

TextView Trim(TextView text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == TextView::npos) return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

} // namespace korvane
