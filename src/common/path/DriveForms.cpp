#include "common/path/DriveForms.h"

#include "common/text/CaseFold.h"

namespace korvane {

namespace {

constexpr TextView kMarker = u"Drive_";
constexpr TextView kRootMarker = u":\\Drive_";
constexpr TextView kMirrorRoot = u"C:\\Drive_";

// The places of the parts of "C:\Drive_G\...".
constexpr std::size_t kMarkerPlace = 4;
constexpr std::size_t kLetterPlace = 10;

bool HasColonSecond(TextView path) {
    return Mid(path, 2, 1) == u":";
}

bool HasDriveRoot(TextView path) {
    return Mid(path, 2, 2) == u":\\";
}

bool HasOtherForm(const PathStyle& style, TextView path) {
    return style.HasDrives() || HasWindowsForm(path);
}

/// "C:\Drive_G\Data\x" gives "G:\Data\x".
Text DriveOfMirror(TextView path) {
    return Text(Mid(path, kLetterPlace, 1)).append(u":").append(Mid(path, kLetterPlace + 1));
}

/// "G:\Data\x" gives `root` and "G\Data\x".
Text MirrorOfDrive(TextView root, TextView path) {
    return Text(root).append(Mid(path, 1, 1)).append(Mid(path, 3));
}

} // namespace

bool HasWindowsForm(TextView path) {
    return HasDriveRoot(path) || ContainsIgnoringCase(path, kRootMarker);
}

Text MapDrivePath(const PathStyle& style, TextView path, const PathQuestion& fileExists) {
    if (path.empty() || !HasOtherForm(style, path) || fileExists(path)) return Text(path);
    // Whether the other form is there isn't asked. Kept for compatibility: drive-form-not-tested.
    if (ContainsIgnoringCase(path, kRootMarker)) return DriveOfMirror(path);
    // Without a drive the whole name follows the mirror's: "x.txt" gives "C:\Drive_x.txt". Kept for
    // compatibility: drive-mirror-of-bare-name.
    return HasColonSecond(path) ? MirrorOfDrive(kMirrorRoot, path) : Text(kMirrorRoot).append(path);
}

Text OtherFolderForm(const PathStyle& style, TextView folder) {
    if (!HasOtherForm(style, folder)) return Text(folder);
    if (EqualIgnoringCase(Mid(folder, kMarkerPlace, kMarker.size()), kMarker)) return DriveOfMirror(folder);
    return HasDriveRoot(folder) ? MirrorOfDrive(kMirrorRoot, folder) : Text(folder);
}

Text SwapDriveForm(const PathStyle& style, TextView path, const PathQuestion& fileExists) {
    if (!HasOtherForm(style, path) || path.find(u'\\') == TextView::npos) return Text(path);
    const Text candidate = ContainsIgnoringCase(path, kMarker)
                               ? DriveOfMirror(path)
                               : FirstDriveWithPath(MirrorOfDrive(kRootMarker, path), fileExists);
    return fileExists(candidate) ? candidate : Text(path);
}

Text FirstDriveWithPath(TextView tail, const PathQuestion& fileExists) {
    Text path = Text(1, u'C').append(tail);
    while (path[0] != u'Z' && !fileExists(path))
        ++path[0];
    return path;
}

Text OtherProgramForm(const PathStyle& style, TextView program, const PathQuestion& fileExists) {
    if (!HasOtherForm(style, program)) return Text(program);
    if (ContainsIgnoringCase(program, kMarker)) return DriveOfMirror(program);
    const auto mirrorOf = [program](char16_t letter) {
        return Text(Mid(program, 1, 1)).append(kRootMarker).append(1, letter).append(Mid(program, 3));
    };
    char16_t letter = u'C';
    while (letter != u'Z' && !fileExists(mirrorOf(letter)))
        ++letter;
    return mirrorOf(letter);
}

Text Check3264Dirs(TextView path, TextView programFilesDir) {
    constexpr TextView kFull = u"C:\\Program Files\\";
    constexpr TextView kX86 = u"C:\\Program Files (x86)\\";
    if (InStr(path, kFull) > 0) return Text(kX86).append(Mid(path, kFull.size() + 1));
    // The path isn't tested for that folder. Kept for compatibility: program-folder-of-system.
    if (InStr(programFilesDir, kX86) > 0) return Text(kFull).append(Mid(path, kX86.size() + 1));
    return Text(path);
}

} // namespace korvane
