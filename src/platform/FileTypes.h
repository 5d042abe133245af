#pragma once

#include "common/text/Text.h"

namespace korvane {

/// A kind of file, as the desktop calls and shows it.
struct FileType {
    /// In the words of the user's language: "plain text document", "PNG image".
    Text name{};
    /// The name of a small picture, as rows of lists take it; empty for none.
    Text image{};

    bool operator==(const FileType&) const = default;
};

/// What the desktop knows of kinds of files.
class FileTypes {
public:
    virtual ~FileTypes() = default;

    /// Called before a list is filled. False when there are no pictures to be had.
    virtual bool PrepareImages() = 0;
    /// The type of the file of this name or path. It costs next to nothing in a list of many files: the file
    /// isn't looked at, and the desktop is asked once for each type. The type stays where it is until the
    /// next `PrepareImages`, and all names of one type get the same object.
    virtual const FileType& TypeOf(TextView path) = 0;
    /// The picture that the file itself carries, as a program does on some systems; empty for none. The file
    /// is read, so this is asked only for types whose files carry pictures.
    virtual Text OwnImage(TextView path) = 0;
};

} // namespace korvane
