#pragma once

#include "platform/SystemFolders.h"

namespace korvane {

/// Folders as a test sets them.
class MemorySystemFolders final : public SystemFolders {
public:
    Text ProgramFiles() const override { return programFiles; }
    Text Windows() const override { return windows; }
    Text System() const override { return system; }
    Text Fonts() const override { return fonts; }
    Text Documents() const override { return documents; }

    Text programFiles;
    Text windows;
    Text system;
    Text fonts;
    Text documents;
};

} // namespace korvane
