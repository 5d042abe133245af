#include "context/DriveInfo.h"

#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/exchange/DriveReport.h"
#include "platform/FileSystem.h"

#include <array>

namespace korvane {

namespace {

// The index is the number of the type.
constexpr std::array<TextView, 6> kTypeTexts{u"Unknown", u"Removable", u"Fixed",
                                             u"Network", u"CD-ROM",    u"RAM disk"};

TextView TypeText(DriveType type) {
    const auto number = static_cast<std::size_t>(type);
    return kTypeTexts[number < kTypeTexts.size() ? number : static_cast<std::size_t>(DriveType::Fixed)];
}

/// A label that was found as an entry of the directory has a dot after its eighth character, like a short
/// file name.
Text WithoutNameDot(TextView entry) {
    constexpr std::size_t kBaseLength = 8;
    const bool dotted = Mid(entry, kBaseLength + 1, 1) == u".";
    return dotted ? Text(Left(entry, kBaseLength)).append(Mid(entry, kBaseLength + 2)) : Text(entry);
}

bool IsBlank(TextView text) {
    return Trim(text).empty();
}

Text LabelOf(const VolumeInfo& volume) {
    if (!IsBlank(volume.name)) return volume.name;
    if (!IsBlank(volume.labelEntry)) return WithoutNameDot(volume.labelEntry);
    return volume.type == DriveType::CdRom && !volume.ready ? u"not ready" : u"no label";
}

Text DriveRoot(const PathStyle& style, TextView drive) {
    return style.HasDrives() ? Text(Left(drive, 1)).append(u":\\") : Text(drive);
}

} // namespace

void ReadDriveInfo(App& app, TextView drive) {
    DriveReport& report = app.Exchange<DriveReport>();
    const FileSystem& files = app.Files();
    const auto volume = files.Volume(DriveRoot(files.Style(), drive));
    if (!volume) {
        if (IsBlank(report.DriveLabel)) report.DriveLabel = LabelOf({});
        return;
    }
    report.DriveTypeText = TypeText(volume->type);
    report.DriveLabel = LabelOf(*volume);
}

} // namespace korvane
