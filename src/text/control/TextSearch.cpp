#include "text/control/TextSearch.h"

#include "common/text/CaseFold.h"

namespace korvane {

namespace {

/// Letters with a capital form, digits and the underscore.
bool InWord(char16_t character) {
    return ToUpper(character) != ToLower(character) || (character >= u'0' && character <= u'9') ||
           character == u'_' || character == u'ß';
}

bool IsWord(TextView text, std::size_t at, std::size_t length) {
    const std::size_t end = at + length;
    return (at == 0 || !InWord(text[at - 1])) && (end >= text.size() || !InWord(text[end]));
}

/// The text as it is compared.
class Compared {
public:
    Compared(const TextSearch& search, TextView text)
        : folded_(search.matchCase ? Text() : ToLower(text)),
          pattern_(search.matchCase ? search.pattern : ToLower(search.pattern)),
          text_(search.matchCase ? text : TextView(folded_)),
          wholeWords_(search.wholeWords) {}

    std::size_t After(std::size_t from) const {
        std::size_t at = text_.find(pattern_, from);
        while (at != TextView::npos && !Counts(at))
            at = text_.find(pattern_, at + 1);
        return at;
    }

    std::size_t Before(std::size_t end) const {
        std::size_t at =
            end < pattern_.size() ? TextView::npos : text_.rfind(pattern_, end - pattern_.size());
        while (at != TextView::npos && !Counts(at))
            at = at == 0 ? TextView::npos : text_.rfind(pattern_, at - 1);
        return at;
    }

private:
    bool Counts(std::size_t at) const { return !wholeWords_ || IsWord(text_, at, pattern_.size()); }

    Text folded_;
    Text pattern_;
    TextView text_;
    bool wholeWords_;
};

} // namespace

std::optional<std::size_t> TextSearch::Find(TextView text, std::size_t from) const {
    if (pattern.empty()) return std::nullopt;
    const Compared compared(*this, text);
    const std::size_t at = up ? compared.Before(from) : compared.After(from);
    return at == TextView::npos ? std::nullopt : std::optional(at);
}

std::vector<std::size_t> TextSearch::FindAll(TextView text) const {
    std::vector<std::size_t> places;
    if (pattern.empty()) return places;
    const Compared compared(*this, text);
    for (std::size_t at = compared.After(0); at != TextView::npos; at = compared.After(at + pattern.size()))
        places.push_back(at);
    return places;
}

bool TextSearch::Is(TextView text) const {
    return matchCase ? text == TextView(pattern) : EqualIgnoringCase(text, pattern);
}

} // namespace korvane
