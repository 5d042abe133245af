#include "files/lister/rows/ListPatterns.h"

#include "common/text/CaseFold.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr std::array<TextView, 13> kOffered{
    u"*.*",
    u"*.tbx",
    u"*.rtf",
    u"*.doc;*.docx",
    u"*.rtf;*.doc;*.docx",
    u"*.lst;*.txt;*.asc",
    u"*.pdf",
    u"*.htm;*.html;*.xhtml",
    u"*.exe",
    u"*.jpg;*.jpeg;*.bmp;*.png;*.gif;*.tif;*.ico",
    u"*.xls;*.xlsx",
    u"*.ppt;*.pptx",
    u"*.dbf",
};

constexpr std::array<TextView, 5> kCycle{u"*.*", u"*.rtf", u"*.docx", u"*.rtf;*.doc;*.docx", u"*.txt;*.lst"};

} // namespace

std::vector<Text> OfferedPatterns() {
    return {kOffered.begin(), kOffered.end()};
}

Text NextPattern(TextView pattern) {
    const auto* found = std::ranges::find(kCycle, TextView(ToLower(pattern)));
    if (found == kCycle.end()) return Text(pattern);
    return Text(++found == kCycle.end() ? kCycle.front() : *found);
}

} // namespace korvane
