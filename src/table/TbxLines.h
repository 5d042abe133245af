#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace korvane {

/// The lines of a `.tbx` file, one after the other. A line ends at CR LF or at a lone CR, and its end isn't
/// part of it. A lone LF is part of the line.
class TbxLines {
public:
    explicit TbxLines(std::string_view bytes) : bytes_(bytes) {}

    /// Whether the end of the file has been reached. This is true as soon as the last line has been read.
    bool AtEnd() const { return next_ == bytes_.size(); }
    /// Reads the next line. Not at the end.
    void Next();

    std::string_view Line() const { return {bytes_.data() + begin_, end_ - begin_}; }
    bool StartsWith(char mark) const { return begin_ < end_ && bytes_[begin_] == mark; }
    /// Where the line begins and ends in the file. The line end isn't part of it.
    std::size_t Begin() const { return begin_; }
    std::size_t End() const { return end_; }
    bool EndsInLoneCr() const { return next_ - end_ == 1; }

private:
    std::size_t FindCr() const;

    std::string_view bytes_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::size_t next_ = 0;
};

/// Where the first CR is from `begin_` on, or the end of the file when there is none. Every second line is a
/// short mark. A search that is made for long texts takes longer to start than to search such a line, so the
/// first eight bytes are looked at as one number.
inline std::size_t TbxLines::FindCr() const {
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    const char* const line = bytes_.data() + begin_;
    const std::size_t left = bytes_.size() - begin_;
    if (std::uint64_t eight = 0; std::endian::native == std::endian::little && left >= sizeof eight) {
        std::memcpy(&eight, line, sizeof eight);
        // A byte that is CR becomes 0, and the lowest byte that is 0 gets its highest bit set.
        const std::uint64_t crIsZero = eight ^ (kOnes * '\r');
        const std::uint64_t found = (crIsZero - kOnes) & ~crIsZero & (kOnes << 7);
        if (found != 0) return begin_ + static_cast<std::size_t>(std::countr_zero(found)) / 8;
    }
    const void* const cr = std::memchr(line, '\r', left);
    return cr == nullptr ? bytes_.size()
                         : static_cast<std::size_t>(static_cast<const char*>(cr) - bytes_.data());
}

inline void TbxLines::Next() {
    begin_ = next_;
    end_ = FindCr();
    next_ = std::min(end_ + 1, bytes_.size());
    if (end_ < next_ && next_ < bytes_.size() && bytes_[next_] == '\n') ++next_;
}

} // namespace korvane
