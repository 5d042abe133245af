#include "grid/ByteSearch.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

namespace korvane {

namespace {

constexpr std::size_t kSample = std::size_t{16} * 1024;
/// When a byte occurs less often than this, a search for that byte alone is the fastest.
constexpr std::size_t kRareDistance = 1024;

constexpr std::size_t kBlock = 128;
/// For each byte of a block 1 where a pattern can begin, or 0.
using BlockFlags = std::array<unsigned char, kBlock>;

/// Judges by two bytes of the pattern. Without a branch inside, the compiler makes vector instructions of it.
BlockFlags Candidates(const char* first, char firstByte, const char* second, char secondByte) {
    BlockFlags flags;
    for (std::size_t i = 0; i < kBlock; ++i)
        flags[i] = static_cast<unsigned char>((first[i] == firstByte) & (second[i] == secondByte));
    return flags;
}

using Words = std::array<std::uint64_t, kBlock / sizeof(std::uint64_t)>;

bool Any(const Words& words) {
    std::uint64_t any = 0;
    for (const std::uint64_t word : words)
        any |= word;
    return any != 0;
}

std::array<std::size_t, 256> CountBytes(std::string_view bytes) {
    std::array<std::size_t, 256> counts{};
    for (const char byte : bytes)
        ++counts[static_cast<unsigned char>(byte)];
    return counts;
}

} // namespace

BytePattern::BytePattern(std::string pattern, std::string_view sample) : pattern_(std::move(pattern)) {
    sample = sample.substr(0, kSample);
    const auto counts = CountBytes(sample);
    const auto count = [&](std::size_t at) { return counts[static_cast<unsigned char>(pattern_[at])]; };
    for (std::size_t at = 1; at < pattern_.size(); ++at) {
        if (count(at) < count(rare_))
            second_ = std::exchange(rare_, at);
        else if (second_ == rare_ || count(at) < count(second_))
            second_ = at;
    }
    hardlyOccurs_ = !pattern_.empty() && count(rare_) < sample.size() / kRareDistance;
}

bool BytePattern::IsIn(std::string_view bytes) const {
    if (bytes.size() < pattern_.size()) return false;
    if (hardlyOccurs_) return IsInByRareByte(bytes);
    return IsInByBlocks(bytes);
}

bool BytePattern::IsInByRareByte(std::string_view bytes) const {
    const std::size_t after = pattern_.size() - rare_ - 1;
    for (std::size_t at = bytes.find(pattern_[rare_], rare_); at < bytes.size() - after;
         at = bytes.find(pattern_[rare_], at + 1))
        if (bytes.compare(at - rare_, pattern_.size(), pattern_) == 0) return true;
    return false;
}

bool BytePattern::IsInByBlocks(std::string_view bytes) const {
    const std::size_t beginnings = bytes.size() - pattern_.size() + 1;
    if (beginnings < kBlock) return bytes.find(pattern_) != std::string_view::npos;
    // The last block overlaps the one before it.
    for (std::size_t at = 0; at < beginnings; at += kBlock)
        if (BeginsIn(bytes.data() + std::min(at, beginnings - kBlock))) return true;
    return false;
}

bool BytePattern::BeginsIn(const char* block) const {
    const BlockFlags flags = Candidates(block + rare_, pattern_[rare_], block + second_, pattern_[second_]);
    const auto words = std::bit_cast<Words>(flags);
    if (!Any(words)) return false;
    for (std::size_t word = 0; word < words.size(); ++word) {
        if (words[word] == 0) continue;
        for (std::size_t i = word * sizeof words[word]; i < (word + 1) * sizeof words[word]; ++i)
            if (flags[i] != 0 && std::memcmp(block + i, pattern_.data(), pattern_.size()) == 0) return true;
    }
    return false;
}

} // namespace korvane
