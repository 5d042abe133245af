#pragma once

#include <cstddef>
#include <cstdint>

namespace korvane {

/// The place of the text of one cell, in eight bytes. A table at the limit holds 786,408 of them, so nothing
/// else is kept for a cell. A handle of all zeros is an empty text.
class TextHandle {
public:
    enum class Kind : std::uint8_t {
        Adopted, ///< bytes of the file the table was loaded from
        Bytes,   ///< bytes written since
        Wide,    ///< characters, some of which have no byte
        Large,   ///< too long for a handle: the offset is the number of an entry that holds place and length
    };

    static constexpr unsigned kLengthBits = 22;
    static constexpr unsigned kOffsetBits = 40;
    static constexpr std::size_t kMaxLength = (std::size_t{1} << kLengthBits) - 1;
    static constexpr std::uint64_t kMaxOffset = (std::uint64_t{1} << kOffsetBits) - 1;

    constexpr TextHandle() = default;
    constexpr TextHandle(Kind kind, std::uint64_t offset, std::size_t length)
        : bits_(offset << (kLengthBits + kKindBits) | length << kKindBits |
                static_cast<std::uint64_t>(kind)) {}

    constexpr bool IsEmpty() const { return bits_ == 0; }
    constexpr Kind GetKind() const { return static_cast<Kind>(bits_ & ((1u << kKindBits) - 1)); }
    constexpr std::size_t Offset() const { return bits_ >> (kLengthBits + kKindBits); }
    constexpr std::size_t Length() const { return bits_ >> kKindBits & kMaxLength; }

private:
    static constexpr unsigned kKindBits = 2;
    static_assert(kLengthBits + kOffsetBits + kKindBits == 64);

    std::uint64_t bits_ = 0;
};

static_assert(sizeof(TextHandle) == 8);

} // namespace korvane
