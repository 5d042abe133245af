#pragma once

#include "common/text/Text.h"
#include "platform/PatientDisk.h"

#include <chrono>
#include <optional>
#include <vector>

namespace korvane {

class App;

/// Asks the disk with the patience that the platform has, or directly where it has none.
bool AskDisk(const App& app, const DiskQuestion& question, const StillWaits& stillWaits);

/// The same for a second at most. It is for where a wait can't be shown.
bool AskDiskSoon(const App& app, const DiskQuestion& question);

/// The same for a fifth of a second, for what the user hasn't asked for.
bool AskDiskUnseen(const App& app, const DiskQuestion& question);

/// Whether there is such a folder; nothing when its disk doesn't tell soon.
std::optional<bool> HasFolderSoon(const App& app, const Text& folder);

/// The same for many folders, of which the first that stays without an answer ends it.
std::vector<std::optional<bool>> HasFoldersSoon(const App& app, const std::vector<Text>& folders);

/// Watches a work on the disk, which counts its steps.
class Standstill {
public:
    /// The App outlives the object.
    explicit Standstill(const App& app);
    /// Whether nothing has been done for some seconds. A disk that is only slow does something in that time.
    bool Lasts(int steps);

private:
    const App& app_;
    int steps_ = 0;
    std::chrono::milliseconds since_;
};

} // namespace korvane
