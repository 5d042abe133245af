#include "platform/native/FileAddress.h"

#include "platform/native/NativePath.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace korvane {

namespace {

/// The bytes of the path, its parts divided by "/".
std::string BytesOf(TextView path) {
    if constexpr (std::is_same_v<std::filesystem::path::value_type, char>) {
        return ToNative(path);
    } else {
        std::string bytes = ToUtf8(path);
        std::ranges::replace(bytes, '\\', '/');
        return bytes;
    }
}

bool StandsForItself(unsigned char byte) {
    const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    const bool digit = byte >= '0' && byte <= '9';
    return letter || digit ||
           std::string_view("-._~/:@!$&'()*+,;=").find(static_cast<char>(byte)) != std::string_view::npos;
}

} // namespace

std::string FileAddress(TextView fullPath) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const std::string bytes = BytesOf(fullPath);
    // A share of another machine begins with its name, and a drive has no separator before it.
    std::string address = bytes.starts_with("//") ? "file:" : bytes.starts_with('/') ? "file://" : "file:///";
    for (const char each : bytes) {
        const auto byte = static_cast<unsigned char>(each);
        if (StandsForItself(byte)) {
            address += each;
        } else {
            address += {'%', kDigits[byte / 16], kDigits[byte % 16]};
        }
    }
    return address;
}

} // namespace korvane
