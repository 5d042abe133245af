#include "text/find/CandidateSearch.h"

#include <utility>

namespace korvane {

namespace {

constexpr std::size_t kSample = std::size_t{16} * 1024;

/// How often the characters of the sample occur. Those with the same last byte are counted together.
std::array<std::size_t, 256> CountCharacters(TextView sample) {
    std::array<std::size_t, 256> counts{};
    for (const char16_t character : sample.substr(0, kSample))
        ++counts[character & 0xFF];
    return counts;
}

} // namespace

CandidateSearch::CandidateSearch(const std::vector<std::optional<Forms>>& pattern, TextView sample) {
    const auto counts = CountCharacters(sample);
    const auto count = [&counts](const Forms& forms) {
        const std::size_t other = forms.other == forms.one ? 0 : counts[forms.other & 0xFF];
        return counts[forms.one & 0xFF] + other;
    };
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        if (!pattern[at]) continue;
        const Probe probe{at, *pattern[at]};
        if (std::exchange(blind_, false))
            rare_ = second_ = probe;
        else if (count(probe.forms) < count(rare_.forms))
            second_ = std::exchange(rare_, probe);
        else if (second_.at == rare_.at || count(probe.forms) < count(second_.forms))
            second_ = probe;
    }
}

/// Without a branch inside, the compiler makes vector instructions of it.
CandidateSearch::Flags CandidateSearch::Judge(const char16_t* block) const {
    const char16_t* const rare = block + rare_.at;
    const char16_t* const second = block + second_.at;
    const Forms rareForms = rare_.forms;
    const Forms secondForms = second_.forms;
    Flags flags;
    for (std::size_t i = 0; i < kBlock; ++i) {
        const bool first = (rare[i] == rareForms.one) | (rare[i] == rareForms.other);
        const bool next = (second[i] == secondForms.one) | (second[i] == secondForms.other);
        flags[i] = static_cast<std::uint16_t>(first & next);
    }
    return flags;
}

} // namespace korvane
