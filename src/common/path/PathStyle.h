#pragma once

#include "common/text/Text.h"

namespace korvane {

/// How a system writes paths: its separator, roots, drives, and whether names differ by case. Every question
/// about a path goes to the style of the file system that is in use. A small value, cheap to copy.
class PathStyle {
public:
    /// "\" separates folders, there are drive letters, and capital and small letters are alike.
    static const PathStyle Windows;
    /// "/" separates folders, there is one root, and capital and small letters differ. A "\" is an ordinary
    /// character.
    static const PathStyle Posix;

    constexpr char16_t Separator() const { return separator_; }
    constexpr bool HasDrives() const { return kind_ == Kind::kWindows; }
    constexpr bool IgnoresCase() const { return kind_ == Kind::kWindows; }

    /// The part before the last separator; empty for a bare name. For a file directly under the root this is
    /// "/" on Posix and the drive alone ("C:") on Windows, which `DirectoryForChange` completes.
    TextView FolderPart(TextView path) const;
    /// The part after the last separator; the whole of a bare name.
    TextView NamePart(TextView path) const;
    /// The path of a name in a folder. On Windows a folder of 3 characters or fewer ("C:\") takes no
    /// separator.
    Text JoinPath(TextView folder, TextView name) const;
    /// Adds a separator to the end of `path` unless there is one; outer blanks don't count.
    void AddBackslash(Text& path) const;

    /// Whether a full path is a root, which can't be deleted. Windows knows it by its length of 3.
    bool IsRoot(TextView path) const;
    /// Whether the path starts from a root and not from the current directory.
    bool IsAbsolute(TextView path) const;
    /// Whether the text names a folder too, that is, contains a separator anywhere.
    bool IsFullPath(TextView path) const;
    /// The folder in the form in which a change of directory takes it: on Windows a drive alone ("C:"), which
    /// is the drive's current directory, gets a backslash. Empty for the folder of a bare name.
    Text DirectoryForChange(TextView folder) const;

    /// The name in a form that is the same for all names that mean the same file.
    Text FoldedName(TextView name) const;
    bool SameName(TextView a, TextView b) const;

    constexpr bool operator==(const PathStyle&) const = default;

private:
    enum class Kind { kWindows, kPosix };

    constexpr PathStyle(Kind kind, char16_t separator) : kind_(kind), separator_(separator) {}

    Kind kind_;
    char16_t separator_;
};

inline constexpr PathStyle PathStyle::Windows{Kind::kWindows, u'\\'};
inline constexpr PathStyle PathStyle::Posix{Kind::kPosix, u'/'};

/// The last point of the name and what follows, in capitals (".TBX"); empty when the name has no point. Reads
/// a path of either style.
Text ExtensionUpper(TextView path);
/// Whether the path ends in `extension`, case ignored on every system. The end alone is compared: with its
/// point (".TBX") or without ("TBX").
bool HasExtension(TextView path, TextView extension);

} // namespace korvane
