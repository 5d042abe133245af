#include "common/path/PathStyle.h"

#include "common/text/CaseFold.h"

namespace korvane {

namespace {

constexpr std::size_t kRootLength = 3;

bool IsDriveLetter(char16_t character) {
    const char16_t capital = ToUpper(character);
    return capital >= u'A' && capital <= u'Z';
}

bool StartsAtDriveRoot(TextView path) {
    return path.size() >= kRootLength && IsDriveLetter(path[0]) && path.substr(1, 2) == u":\\";
}

TextView WithoutTrailingBlanks(TextView text) {
    return text.substr(0, text.find_last_not_of(u' ') + 1);
}

} // namespace

TextView PathStyle::FolderPart(TextView path) const {
    const std::size_t last = path.rfind(separator_);
    if (last == TextView::npos) return {};
    const bool underPosixRoot = last == 0 && !HasDrives();
    return path.substr(0, underPosixRoot ? 1 : last);
}

TextView PathStyle::NamePart(TextView path) const {
    return path.substr(path.rfind(separator_) + 1);
}

Text PathStyle::JoinPath(TextView folder, TextView name) const {
    Text path(folder);
    const bool byLength = HasDrives() && folder.size() <= kRootLength;
    if (!byLength && !folder.empty() && !folder.ends_with(separator_)) path += separator_;
    return path += name;
}

void PathStyle::AddBackslash(Text& path) const {
    const TextView kept = WithoutTrailingBlanks(path);
    const bool ended = kept.ends_with(u'/') || kept.ends_with(separator_);
    if (ended) return;
    path.resize(kept.size());
    path += separator_;
}

bool PathStyle::IsRoot(TextView path) const {
    return HasDrives() ? path.size() == kRootLength : path == u"/";
}

bool PathStyle::IsAbsolute(TextView path) const {
    return HasDrives() ? StartsAtDriveRoot(path) || path.starts_with(u"\\\\") : path.starts_with(u'/');
}

bool PathStyle::IsFullPath(TextView path) const {
    return path.find(separator_) != TextView::npos;
}

Text PathStyle::DirectoryForChange(TextView folder) const {
    Text directory(folder);
    if (HasDrives() && !folder.empty() && folder.size() < kRootLength) directory += separator_;
    return directory;
}

Text PathStyle::FoldedName(TextView name) const {
    return IgnoresCase() ? ToUpper(name) : Text(name);
}

bool PathStyle::SameName(TextView a, TextView b) const {
    return IgnoresCase() ? EqualIgnoringCase(a, b) : a == b;
}

Text ExtensionUpper(TextView path) {
    const std::size_t found = path.find_last_of(u"./\\");
    if (found == TextView::npos || path[found] != u'.') return {};
    return ToUpper(path.substr(found));
}

bool HasExtension(TextView path, TextView extension) {
    return EndsWithIgnoringCase(path, extension);
}

} // namespace korvane
