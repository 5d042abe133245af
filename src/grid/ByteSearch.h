#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvane {

/// A run of bytes to search for, made for long stretches that mostly don't contain it.
class BytePattern {
public:
    /// `sample` is some of the bytes that will be searched: it decides which bytes of the pattern are
    /// compared first, those that rule out the most. Every sample gives the same results.
    BytePattern(std::string pattern, std::string_view sample);

    const std::string& Bytes() const { return pattern_; }
    bool IsIn(std::string_view bytes) const;

private:
    bool IsInByRareByte(std::string_view bytes) const;
    bool IsInByBlocks(std::string_view bytes) const;
    bool BeginsIn(const char* block) const;

    std::string pattern_;
    // Two places in the pattern, that of the rarest byte first, and whether that byte hardly ever occurs.
    std::size_t rare_ = 0;
    std::size_t second_ = 0;
    bool hardlyOccurs_ = false;
};

} // namespace korvane
