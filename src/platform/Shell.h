#pragma once

#include "common/Text.h"

namespace korvane {

/// What the desktop does for the program.
class Shell {
public:
    virtual ~Shell() = default;
    /// Shows a folder in the desktop's file manager.
    virtual void Explore(TextView folder) = 0;
    virtual void ToggleDesktop() = 0;
};

} // namespace korvane
