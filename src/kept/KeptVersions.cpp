#include "kept/KeptVersions.h"

#include "kept/FileSum.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <chrono>
#include <tuple>

namespace korvane {

namespace {

constexpr TextView kFolder = u"saved";
constexpr TextView kName = u"name";
constexpr std::size_t kSumDigits = 16;

Text HexText(std::uint64_t number) {
    Text digits;
    for (std::size_t digit = 0; digit < kSumDigits; ++digit, number >>= 4)
        digits.insert(digits.begin(), u"0123456789abcdef"[number & 15]);
    return digits;
}

std::chrono::sys_days DayOf(const DateTime& when) {
    using namespace std::chrono;
    return year(when.year) / month(static_cast<unsigned>(when.month)) / day(static_cast<unsigned>(when.day));
}

} // namespace

struct KeptVersions::Version {
    KeptFile file;
    /// As `Keep` returned it.
    Text name;
    /// How many newer ones the table has.
    std::size_t newer = 0;
};

KeptVersions::KeptVersions(FileSystem& files, TextView root)
    : files_(files), folder_(files.Style().JoinPath(root, kFolder)) {}

Text KeptVersions::Keep(const Text& path, const DateTime& today) {
    // The first attempt fails when a prune takes the empty folder away at the same time.
    const Text version = TryToKeep(path, today);
    return version.empty() ? TryToKeep(path, today) : version;
}

Text KeptVersions::TryToKeep(const Text& path, const DateTime& today) {
    const Text folder = FolderOf(path);
    if (!PrepareFolder(folder, path)) return {};
    const Text name = KeptFileName(NextNumber(KeptFilesIn(files_, folder)), today);
    const Text file = files_.Style().JoinPath(folder, name);
    // A save goes through a symbolic link and empties the file that it names, so a second name wouldn't keep
    // anything.
    const bool kept =
        (!files_.IsLink(path) && files_.Link(path, file)) || files_.Copy(path, file) == CopyOutcome::Copied;
    return kept ? Text(files_.Style().NamePart(folder)) + u"/" + name : Text();
}

Text KeptVersions::FileOf(TextView version) const {
    const std::size_t slash = version.find(u'/');
    if (slash != kSumDigits || !ReadKeptFileName(version.substr(slash + 1))) return {};
    const TextView sum = version.substr(0, slash);
    if (sum.find_first_not_of(u"0123456789abcdef") != sum.npos) return {};
    const PathStyle style = files_.Style();
    return style.JoinPath(style.JoinPath(folder_, sum), version.substr(slash + 1));
}

bool KeptVersions::PartFrom(const Text& path, TextView version) {
    const Text file = FileOf(version);
    if (file.empty() || !files_.IsSame(path, file)) return true;
    // The copy must not be called like a version while both are there.
    const Text copy = file + u".new";
    const bool copied = files_.Copy(path, copy) == CopyOutcome::Copied;
    const bool parted = copied && files_.Remove(file) && files_.Rename(copy, file);
    if (!parted) files_.Remove(copy);
    return parted;
}

void KeptVersions::Drop(TextView version) {
    const Text file = FileOf(version);
    if (!file.empty()) files_.Remove(file);
}

Text KeptVersions::FolderOf(TextView path) const {
    const std::uint64_t sum = SumOf(ToUtf8(files_.Style().FoldedName(path))).sum;
    return files_.Style().JoinPath(folder_, HexText(sum));
}

bool KeptVersions::PrepareFolder(TextView folder, const Text& path) {
    if (!MakePrivateDirs(files_, folder)) return false;
    RecordFile name(files_, folder, kName);
    return name.Read<NameRecord>().has_value() || name.Write(ToRecord(NameRecord{path})).has_value();
}

std::vector<Text> KeptVersions::Tables() const {
    std::vector<Text> tables;
    for (const Text& sum : files_.FolderNames(folder_)) {
        const Text folder = files_.Style().JoinPath(folder_, sum);
        const auto name = RecordFile(files_, folder, kName).Read<NameRecord>();
        if (name && !KeptFilesIn(files_, folder).empty()) tables.push_back(name->name);
    }
    std::ranges::sort(tables);
    return tables;
}

std::vector<KeptFile> KeptVersions::Of(TextView path) const {
    return KeptFilesIn(files_, FolderOf(path));
}

std::vector<KeptVersions::Version> KeptVersions::All() const {
    std::vector<Version> all;
    for (const Text& sum : files_.FolderNames(folder_)) {
        const auto kept = KeptFilesIn(files_, files_.Style().JoinPath(folder_, sum));
        for (std::size_t i = 0; i < kept.size(); ++i)
            all.push_back({kept[i], sum + u"/" + kept[i].name, kept.size() - 1 - i});
    }
    // A table's numbers break the tie, so that its oldest version goes first.
    std::ranges::sort(all, [](const Version& a, const Version& b) {
        return std::tie(a.file.day, a.file.modified, a.file.number) <
               std::tie(b.file.day, b.file.modified, b.file.number);
    });
    return all;
}

void KeptVersions::Prune(const DateTime& today, const std::set<Text>& needed, std::int64_t otherBytes,
                         const Limits& limits) {
    const std::vector<Version> all = All();
    std::int64_t bytes = otherBytes;
    for (const Version& version : all)
        bytes += version.file.size;
    for (const Version& version : all) {
        const auto age = DayOf(today) - DayOf(version.file.day);
        const bool tooOld = age > std::chrono::days(limits.days) || version.newer >= limits.ofATable;
        if (needed.contains(version.name) || !(tooOld || bytes > limits.bytes)) continue;
        files_.Remove(version.file.path);
        bytes -= version.file.size;
    }
    for (const Text& sum : files_.FolderNames(folder_)) {
        const Text folder = files_.Style().JoinPath(folder_, sum);
        if (KeptFilesIn(files_, folder).empty()) RemoveWithFiles(files_, folder);
    }
}

} // namespace korvane
