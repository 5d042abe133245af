#pragma once

#include "platform/SystemFolders.h"

namespace korvane {

/// The folders of the Windows system on which the program runs.
class Win32SystemFolders final : public SystemFolders {
public:
    Text ProgramFiles() const override;
    Text Windows() const override;
    Text System() const override;
    Text Fonts() const override;
    Text Documents() const override;
};

} // namespace korvane
