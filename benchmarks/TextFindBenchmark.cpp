// Searches in a text of ten million characters that doesn't contain what is searched. The floor is one memmem
// over its bytes.

#include "Contest.h"
#include "ThreadTime.h"
#include "text/find/FindPlace.h"
#include "text/find/WordSearch.h"

#include <cstring>
#include <random>
#include <string>

namespace korvane::bench {

namespace {

constexpr std::size_t kSize = 10'000'000;

const CodePage kPage = CodePage::Windows1252();

constexpr TextView kWords[] = {u"the",   u"of",    u"and",     u"letter",  u"house", u"garden",    u"some",
                               u"those", u"there", u"another", u"written", u"early", u"caf\u00E9", u"between",
                               u"year",  u"Other", u"quite",   u"Thomas",  u"I",     u"without"};

/// Lines of words, the same on every machine.
Text LongText() {
    std::mt19937 random(3);
    Text text;
    text.reserve(kSize + 20);
    while (text.size() < kSize) {
        text += kWords[random() % std::size(kWords)];
        text += random() % 12 == 0 ? kCrLf : TextView(u" ");
    }
    return text;
}

struct Texts {
    Text text = LongText();
    std::string bytes = kPage.ToBytes(text);
};

const Texts& Both() {
    static const Texts texts;
    return texts;
}

template <class Work>
void Compare(benchmark::State& state, TextView wanted, const Work& work) {
    const std::string pattern = kPage.ToBytes(wanted);
    const std::string& bytes = Both().bytes;
    Contest contest(state);
    for ([[maybe_unused]] auto _ : state) {
        const double least = SecondsOf([&] {
            benchmark::DoNotOptimize(memmem(bytes.data(), bytes.size(), pattern.data(), pattern.size()));
        });
        contest.Round(least, SecondsOf([&] { benchmark::DoNotOptimize(work(Both().text)); }));
    }
}

void FindInText(benchmark::State& state, TextView wanted, LetterCase letterCase) {
    Compare(state, wanted, [&](TextView text) { return FindDown(text, wanted, 0, letterCase); });
}

void FindInTextUpward(benchmark::State& state, TextView wanted, LetterCase letterCase) {
    Compare(state, wanted, [&](TextView text) { return FindUp(text, wanted, text.size(), letterCase); });
}

void FindWord(benchmark::State& state, TextView wanted, LetterCase letterCase) {
    const Delimiters delimiters = MakeDelimiterTable(u".,;", kPage);
    Compare(state, wanted, [&](TextView text) {
        return WordSearch(text, wanted, letterCase == LetterCase::Ignored, kPage).NextWord(0, delimiters);
    });
}

constexpr TextView kRare = u"zigzag";
constexpr TextView kCommon = u"thereto";
constexpr TextView kTwo = u"zz";
constexpr auto kExact = LetterCase::Counts;
constexpr auto kAnyCase = LetterCase::Ignored;

#define KORVANE_FIND(find, name, wanted, letterCase)                                                         \
    BENCHMARK_CAPTURE(find, name, wanted, letterCase)                                                        \
        ->UseManualTime()                                                                                    \
        ->Unit(benchmark::kMillisecond)                                                                      \
        ->Iterations(31)

KORVANE_FIND(FindInText, rare_letters, kRare, kExact);
KORVANE_FIND(FindInText, common_letters, kCommon, kExact);
KORVANE_FIND(FindInText, two_letters, kTwo, kExact);
KORVANE_FIND(FindInText, rare_letters_any_case, kRare, kAnyCase);
KORVANE_FIND(FindInText, common_letters_any_case, kCommon, kAnyCase);
KORVANE_FIND(FindInText, two_letters_any_case, kTwo, kAnyCase);
KORVANE_FIND(FindInTextUpward, common_letters, kCommon, kExact);
KORVANE_FIND(FindInTextUpward, common_letters_any_case, kCommon, kAnyCase);
KORVANE_FIND(FindWord, rare_letters, kRare, kExact);
KORVANE_FIND(FindWord, common_letters, kCommon, kExact);
KORVANE_FIND(FindWord, rare_letters_any_case, kRare, kAnyCase);
KORVANE_FIND(FindWord, common_letters_any_case, kCommon, kAnyCase);

} // namespace

} // namespace korvane::bench
