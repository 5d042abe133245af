#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The line of the lister that holds a file's name, for the window in which the name is typed at leisure.
class NameLine {
public:
    virtual ~NameLine() = default;
    virtual Text FileName() const = 0;
    virtual void SetFileName(TextView name) = 0;
    /// The pattern of the files listed, "*.txt".
    virtual void SetPattern(TextView pattern) = 0;
};

} // namespace korvane
