#pragma once

#include "platform/SystemFolders.h"

namespace korvane {

/// The folders of a desktop that isn't Windows: what only that has is empty.
class QtSystemFolders final : public SystemFolders {
public:
    Text ProgramFiles() const override;
    Text Windows() const override;
    Text System() const override;
    Text Fonts() const override;
    Text Documents() const override;
};

} // namespace korvane
