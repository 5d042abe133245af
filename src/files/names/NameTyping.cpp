#include "files/names/NameTyping.h"

#include "common/path/PathStyle.h"
#include "common/text/CaseFold.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr std::array<TextView, 8> kSmallInNewFolders{u"and", u"or", u"in", u"an", u"of", u"on", u"the", u"a"};
constexpr std::array<TextView, 16> kSmallInNewNames{u"a",   u"about",   u"an", u"and", u"both", u"by",
                                                    u"for", u"in",      u"of", u"on",  u"or",   u"over",
                                                    u"the", u"through", u"to", u"with"};

struct CycledExtension {
    TextView extension;
    TextView next;
    TextView pattern;
};
constexpr std::array<CycledExtension, 3> kCycle{{
    {u".docx", u".txt", u"*.docx"},
    {u".txt", u".rtf", u"*.txt"},
    {u".rtf", u".docx", u"*.rtf"},
}};

const CycledExtension* FindInCycle(TextView name) {
    const auto* found = std::ranges::find_if(
        kCycle, [name](const CycledExtension& each) { return HasExtension(name, each.extension); });
    return found == kCycle.end() ? nullptr : found;
}

} // namespace

std::span<const TextView> SmallWordsOfNewFolders() {
    return kSmallInNewFolders;
}

std::span<const TextView> SmallWordsOfNewNames() {
    return kSmallInNewNames;
}

Text UnderscoreCaps(TextView phrase, std::span<const TextView> smallWords) {
    Text name(Trim(phrase));
    if (!name.empty()) name[0] = ToUpper(name[0]);
    for (std::size_t blank = name.find(u' '); blank != Text::npos; blank = name.find(u' ', blank)) {
        name[blank] = u'_';
        const TextView word = TextView(name).substr(blank + 1, name.find(u' ', blank) - blank - 1);
        const bool isSmall = std::ranges::find(smallWords, word) != smallWords.end();
        if (!word.empty() && !isSmall) name[blank + 1] = ToUpper(name[blank + 1]);
    }
    return name;
}

Text WithDate(TextView name, const DateTime& today, const DateNames& names) {
    Text dated(name);
    const std::size_t point = std::min(name.rfind(u'.'), name.size());
    return dated.insert(point, u"_(" + FormatDate(today, u"dd-mmm-yyyy", names) + u")");
}

Text WithNextExtension(TextView name) {
    if (name.find(u'.') == TextView::npos) return Text(name) + u".txt";
    const CycledExtension* found = FindInCycle(name);
    if (found == nullptr) return Text(name);
    return Text(Left(name, name.size() - found->extension.size())) + Text(found->next);
}

Text AsDocx(TextView name) {
    return Text(name.substr(0, name.find(u'.'))) + u".docx";
}

Text Tidied(TextView name) {
    Text tidy(name);
    const std::size_t lastPoint = name.rfind(u'.');
    for (std::size_t at = 0; at < tidy.size(); ++at) {
        const bool replaced = TextView(u" .,;:").find(tidy[at]) != TextView::npos;
        if (replaced && at != lastPoint) tidy[at] = u'_';
    }
    return tidy;
}

TextView PatternOf(TextView name) {
    const CycledExtension* found = FindInCycle(name);
    return found == nullptr ? TextView() : found->pattern;
}

} // namespace korvane
