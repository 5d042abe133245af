#include "common/text/BytePositions.h"

#include <algorithm>
#include <array>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace korvane {

namespace {

#ifdef __SSE2__

constexpr int kAtOnce = 16;

/// A bit for each of 64 bytes, which is set where the byte is the wanted one.
std::uint64_t Matches(const char* bytes, char wanted) {
    const __m128i all = _mm_set1_epi8(wanted);
    std::uint64_t matches = 0;
    for (int part = 0; part < 4; ++part) {
        const __m128i some = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + part * kAtOnce));
        const auto found = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(some, all)));
        matches |= std::uint64_t{found} << (part * kAtOnce);
    }
    return matches;
}

#else

std::uint64_t Matches(const char* bytes, char wanted) {
    std::uint64_t matches = 0;
    for (int at = 0; at < 64; ++at)
        matches |= std::uint64_t{bytes[at] == wanted} << at;
    return matches;
}

#endif

} // namespace

void BytePositions::ReadBlock() {
    const std::string_view block = text_.substr(read_, kBlock);
    if (block.size() == kBlock) {
        found_ = Matches(block.data(), byte_);
    } else {
        std::array<char, kBlock> rest{};
        std::copy(block.begin(), block.end(), rest.begin());
        found_ = Matches(rest.data(), byte_) & ((std::uint64_t{1} << block.size()) - 1);
    }
    read_ += kBlock;
}

} // namespace korvane
