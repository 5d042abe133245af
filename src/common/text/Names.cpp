#include "common/text/Names.h"

#include "common/text/CaseFold.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr TextView kForbidden = u"\\/?:*\"><|";

// A file name keeps "both" small, and a text "is", "how" and "from". Kept for compatibility:
// names-small-words.
constexpr std::array<TextView, 16> kSmallInFileNames{u"and",   u"or",   u"in",   u"an",     u"to",  u"by",
                                                     u"of",    u"on",   u"the",  u"a",      u"for", u"over",
                                                     u"about", u"with", u"both", u"through"};
constexpr std::array<TextView, 23> kSmallInTexts{
    u"a",   u"an",  u"or",  u"on",  u"of",  u"in",   u"to",   u"by",   u"as",   u"is",    u"at",     u"and",
    u"are", u"how", u"why", u"the", u"for", u"with", u"from", u"into", u"over", u"about", u"through"};

bool EndsFileNameWord(char16_t character) {
    return character == u' ' || character == u'_';
}

/// The word of a file name that starts at the index. Small words count only as they are listed: "The" is
/// none.
bool StartsSmallWord(TextView text, std::size_t at) {
    const auto end =
        std::find_if(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), EndsFileNameWord);
    const TextView word = text.substr(at, static_cast<std::size_t>(end - text.begin()) - at);
    return std::ranges::find(kSmallInFileNames, word) != kSmallInFileNames.end();
}

void SetTitleCapitals(Text& text) {
    // The loop ends two places early, so a last word of one letter is left alone. Kept for compatibility:
    // names-last-letter.
    for (std::size_t i = 0; i + 2 < text.size(); ++i) {
        if (EndsFileNameWord(text[i]) && !StartsSmallWord(text, i + 1)) text[i + 1] = ToUpper(text[i + 1]);
    }
    if (!text.empty()) text[0] = ToUpper(text[0]);
}

/// A small word counts only with a blank right after it. Before a comma and at the end it gets a capital.
/// Kept for compatibility: names-small-words.
bool SmallWordAndBlankAt(TextView text, std::size_t at) {
    const TextView rest = text.substr(at);
    return std::ranges::any_of(kSmallInTexts, [rest](TextView word) {
        return rest.size() > word.size() && rest[word.size()] == u' ' &&
               EqualIgnoringCase(rest.substr(0, word.size()), word);
    });
}

bool Contains(TextView characters, char16_t character) {
    return characters.find(character) != TextView::npos;
}

} // namespace

Text MakeFileName(Text& text, NameCase nameCase) {
    text = Text(Trim(text));
    if (nameCase == NameCase::Title) SetTitleCapitals(text);
    Text name = text;
    std::ranges::replace(name, u' ', u'_');
    return name;
}

Text SmartUpper(TextView text, char16_t before) {
    Text result(text);
    if (text.empty()) return result;
    if (Contains(u"\n \t", before)) result[0] = ToUpper(text[0]);
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (Contains(u" \t,;.:-", text[i - 1]) && !SmallWordAndBlankAt(text, i)) result[i] = ToUpper(text[i]);
    }
    return result;
}

/// The first of the list, wherever it is in the name. Kept for compatibility: forbidden-character-order.
std::optional<char16_t> ForbiddenCharacter(TextView name) {
    const auto* found = std::ranges::find_if(kForbidden, [name](char16_t c) { return Contains(name, c); });
    if (found == kForbidden.end()) return std::nullopt;
    return *found;
}

bool IsWordBreak(char16_t character) {
    return Contains(u" \t\n\f\r", character) || Contains(kTitlePunctuation, character);
}

TextView CutAtNul(TextView text) {
    return text.substr(0, text.find(u'\0'));
}

} // namespace korvane
