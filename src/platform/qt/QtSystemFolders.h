#pragma once

#include "platform/SystemFolders.h"

namespace korvane {

/// The folders of the system that the program runs on. Where there is no folder of the kind, as for programs
/// off Windows, it is empty.
class QtSystemFolders final : public SystemFolders {
public:
    Text ProgramFiles() const override;
    Text Windows() const override;
    Text System() const override;
    Text Fonts() const override;
    Text Documents() const override;
};

} // namespace korvane
