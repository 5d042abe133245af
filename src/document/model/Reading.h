#pragma once

#include "document/model/Document.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvane::doc {

/// How much a reader takes in. What goes beyond is left out, and the document keeps what came before.
struct Limits {
    std::size_t bytes = 64u << 20;
    std::size_t characters = 16'000'000;
    std::size_t depth = 200;
    std::size_t cells = 1'000'000;
    std::size_t columns = 64;
    std::size_t formats = 65'536;
    std::size_t imageBytes = 64u << 20;
};

/// What was wrong with a file. The worst is told.
enum class Trouble : std::uint8_t {
    None,
    /// Some of it made no sense and was left out.
    Damaged,
    /// It is more than a document can hold.
    OverLimit,
    /// It isn't of this format at all.
    WrongFormat,
};

/// What a reader made of a file. There is a document in any case.
struct ReadResult {
    Document document{};
    Trouble trouble = Trouble::None;
    /// Which sizes of the page the file told, in the order of `Page::Size`.
    std::array<bool, Page::kSizes> pageGiven{};

    void Tell(Trouble what) {
        if (what > trouble) trouble = what;
    }
};

} // namespace korvane::doc
