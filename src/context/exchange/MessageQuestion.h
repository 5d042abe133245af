#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// What is to become of an altered file.
enum class MsgAnswer : std::int16_t {
    /// The closing stops. What asks sets this beforehand.
    Cancel = -1,
    DoNotSave = 0,
    SaveUnderAName = 1,
    SaveDirectly = 100,
};

/// The question of `frmMyMsgBox`.
struct MessageQuestion {
    korvane::MsgAnswer MsgAnswer = korvane::MsgAnswer::Cancel;
    /// The altered file.
    Text MsgFilePath;
};

} // namespace korvane
