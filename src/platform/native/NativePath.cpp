#include "platform/native/NativePath.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace korvane {

#ifndef _WIN32
namespace {

// A byte that isn't part of a UTF-8 character becomes the second half of a pair that has no first half. No
// character is written so.
constexpr char16_t kByteUnits = 0xDC00;
constexpr char16_t kFirstByteUnit = kByteUnits + 0x80;
constexpr char16_t kLastByteUnit = kByteUnits + 0xFF;

bool IsHighHalf(char16_t unit) {
    return unit >= 0xD800 && unit < kByteUnits;
}

bool IsByteUnit(TextView text, std::size_t at) {
    const bool second = at > 0 && IsHighHalf(text[at - 1]);
    return text[at] >= kFirstByteUnit && text[at] <= kLastByteUnit && !second;
}

/// The length of the character with which the bytes begin, or 0 when they begin with none.
std::size_t CharacterLength(std::string_view bytes) {
    constexpr std::size_t kLongest = 4;
    for (std::size_t length = 1; length <= std::min(kLongest, bytes.size()); ++length) {
        if (IsUtf8(bytes.substr(0, length))) return length;
    }
    return 0;
}

Text FromAnyBytes(std::string_view bytes) {
    Text text;
    while (!bytes.empty()) {
        const std::size_t length = CharacterLength(bytes);
        if (length == 0) {
            text += static_cast<char16_t>(kByteUnits + static_cast<unsigned char>(bytes.front()));
        } else {
            text += FromUtf8(bytes.substr(0, length));
        }
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

std::string ToAnyBytes(TextView text) {
    std::string bytes;
    std::size_t start = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] < kFirstByteUnit || !IsByteUnit(text, at)) continue;
        bytes += ToUtf8(text.substr(start, at - start));
        bytes += static_cast<char>(text[at] - kByteUnits);
        start = at + 1;
    }
    return start == 0 ? ToUtf8(text) : bytes + ToUtf8(text.substr(start));
}

} // namespace
#endif

std::filesystem::path ToNativePath(TextView path) {
    return ToNative(path);
}

Text FromNativePath(const std::filesystem::path& path) {
    return FromNative(path.native());
}

std::filesystem::path::string_type ToNative(TextView name) {
    std::filesystem::path::string_type native(name.begin(), name.end());
    // A large folder has very many names, and most of them need no other look than this one.
    if (std::ranges::all_of(name, [](char16_t unit) { return unit != 0 && unit < 0x80; })) return native;
    // The system would read the name only up to the null, and so open another file.
    if (name.find(u'\0') != TextView::npos) return {};
#ifdef _WIN32
    return native;
#else
    return ToAnyBytes(name);
#endif
}

Text FromNative(std::basic_string_view<std::filesystem::path::value_type> name) {
#ifdef _WIN32
    return {name.begin(), name.end()};
#else
    const bool ascii =
        std::ranges::all_of(name, [](char unit) { return static_cast<signed char>(unit) >= 0; });
    if (ascii) return {name.begin(), name.end()};
    return IsUtf8(name) ? FromUtf8(name) : FromAnyBytes(name);
#endif
}

} // namespace korvane
