#include "common/path/FilePatterns.h"

#include "common/text/CaseFold.h"

#include <algorithm>

namespace korvane {

namespace {

bool SameOrAny(char16_t wanted, char16_t character) {
    return wanted == u'?' || ToUpper(wanted) == ToUpper(character);
}

bool Matches(TextView name, TextView pattern) {
    std::size_t at = 0;
    std::size_t wanted = 0;
    // Where to try again with the last "*" taking one character more.
    std::size_t star = TextView::npos;
    std::size_t retry = 0;
    while (at < name.size()) {
        if (wanted < pattern.size() && pattern[wanted] == u'*') {
            star = wanted++;
            retry = at;
        } else if (wanted < pattern.size() && SameOrAny(pattern[wanted], name[at])) {
            ++wanted;
            ++at;
        } else if (star != TextView::npos) {
            wanted = star + 1;
            at = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', wanted) == TextView::npos;
}

/// Whether the test holds for one of the patterns.
template <class TestT>
bool AnyPattern(TextView patterns, TestT test) {
    for (;;) {
        const std::size_t end = std::min(patterns.find(u';'), patterns.size());
        if (test(Trim(patterns.substr(0, end)))) return true;
        if (end == patterns.size()) return false;
        patterns.remove_prefix(end + 1);
    }
}

} // namespace

bool MatchesPatterns(TextView name, TextView patterns) {
    return AnyPattern(patterns, [name](TextView pattern) {
        return pattern == u"*.*" || (!pattern.empty() && Matches(name, pattern));
    });
}

bool AskForPrograms(TextView patterns) {
    return AnyPattern(patterns, [](TextView pattern) { return EqualIgnoringCase(pattern, u"*.exe"); });
}

bool ComesBefore(TextView a, TextView b) {
    const auto [atA, atB] = std::ranges::mismatch(
        a, b, [](char16_t x, char16_t y) { return x == y || ToUpper(x) == ToUpper(y); });
    if (atA == a.end() && atB == b.end()) return a < b;
    if (atA == a.end() || atB == b.end()) return atA == a.end();
    return ToUpper(*atA) < ToUpper(*atB);
}

} // namespace korvane
