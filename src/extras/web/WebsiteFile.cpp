#include "extras/web/WebsiteFile.h"

namespace korvane {

namespace {

constexpr TextView kGroupSection = u"***";
constexpr TextView kChecked = u"1";
constexpr TextView kNotChecked = u"0";

bool HoldsMarker(TextView url) {
    return url.find(kSeparatorMarker) != TextView::npos;
}

/// Takes the lines of the rows, which come in threes.
class RowReader {
public:
    explicit RowReader(std::vector<Website>& websites) : websites_(websites) {}

    void Take(const Text& line) {
        switch (place_) {
        case Place::Name:
            websites_.push_back({line, {}, false});
            place_ = Place::Url;
            break;
        case Place::Url:
            websites_.back().url = line;
            place_ = Place::Check;
            break;
        case Place::Check:
            websites_.back().checked = Trim(line) == kChecked && !HoldsMarker(websites_.back().url);
            place_ = Place::Name;
            break;
        }
    }

private:
    enum class Place { Name, Url, Check };

    std::vector<Website>& websites_;
    Place place_ = Place::Name;
};

bool IsDeleted(const Website& website) {
    return website.name == kDeletedWebsite && website.url == kDeletedWebsite;
}

} // namespace

bool IsSeparator(TextView name) {
    return name.starts_with(kSeparatorMarker);
}

WebsiteLists WebsitesOfLines(const std::vector<Text>& lines) {
    WebsiteLists lists;
    RowReader rows(lists.websites);
    bool inGroups = false;
    for (const Text& line : lines) {
        if (line.starts_with(u';')) continue;
        if (line.starts_with(kGroupSection)) {
            inGroups = true;
        } else if (inGroups) {
            lists.groups.emplace_back(Trim(line));
        } else {
            rows.Take(line);
        }
    }
    return lists;
}

std::vector<Text> LinesOfWebsites(const WebsiteLists& lists) {
    std::vector<Text> lines;
    for (const Website& website : lists.websites) {
        if (IsDeleted(website)) continue;
        const bool checked = website.checked && !HoldsMarker(website.url);
        lines.insert(lines.end(), {website.name, website.url, Text(checked ? kChecked : kNotChecked)});
    }
    lines.emplace_back(kGroupSection);
    for (const Text& group : lists.groups) {
        const TextView entry = Trim(group);
        if (!entry.empty() && entry != kDeletedWebsite) lines.emplace_back(entry);
    }
    // The empty line at the end becomes an empty group at the next reading, which isn't written. Kept for
    // compatibility: website-list-ends-in-empty-group.
    lines.emplace_back();
    return lines;
}

} // namespace korvane
