#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

class App;
class FileSystem;

enum class ChooserMode : std::int16_t { Load = 0, Save = 1 };

/// Lets the user choose files and returns when the chooser has closed. The result is in `App::Lister`:
/// `ChosenFilePath` is empty when nothing was chosen. `defaultName` is the name proposed for a save.
void ShowFileChooser(App& app, ChooserMode mode, TextView filter, TextView caption,
                     TextView defaultName = {});

/// Shows the file chooser as a lister of directories, in the mode in which it was left last.
void ShowDirectoryLister(App& app);

/// Makes the drive and directory the current ones again, unless they have gone or their disk doesn't answer.
void GoBackTo(App& app, const Text& directory);

/// Goes back, at the end of its life, to the drive and directory that were the current ones at its start. A
/// directory on a disk that has fallen silent meanwhile is left.
class KeepCurrentDir {
public:
    explicit KeepCurrentDir(App& app);
    KeepCurrentDir(const KeepCurrentDir&) = delete;
    KeepCurrentDir& operator=(const KeepCurrentDir&) = delete;
    ~KeepCurrentDir();

private:
    App& app_;
    Text savedDir_;
};

} // namespace korvane
