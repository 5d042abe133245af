#include "text/find/WordSearch.h"

namespace korvane {

namespace {

constexpr TextView kAlways = u"\r\n\f\t ";
constexpr unsigned char kSmall = 32;

bool IsAsciiLetter(unsigned char byte) {
    const unsigned char small = byte | kSmall;
    return small >= 'a' && small <= 'z';
}

/// The characters that have the byte, as far as two tell them.
std::optional<Forms> FormsOf(unsigned char byte, bool ignoreCase, const CodePage& page) {
    if (byte == static_cast<unsigned char>(CodePage::kSubstitute)) return std::nullopt;
    if (!ignoreCase || !IsAsciiLetter(byte)) return Forms{page.Decode(byte), page.Decode(byte)};
    const auto small = static_cast<unsigned char>(byte | kSmall);
    return Forms{small, static_cast<char16_t>(small - kSmall)};
}

std::vector<std::optional<Forms>> FormsOf(std::string_view pattern, bool ignoreCase, const CodePage& page) {
    std::vector<std::optional<Forms>> forms;
    for (const char byte : pattern)
        forms.push_back(FormsOf(static_cast<unsigned char>(byte), ignoreCase, page));
    return forms;
}

} // namespace

Delimiters MakeDelimiterTable(TextView characters, const CodePage& page) {
    Delimiters delimiters{};
    for (const TextView part : {characters, kAlways}) {
        for (const char16_t character : part)
            if (const auto byte = page.Encode(character)) delimiters[*byte] = true;
    }
    return delimiters;
}

WordSearch::WordSearch(TextView text, TextView pattern, bool ignoreCase, const CodePage& page)
    : text_(text),
      page_(page),
      ignoreCase_(ignoreCase),
      pattern_(page.ToBytes(pattern)),
      search_(FormsOf(pattern_, ignoreCase, page), text) {
    for (std::size_t byte = 0; byte < inPattern_.size(); ++byte) {
        for (const char own : pattern_) {
            const auto wanted = static_cast<unsigned char>(own);
            const bool folded = ignoreCase_ && IsAsciiLetter(wanted) && (byte | kSmall) == (wanted | kSmall);
            if (folded || byte == wanted) inPattern_[byte] = true;
        }
    }
}

unsigned char WordSearch::ByteAt(std::size_t place) const {
    return page_.Encode(text_[place]).value_or(static_cast<unsigned char>(CodePage::kSubstitute));
}

bool WordSearch::Same(std::size_t place, std::size_t inPattern) const {
    const unsigned char byte = ByteAt(place);
    const auto wanted = static_cast<unsigned char>(pattern_[inPattern]);
    if (ignoreCase_ && IsAsciiLetter(wanted)) return (byte | kSmall) == (wanted | kSmall);
    return byte == wanted;
}

bool WordSearch::Begins(std::size_t place) const {
    for (std::size_t i = 0; i < pattern_.size(); ++i)
        if (!Same(place + i, i)) return false;
    return true;
}

/// Where a scan from `start` arrives if it goes on after each character that doesn't match: at the hit, or at
/// a place after it if the scan has passed over it. There is no other hit before.
std::size_t WordSearch::ReachedFrom(std::size_t start, std::size_t hit) const {
    // Nothing that the pattern doesn't contain is within a part of it, so a scan can't pass over what is
    // after it.
    std::size_t place = hit;
    while (place > start && inPattern_[ByteAt(place - 1)])
        --place;
    while (place < hit) {
        std::size_t matched = 0;
        while (Same(place + matched, matched))
            ++matched;
        place += matched + 1;
    }
    return place;
}

std::ptrdiff_t WordSearch::SearchBytes(std::ptrdiff_t start) const {
    if (text_.size() < pattern_.size()) return -1;
    const std::size_t end = text_.size() - pattern_.size();
    const auto begins = [this](std::size_t place) { return Begins(place); };
    auto from = static_cast<std::size_t>(start);
    for (;;) {
        const std::size_t hit =
            from > end ? CandidateSearch::kNone : search_.First(text_, from, end + 1, begins);
        if (hit == CandidateSearch::kNone || hit == end) return -1;
        from = ReachedFrom(from, hit);
        if (from == hit) return static_cast<std::ptrdiff_t>(hit);
    }
}

bool WordSearch::IsWholeWord(std::ptrdiff_t before, const Delimiters& delimiters) const {
    // At the second place too, nothing has to be in front. Kept for compatibility: second-place-begins-word.
    if (before >= 1 && !delimiters[ByteAt(static_cast<std::size_t>(before))]) return false;
    const std::size_t after = static_cast<std::size_t>(before + 1) + pattern_.size();
    return after >= text_.size() || delimiters[ByteAt(after)];
}

std::ptrdiff_t WordSearch::NextWord(std::ptrdiff_t start, const Delimiters& delimiters) const {
    for (;;) {
        const std::ptrdiff_t hit = SearchBytes(start);
        if (hit < 0 || IsWholeWord(hit - 1, delimiters)) return hit;
        start = hit + static_cast<std::ptrdiff_t>(pattern_.size());
    }
}

} // namespace korvane
