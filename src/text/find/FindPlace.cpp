#include "text/find/FindPlace.h"

#include "common/text/CaseFold.h"
#include "text/find/CandidateSearch.h"

namespace korvane {

namespace {

std::optional<Forms> FormsOf(char16_t character, LetterCase letterCase) {
    if (letterCase == LetterCase::Counts) return Forms{character, character};
    const Text alike = LettersLike(character);
    if (alike.size() > 2) return std::nullopt;
    return Forms{alike.front(), alike.back()};
}

/// Runs First or Last of the search on the places where the part can begin, from `from` on.
template <class Way>
std::optional<std::size_t> Find(TextView text, TextView part, std::size_t from, LetterCase letterCase,
                                const Way& way) {
    if (part.empty() || text.size() < part.size() || from > text.size() - part.size()) return std::nullopt;
    std::vector<std::optional<Forms>> forms;
    for (const char16_t character : part)
        forms.push_back(FormsOf(character, letterCase));
    const CandidateSearch search(forms, text);
    const auto begins = [&](std::size_t place) {
        const TextView there = text.substr(place, part.size());
        return letterCase == LetterCase::Counts ? there == part : EqualIgnoringCase(there, part);
    };
    const std::size_t place = way(search, text.size() - part.size() + 1, begins);
    return place == CandidateSearch::kNone ? std::nullopt : std::optional(place);
}

} // namespace

std::optional<std::size_t> FindDown(TextView text, TextView part, std::size_t start, LetterCase letterCase) {
    return Find(text, part, start, letterCase,
                [&](const CandidateSearch& search, std::size_t to, const auto& begins) {
                    return search.First(text, start, to, begins);
                });
}

std::optional<std::size_t> FindUp(TextView text, TextView part, std::size_t end, LetterCase letterCase) {
    const TextView before = text.substr(0, end);
    return Find(before, part, 0, letterCase,
                [&](const CandidateSearch& search, std::size_t to, const auto& begins) {
                    return search.Last(before, 0, to, begins);
                });
}

} // namespace korvane
