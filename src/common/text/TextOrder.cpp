#include "common/text/TextOrder.h"

#include "common/text/CaseFold.h"

namespace korvane {

namespace {

/// The letters without accents of the characters from U+00C0 on.
constexpr TextView kBaseLetters = u"AAAAAAACEEEEIIIIDNOOOOO×OUUUUYTsaaaaaaaceeeeiiiidnooooo÷ouuuuyty"
                                  u"AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLl"
                                  u"NnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
constexpr char16_t kFirstAccented = 0xC0;
/// Separates the parts of a key. No character comes before it.
constexpr char16_t kNextPart = 0;

bool IsDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

char16_t BaseLetter(char16_t character) {
    const std::size_t place = static_cast<std::size_t>(character) - kFirstAccented;
    return ToUpper(character >= kFirstAccented && place < kBaseLetters.size() ? kBaseLetters[place]
                                                                              : character);
}

/// Appends the digits at `at` so that longer numbers come after shorter ones, and returns where they end.
std::size_t AppendNumber(Text& key, TextView text, std::size_t at) {
    const std::size_t end = std::min(text.find_first_not_of(u"0123456789", at), text.size());
    const std::size_t begin = std::min(text.find_first_not_of(u'0', at), end);
    key += u'0';
    key += static_cast<char16_t>(std::min<std::size_t>(end - begin, 0xFFFF));
    key.append(text.substr(begin, end - begin));
    return end;
}

/// Two keys are compared by their base letters and numbers first, then by accents, then by case.
Text KeyOf(TextView text) {
    Text key;
    for (std::size_t at = 0; at < text.size();) {
        if (IsDigit(text[at])) {
            at = AppendNumber(key, text, at);
        } else {
            key += BaseLetter(text[at++]);
        }
    }
    key += kNextPart;
    for (const char16_t character : text)
        key += ToUpper(character);
    key += kNextPart;
    // Small letters come before capital ones.
    for (const char16_t character : text)
        key += ToLower(character) == character ? u'a' : u'b';
    return key;
}

} // namespace

std::vector<int> PlainTextOrder::RanksOf(const std::vector<Text>& texts) const {
    std::vector<Text> keys(texts.size());
    std::ranges::transform(texts, keys.begin(), KeyOf);
    return RanksByKeys(keys);
}

} // namespace korvane
