#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>

namespace korvane {

class App;
class DiskWait;
class FileRows;
class ShownFolder;
struct ListerRequest;

/// What "Proceed" makes of the name in the line and of the marked rows: the caller's result.
class Proceeding {
public:
    /// All outlive the object.
    Proceeding(App& app, const ShownFolder& folder, const FileRows& rows, DiskWait& wait);

    /// Whether the window closes, with the outcome 1.
    bool Run(const Text& name);

private:
    bool PickFolder();
    bool PickToAppend(const Text& name);
    bool LoadOrSave(const Text& name);
    /// Whether the file is there; nothing if the disk doesn't answer.
    std::optional<bool> IsThere(const Text& path);
    bool MayOverwrite(const Text& path);
    void CollectMarked(const Text& name);
    bool IsMarkedByUser(const Text& name) const;
    void Take(const Text& name);
    ListerRequest& Request() const;

    App& app_;
    const ShownFolder& folder_;
    const FileRows& rows_;
    DiskWait& wait_;
};

} // namespace korvane
