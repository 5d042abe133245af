#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace korvane {

/// The steps that can be made to fail on a disk in memory.
enum class FileStep : std::uint8_t {
    OpenToRead,
    OpenToWrite,
    Write,
    Close,
    Remove,
    Rename,
    MakeDir,
    RemoveDir,
    Link,
    Flush,
};

/// Failures that a test orders. Each happens once.
class FileFaults {
public:
    /// The `nth` step of this kind from now on fails, the next one being 1, with `errorText` as the system's
    /// words.
    void FailNth(FileStep step, int nth, TextView errorText = u"Input/output error");

    /// Counts one step. Returns the words of the failure that was ordered for it; nothing when it succeeds.
    std::optional<Text> Strike(FileStep step);

private:
    struct Fault {
        FileStep step;
        int stepsLeft;
        Text errorText;
    };
    std::vector<Fault> faults_;
};

} // namespace korvane
