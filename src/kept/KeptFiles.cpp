#include "kept/KeptFiles.h"

#include "common/number/Number.h"
#include "platform/FileSystem.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr TextView kExtension = u".tbx";
constexpr std::size_t kDayDigits = 8;
constexpr std::size_t kMostDigits = 9;

/// Nothing unless the text is a number without a sign that isn't too large.
std::optional<int> PlainNumber(TextView digits) {
    const bool plain = !digits.empty() && digits.size() <= kMostDigits &&
                       std::ranges::all_of(digits, [](char16_t c) { return c >= u'0' && c <= u'9'; });
    int number = 0;
    return plain && ReadNumber(digits, number) ? std::optional(number) : std::nullopt;
}

std::optional<DateTime> ReadDay(TextView digits) {
    const auto number = digits.size() == kDayDigits ? PlainNumber(digits) : std::nullopt;
    if (!number) return std::nullopt;
    const DateTime day{*number / 10000, *number / 100 % 100, *number % 100, 0, 0, 0};
    const bool valid = day.year >= 1 && day.month >= 1 && day.month <= 12 && day.day >= 1 && day.day <= 31;
    return valid ? std::optional(day) : std::nullopt;
}

} // namespace

Text KeptFileName(int number, const DateTime& day) {
    return NumberText(number) + u"-" + FormatDate(day, u"yyyymmdd") + Text(kExtension);
}

std::optional<std::pair<int, DateTime>> ReadKeptFileName(TextView name) {
    if (!name.ends_with(kExtension)) return std::nullopt;
    name.remove_suffix(kExtension.size());
    const std::size_t dash = name.find(u'-');
    if (dash == name.npos) return std::nullopt;
    const auto number = PlainNumber(name.substr(0, dash));
    const auto day = ReadDay(name.substr(dash + 1));
    if (!number || !day) return std::nullopt;
    return std::pair(*number, *day);
}

std::vector<KeptFile> KeptFilesIn(const FileSystem& files, TextView folder) {
    std::vector<KeptFile> kept;
    for (const Text& name : files.FileNames(folder, u"*")) {
        const auto read = ReadKeptFileName(name);
        const Text path = files.Style().JoinPath(folder, name);
        const auto size = read ? files.Size(path) : std::nullopt;
        const auto modified = read ? files.Modified(path) : std::nullopt;
        if (size && modified) kept.push_back({read->first, read->second, name, path, *size, *modified});
    }
    std::ranges::sort(kept, {}, &KeptFile::number);
    return kept;
}

int NextNumber(const std::vector<KeptFile>& kept) {
    return kept.empty() ? 1 : kept.back().number + 1;
}

bool MakePrivateDirs(FileSystem& files, TextView folder) {
    if (files.DirExists(folder)) return true;
    const TextView above = files.Style().FolderPart(folder);
    if (above.empty() || above.size() >= folder.size()) return false;
    // Another thread may make the same folder at the same time.
    return MakePrivateDirs(files, above) && (files.MakePrivateDir(folder) || files.DirExists(folder));
}

void RemoveWithFiles(FileSystem& files, TextView folder) {
    for (const Text& name : files.FileNames(folder, u"*"))
        files.Remove(files.Style().JoinPath(folder, name));
    files.RemoveDir(folder);
}

bool WritePrivate(FileSystem& files, TextView path, const WriteFile& write) {
    const auto file = files.OpenPrivate(path);
    if (!file) return false;
    const bool written = write(*file);
    return file->Close() && written;
}

std::optional<int> RecordFile::Write(std::string_view bytes) {
    const std::vector<int> before = Numbers();
    const int number = before.empty() ? 1 : before.back() + 1;
    if (!WritePrivate(files_, PathOf(number), [bytes](FileWriter& file) { return file.Write(bytes); })) {
        files_.Remove(PathOf(number));
        return std::nullopt;
    }
    Remove(number - 1);
    return number;
}

void RecordFile::Remove(int last) {
    for (const int number : Numbers())
        if (number <= last) files_.Remove(PathOf(number));
}

void RecordFile::RemoveAll() {
    for (const int number : Numbers())
        files_.Remove(PathOf(number));
}

std::vector<int> RecordFile::Numbers() const {
    std::vector<int> numbers;
    const Text front = kind_ + u"-";
    for (const Text& name : files_.FileNames(folder_, u"*")) {
        if (!name.starts_with(front)) continue;
        if (const auto number = PlainNumber(TextView(name).substr(front.size()))) numbers.push_back(*number);
    }
    std::ranges::sort(numbers);
    return numbers;
}

Text RecordFile::PathOf(int number) const {
    return files_.Style().JoinPath(folder_, kind_ + u"-" + NumberText(number));
}

std::optional<std::string> RecordFile::BytesOf(int number) const {
    const auto bytes = files_.ReadAll(PathOf(number));
    if (!bytes) return std::nullopt;
    return std::string(bytes->View());
}

} // namespace korvane
