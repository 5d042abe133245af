#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// The name of a row that only separates others.
inline constexpr TextView kSeparatorMarker = u".   .   .   .   .   .   .   .   .";
/// The name and address of a row that the user deleted, and a group entry that isn't kept.
inline constexpr TextView kDeletedWebsite = u"---";

bool IsSeparator(TextView name);

struct Website {
    Text name;
    Text url;
    bool checked = false;
    bool operator==(const Website&) const = default;
};

/// What a file of websites holds: the rows of the list, and the groups, each the addresses of several
/// websites with a blank after each.
struct WebsiteLists {
    std::vector<Website> websites;
    std::vector<Text> groups;
    bool operator==(const WebsiteLists&) const = default;
};

WebsiteLists WebsitesOfLines(const std::vector<Text>& lines);
/// Without what is deleted. Nothing is escaped, so a name that begins with ";" or "***" acts as that at the
/// next reading (kept for compatibility: website-names-not-escaped).
std::vector<Text> LinesOfWebsites(const WebsiteLists& lists);

} // namespace korvane
