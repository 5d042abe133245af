#include "files/lister/rows/NonTextFiles.h"

#include "common/path/PathStyle.h"

#include <algorithm>
#include <array>
#include <span>

namespace korvane {

namespace {

// ".DOX" and no ".DOC", so that a Word file is left to whoever loads it; and no ".PNG". Kept for
// compatibility: non-text-files-list.
constexpr std::array<TextView, 22> kNonText{
    u".ASP", u".CGI", u".PHP",  u".DBF", u".MDB", u".ACCDB", u".DOX", u".XLS", u".XLSX", u".PPT", u".PPTX",
    u".PUB", u".JPG", u".JPEG", u".BMP", u".GIF", u".TIF",   u".WMF", u".ICO", u".WAV",  u".MP3", u".PDF"};

constexpr std::array<TextView, 3> kShortcuts{u".lnk", u".url", u".pbk"};

bool EndsInOneOf(TextView path, std::span<const TextView> extensions) {
    return std::ranges::any_of(extensions, [path](TextView each) { return HasExtension(path, each); });
}

} // namespace

bool IsNonTextFile(TextView path) {
    return EndsInOneOf(path, kNonText);
}

bool IsShortcutFile(TextView path) {
    return EndsInOneOf(path, kShortcuts);
}

} // namespace korvane
