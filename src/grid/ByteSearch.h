#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvane {

/// A run of bytes to look for, made for long stretches in which it mostly doesn't stand.
class BytePattern {
public:
    /// `sample` is some of the bytes that will be searched: by it the bytes of the pattern are chosen that
    /// rule out the most. Any sample gives the same finds.
    BytePattern(std::string pattern, std::string_view sample);

    const std::string& Bytes() const { return pattern_; }
    bool IsIn(std::string_view bytes) const;

private:
    bool IsInByRareByte(std::string_view bytes) const;
    bool IsInByBlocks(std::string_view bytes) const;
    bool BeginsIn(const char* block) const;

    std::string pattern_;
    // Two places in the pattern, that of the rarest byte first, and where the byte hardly ever occurs.
    std::size_t rare_ = 0;
    std::size_t second_ = 0;
    bool hardlyOccurs_ = false;
};

} // namespace korvane
