#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// What happens to an altered file.
enum class MsgAnswer : std::int16_t {
    /// The closing stops. The window that asks sets this before it asks.
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
