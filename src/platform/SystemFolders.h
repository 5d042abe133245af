#pragma once

#include "common/text/Text.h"

namespace korvane {

/// Where the system keeps things. A folder that the system doesn't have is empty; a name may or may not end
/// in a separator.
class SystemFolders {
public:
    virtual ~SystemFolders() = default;
    /// The folder that the registry names; empty on a system without a registry.
    virtual Text ProgramFiles() const = 0;
    virtual Text Windows() const = 0;
    virtual Text System() const = 0;
    virtual Text Fonts() const = 0;
    virtual Text Documents() const = 0;
};

} // namespace korvane
