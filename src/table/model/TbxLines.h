#pragma once

#include "common/text/BytePositions.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace korvane {

/// The lines of a `.tbx` file, one after the other. A line ends at CR LF or at a lone CR, and its end isn't
/// part of it. A lone LF is part of the line.
class TbxLines {
public:
    /// A line has to begin at `from`.
    explicit TbxLines(std::string_view bytes, std::size_t from = 0)
        : bytes_(bytes), crs_(bytes, '\r', from), next_(from) {}

    /// Whether the end of the file has been reached. This is true as soon as the last line has been read.
    bool AtEnd() const { return next_ == bytes_.size(); }
    /// Reads the next line. Not at the end.
    void Next();

    std::string_view Line() const { return {bytes_.data() + begin_, end_ - begin_}; }
    /// The first byte of the line that was read, which is the CR of its end when it is empty.
    char First() const { return bytes_[begin_]; }
    /// Where the line begins and ends in the file. The line end isn't part of it.
    std::size_t Begin() const { return begin_; }
    std::size_t End() const { return end_; }
    bool EndsInLoneCr() const { return next_ - end_ == 1; }

private:
    std::string_view bytes_;
    /// Every CR ends a line, so each of them is asked for once.
    BytePositions crs_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::size_t next_;
};

inline void TbxLines::Next() {
    begin_ = next_;
    end_ = crs_.Next();
    next_ = std::min(end_ + 1, bytes_.size());
    if (end_ < next_ && next_ < bytes_.size() && bytes_[next_] == '\n') ++next_;
}

} // namespace korvane
