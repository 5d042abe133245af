#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The question of `frmMyInputBox`.
struct InputQuestion {
    Text InputCaption;
    /// The text that is offered.
    Text InputInitial;
    /// The answer.
    Text InputResult;
};

} // namespace korvane
