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

/// Failures that a test orders.
class FileFaults {
public:
    enum class Lasting : std::uint8_t { Once, EverAfter };

    /// The `nth` step from now on fails, whatever its kind, and with `EverAfter` so does each later one.
    void FailNthOfAll(int nth, Lasting lasting);
    /// Whether that has happened.
    bool HasFailedOfAll() const { return allLeft_ && *allLeft_ <= 0; }
    /// All steps succeed from now on.
    void Mend() { allLeft_.reset(); }

    /// The `nth` step of this kind from now on fails once, the next one being 1, with `errorText` as the
    /// system's words.
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
    /// How many steps are left until the one that fails. None fails without a number.
    std::optional<int> allLeft_;
    Lasting lasting_ = Lasting::Once;
};

} // namespace korvane
