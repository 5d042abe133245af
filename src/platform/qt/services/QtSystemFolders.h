#pragma once

#include "platform/SystemFolders.h"

namespace korvane {

/// The folders of a desktop other than Windows. A folder that only Windows has is empty.
class QtSystemFolders final : public SystemFolders {
public:
    Text ProgramFiles() const override;
    Text Windows() const override;
    Text System() const override;
    Text Fonts() const override;
    Text Documents() const override;
};

} // namespace korvane
