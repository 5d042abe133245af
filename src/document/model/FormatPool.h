#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace korvane::doc {

/// The number of an entry of a pool, of a field, or of another part of a document.
using Index = std::uint32_t;

/// Each different format of a document once. Entry 0 is the format that nothing was said of.
template <class Format>
class FormatPool {
public:
    FormatPool() { Add(Format{}); }

    const Format& operator[](Index index) const { return formats_[index]; }
    std::size_t Size() const { return formats_.size(); }

    /// The number of the format, which is added if it isn't there.
    Index Add(const Format& format) {
        const auto [found, added] = numbers_.try_emplace(format, static_cast<Index>(formats_.size()));
        if (added) formats_.push_back(format);
        return found->second;
    }

private:
    struct Hash {
        std::size_t operator()(const Format& format) const { return HashOf(format); }
    };

    std::vector<Format> formats_;
    std::unordered_map<Format, Index, Hash> numbers_;
};

/// Mixes one more value into a hash.
template <class Value>
constexpr void Mix(std::size_t& hash, Value value) {
    hash = (hash ^ static_cast<std::size_t>(value)) * 0x9E3779B97F4A7C15ull;
    hash ^= hash >> 29;
}

} // namespace korvane::doc
