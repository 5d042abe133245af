#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace korvane {

/// The places of one byte in a text, one after the other. It looks at 64 bytes at once, so that places that
/// are near each other cost little.
class BytePositions {
public:
    /// The text must outlive this object. Places before `from` are left out.
    BytePositions(std::string_view text, char byte, std::size_t from = 0)
        : text_(text), byte_(byte), read_(from) {}

    /// The next place, or the size of the text when there is no more.
    std::size_t Next() {
        while (found_ == 0) {
            if (read_ >= text_.size()) return text_.size();
            ReadBlock();
        }
        const auto bit = static_cast<std::size_t>(std::countr_zero(found_));
        found_ &= found_ - 1;
        return read_ - kBlock + bit;
    }

private:
    static constexpr std::size_t kBlock = 64;

    void ReadBlock();

    std::string_view text_;
    char byte_;
    /// Where the next block begins.
    std::size_t read_;
    /// A bit for each place in the last block that hasn't been given yet.
    std::uint64_t found_ = 0;
};

} // namespace korvane
