#include "platform/qt/text/ListMarks.h"

#include "common/number/Number.h"

namespace korvane {

namespace {

constexpr char16_t kBullets[] = {u'•', u'◦', u'▪'};
constexpr int kLetters = 26;
/// Longer rows of letters and Roman numbers than those of this number aren't readable.
constexpr int kMost = 3999;

struct Roman {
    int value;
    TextView letters;
};
constexpr Roman kRoman[] = {{1000, u"m"}, {900, u"cm"}, {500, u"d"}, {400, u"cd"}, {100, u"c"},
                            {90, u"xc"},  {50, u"l"},   {40, u"xl"}, {10, u"x"},   {9, u"ix"},
                            {5, u"v"},    {4, u"iv"},   {1, u"i"}};

Text RomanText(int number) {
    Text text;
    for (const Roman& roman : kRoman) {
        for (; number >= roman.value; number -= roman.value)
            text += roman.letters;
    }
    return text;
}

/// The 27th is "aa", the 28th "bb".
Text LetterText(int number) {
    const auto letter = static_cast<char16_t>(u'a' + (number - 1) % kLetters);
    return Text(static_cast<std::size_t>((number - 1) / kLetters + 1), letter);
}

Text Upper(Text text) {
    for (char16_t& letter : text)
        letter = static_cast<char16_t>(letter - u'a' + u'A');
    return text;
}

Text NumberIn(doc::ListKind kind, int number) {
    if (number < 1 || number > kMost) return NumberText(number);
    switch (kind) {
    case doc::ListKind::LowerLetter:
        return LetterText(number);
    case doc::ListKind::UpperLetter:
        return Upper(LetterText(number));
    case doc::ListKind::LowerRoman:
        return RomanText(number);
    case doc::ListKind::UpperRoman:
        return Upper(RomanText(number));
    default:
        return NumberText(number);
    }
}

} // namespace

Text MarkText(const doc::ListMark& mark, int number) {
    if (mark.kind == doc::ListKind::Bullet) return Text(1, kBullets[mark.level % std::size(kBullets)]);
    return NumberIn(mark.kind, number) + u".";
}

} // namespace korvane
