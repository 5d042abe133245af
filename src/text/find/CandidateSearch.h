#pragma once

#include "common/text/Text.h"

#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <vector>

namespace korvane {

/// The two forms of a character that count as the same, capital and small; the same one twice where there is
/// only one.
struct Forms {
    char16_t one;
    char16_t other;

    bool Have(char16_t character) const { return character == one || character == other; }
};

/// Looks for the places at which a pattern can begin, many at a time. It is made for long texts that mostly
/// don't contain the pattern: two characters of the pattern rule out most places.
class CandidateSearch {
public:
    /// For each character of the pattern its forms, or nothing when two don't tell it. `sample` is some of
    /// the text that will be searched: it decides which characters are compared. Every sample gives the same
    /// results.
    CandidateSearch(const std::vector<std::optional<Forms>>& pattern, TextView sample);

    static constexpr std::size_t kNone = TextView::npos;

    /// The first and the last place from `from` on, and before `to`, at which the pattern begins according to
    /// `begins`. There are as many characters in the text after each place as in the pattern.
    template <class Begins>
    std::size_t First(TextView text, std::size_t from, std::size_t to, const Begins& begins) const;
    template <class Begins>
    std::size_t Last(TextView text, std::size_t from, std::size_t to, const Begins& begins) const;

private:
    struct Probe {
        std::size_t at = 0;
        Forms forms{};
    };

    static constexpr std::size_t kBlock = 64;
    using Flags = std::array<std::uint16_t, kBlock>;
    using Words = std::array<std::uint64_t, kBlock / 4>;

    /// 1 for each place of the block at which the pattern can begin.
    Flags Judge(const char16_t* block) const;
    static bool Any(const Words& words);

    /// Whether nothing is known of the pattern, so that every place has to be looked at.
    bool blind_ = true;
    Probe rare_;
    Probe second_;
};

inline bool CandidateSearch::Any(const Words& words) {
    std::uint64_t any = 0;
    for (const std::uint64_t word : words)
        any |= word;
    return any != 0;
}

template <class Begins>
std::size_t CandidateSearch::First(TextView text, std::size_t from, std::size_t to,
                                   const Begins& begins) const {
    for (; !blind_ && from + kBlock <= to; from += kBlock) {
        const Flags flags = Judge(text.data() + from);
        if (!Any(std::bit_cast<Words>(flags))) continue;
        for (std::size_t i = 0; i < kBlock; ++i)
            if (flags[i] != 0 && begins(from + i)) return from + i;
    }
    for (; from < to; ++from)
        if (begins(from)) return from;
    return kNone;
}

template <class Begins>
std::size_t CandidateSearch::Last(TextView text, std::size_t from, std::size_t to,
                                  const Begins& begins) const {
    for (; !blind_ && from + kBlock <= to; to -= kBlock) {
        const Flags flags = Judge(text.data() + to - kBlock);
        if (!Any(std::bit_cast<Words>(flags))) continue;
        for (std::size_t i = kBlock; i-- > 0;)
            if (flags[i] != 0 && begins(to - kBlock + i)) return to - kBlock + i;
    }
    while (to-- > from)
        if (begins(to)) return to;
    return kNone;
}

} // namespace korvane
