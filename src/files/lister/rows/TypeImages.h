#pragma once

#include "common/text/Text.h"

#include <unordered_map>

namespace korvane {

class App;
class FileTypes;
struct FileType;

/// The pictures in front of the files of one folder: one for each type, and those that files carry.
class TypeImages {
public:
    /// The App outlives the object.
    explicit TypeImages(const App& app);

    /// Called before a folder is listed. False when there are no pictures to be had.
    bool Prepare();
    /// The name of the picture, until the next one is asked for; empty for none. A file is read only if those
    /// of its type carry a picture.
    const Text& ImageOf(TextView folder, TextView name);

private:
    const Text& CarriedImage(TextView path, const FileType& type);

    const App& app_;
    FileTypes* types_;
    Text carried_;
    /// For each type that was met, whether its files carry pictures.
    std::unordered_map<const FileType*, bool> carries_;
};

} // namespace korvane
