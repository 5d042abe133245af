#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace korvane::doc {

/// Takes what a writer makes, piece by piece.
using PieceTaker = std::function<void(std::string_view)>;

/// How much of a text a writer turns into bytes at once.
inline constexpr std::size_t kPieceOfText = std::size_t{64} << 10;

/// Passes on what has been collected if that is worth a piece.
inline void PassOn(std::string& collected, const PieceTaker& take) {
    if (collected.size() < kPieceOfText) return;
    take(collected);
    collected.clear();
}

/// How much of the text is its first piece. A character of two units isn't cut.
inline std::size_t LengthOfPiece(TextView text) {
    if (text.size() <= kPieceOfText) return text.size();
    const char16_t last = text[kPieceOfText - 1];
    return last >= 0xD800 && last < 0xDC00 ? kPieceOfText - 1 : kPieceOfText;
}

/// Calls `put` for the parts of a text.
template <class Put>
void ForEachPiece(TextView text, const Put& put) {
    while (text.size() > kPieceOfText) {
        const std::size_t length = LengthOfPiece(text);
        put(text.substr(0, length));
        text.remove_prefix(length);
    }
    put(text);
}

/// All that `write` gives to the taker that it gets.
template <class Write>
std::string Joined(const Write& write) {
    std::string all;
    write([&all](std::string_view piece) { all += piece; });
    return all;
}

} // namespace korvane::doc
