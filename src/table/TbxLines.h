#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace korvane {

/// The lines of a `.tbx` file, one after the other. A line ends at CR LF or at a lone CR; a lone LF belongs
/// to it. The line end isn't part of the line.
class TbxLines {
public:
    explicit TbxLines(std::string_view bytes) : bytes_(bytes) {}

    /// Whether the end of the file has been reached: already so when the last line has been read.
    bool AtEnd() const { return next_ == bytes_.size(); }
    /// Reads the next line. Not at the end.
    void Next();

    std::string_view Line() const { return bytes_.substr(begin_, end_ - begin_); }
    bool StartsWith(char mark) const { return begin_ < end_ && bytes_[begin_] == mark; }
    /// Where the line stands in the file, its end without the line end.
    std::size_t Begin() const { return begin_; }
    std::size_t End() const { return end_; }
    bool EndsInLoneCr() const { return next_ - end_ == 1; }

private:
    std::string_view bytes_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::size_t next_ = 0;
};

inline void TbxLines::Next() {
    begin_ = next_;
    const void* const cr = std::memchr(bytes_.data() + begin_, '\r', bytes_.size() - begin_);
    if (cr == nullptr) {
        end_ = next_ = bytes_.size();
        return;
    }
    end_ = static_cast<std::size_t>(static_cast<const char*>(cr) - bytes_.data());
    next_ = end_ + 1;
    if (next_ < bytes_.size() && bytes_[next_] == '\n') ++next_;
}

} // namespace korvane
