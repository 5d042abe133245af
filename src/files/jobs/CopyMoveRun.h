#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// The state of one job, which the job, its window and its question share. Flags are 1 or 0.
struct CopyMoveRun {
    /// Only newer files and those not on target, without questions.
    std::int16_t UpdateOnly = 0;
    // Answers that hold for the rest of the job.
    std::int16_t NoToAll = 0;
    std::int16_t YesToAll = 0;
    /// The decision for the current file.
    std::int16_t CopyThisFile = 0;
    /// 27 stops the job.
    std::int16_t LastKey = -1;
    /// The job was given up by the button: it ends without the closing question.
    std::int16_t CancelPressed = 0;
    /// Of the target drive; the free bytes are an estimate that the job keeps.
    std::int64_t DriveTotal = 0;
    std::int64_t DriveFree = 0;
    std::int32_t FilesCopied = 0;
    // The pair that the question is about. The target comes back changed when the user renames it.
    Text AskSource;
    Text AskTarget;
};

} // namespace korvane
