#include "common/path/WebAddress.h"

#include "common/text/CaseFold.h"

#include <algorithm>

namespace korvane {

namespace {

bool IsLetter(char16_t character) {
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

bool IsDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

bool BelongsToScheme(char16_t character) {
    return IsLetter(character) || IsDigit(character) || TextView(u"+-.").find(character) != TextView::npos;
}

/// What follows a colon is the number of a port, at the end or with a path after it.
bool IsPort(TextView after) {
    const TextView digits = after.substr(0, after.find_first_of(u"/?#"));
    return !digits.empty() && std::ranges::all_of(digits, IsDigit);
}

constexpr TextView kSchemesForBrowsers[] = {u"http", u"https", u"ftp", u"file"};

} // namespace

Text SchemeOf(TextView address) {
    constexpr std::size_t kDriveLength = 1;
    const std::size_t colon = address.find(u':');
    if (colon == TextView::npos || colon <= kDriveLength || IsPort(address.substr(colon + 1))) return {};
    const TextView scheme = address.substr(0, colon);
    const bool whole = IsLetter(scheme.front()) && std::ranges::all_of(scheme, BelongsToScheme);
    return whole ? ToLower(scheme) : Text();
}

Text WithScheme(TextView address) {
    return SchemeOf(address).empty() ? u"https://" + Text(address) : Text(address);
}

bool IsOfNet(TextView address) {
    const Text scheme = SchemeOf(address);
    return scheme == u"http" || scheme == u"https";
}

bool IsForBrowsers(TextView address) {
    return std::ranges::find(kSchemesForBrowsers, SchemeOf(address)) != std::end(kSchemesForBrowsers);
}

} // namespace korvane
