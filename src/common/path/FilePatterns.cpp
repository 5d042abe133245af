#include "common/path/FilePatterns.h"

#include "common/text/CaseFold.h"
#include "common/text/FoldedOrder.h"

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

void SortRunsByCase(std::vector<Text>& names) {
    for (auto first = names.begin(); first != names.end();) {
        const auto last = std::find_if(first + 1, names.end(),
                                       [&](const Text& name) { return !EqualIgnoringCase(name, *first); });
        std::sort(first, last);
        first = last;
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

void SortNames(std::vector<Text>& names) {
    const std::vector<TextView> views(names.begin(), names.end());
    std::vector<Text> sorted;
    sorted.reserve(names.size());
    for (const std::uint32_t index : FoldedOrder(views))
        sorted.push_back(std::move(names[index]));
    names = std::move(sorted);
    SortRunsByCase(names);
}

} // namespace korvane
