#pragma once

#include "common/text/CodePage.h"
#include "common/text/Text.h"
#include "text/find/CandidateSearch.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace korvane {

/// Whether the character of a byte ends a word.
using Delimiters = std::array<bool, 257>;

/// The table for these characters. Line ends, form feeds, tabs and spaces always end words.
Delimiters MakeDelimiterTable(TextView characters, const CodePage& page);

/// A search for a word in a text as the bytes of the code page, one for each character. Places count from 0.
/// The bytes are made only where they are looked at, so a long text isn't copied.
class WordSearch {
public:
    /// The text outlives the object. The pattern isn't empty.
    WordSearch(TextView text, TextView pattern, bool ignoreCase, const CodePage& page);

    /// The place of the pattern from `start` on; -1 when there is none. A hit that ends with the text isn't
    /// found, and a part of the pattern can hide a hit that begins in it. Kept for compatibility:
    /// word-search-passes-hits.
    std::ptrdiff_t SearchBytes(std::ptrdiff_t start) const;
    /// Whether words end on both sides of a hit; `before` is the place before it.
    bool IsWholeWord(std::ptrdiff_t before, const Delimiters& delimiters) const;
    /// The hit from `start` on that is a whole word; -1 when there is none.
    std::ptrdiff_t NextWord(std::ptrdiff_t start, const Delimiters& delimiters) const;

private:
    unsigned char ByteAt(std::size_t place) const;
    /// Whether the byte is that of the pattern.
    bool Same(std::size_t place, std::size_t inPattern) const;
    bool Begins(std::size_t place) const;
    std::size_t ReachedFrom(std::size_t start, std::size_t hit) const;

    TextView text_;
    CodePage page_;
    bool ignoreCase_;
    std::string pattern_;
    /// The bytes that can be within a hit.
    std::array<bool, 256> inPattern_{};
    CandidateSearch search_;
};

} // namespace korvane
