#include "platform/memory/ByteSearch.h"

#include <cstddef>
#include <cstring>

namespace korvane {

namespace {

constexpr std::size_t kBlock = 64;

/// Whether `part` can begin in the block: its first byte, and its last one `reach` behind. Without a branch
/// inside, the compiler makes vector instructions of it.
bool MayBeginIn(const char* block, char first, char last, std::size_t reach) {
    unsigned char any = 0;
    for (std::size_t i = 0; i < kBlock; ++i)
        any |= static_cast<unsigned char>((block[i] == first) & (block[i + reach] == last));
    return any != 0;
}

bool BeginsIn(const char* block, std::string_view part) {
    const std::size_t reach = part.size() - 1;
    for (std::size_t i = 0; i < kBlock; ++i) {
        if (block[i] == part.front() && block[i + reach] == part.back() &&
            std::memcmp(block + i, part.data(), part.size()) == 0)
            return true;
    }
    return false;
}

} // namespace

bool ContainsBytes(std::string_view bytes, std::string_view part) {
    if (part.size() < 2) return bytes.find(part) != std::string_view::npos;
    const std::size_t reach = part.size() - 1;
    std::size_t at = 0;
    for (; at + kBlock + reach <= bytes.size(); at += kBlock) {
        const char* const block = bytes.data() + at;
        if (MayBeginIn(block, part.front(), part.back(), reach) && BeginsIn(block, part)) return true;
    }
    return bytes.find(part, at) != std::string_view::npos;
}

} // namespace korvane
