#pragma once

#include "context/App.h"
#include "platform/memory/MemoryClipboard.h"
#include "platform/memory/MemoryClock.h"
#include "platform/memory/MemoryFileSystem.h"
#include "platform/memory/MemoryGrid.h"
#include "platform/memory/MemoryInstanceChannel.h"
#include "platform/memory/MemoryScreen.h"
#include "platform/memory/MemoryShell.h"
#include "platform/memory/MemorySystemFolders.h"
#include "support/ScriptedUser.h"

#include <memory>

namespace korvane {

/// A fresh program without windows: an App on a platform in memory, with a scripted user in front of it.
class TestApp {
public:
    explicit TestApp(const PathStyle& style = PathStyle::Windows) : files(style, clock) {
        app.FilePicker = &user;
        app.ColourPicker = &user;
        app.FontPicker = &user;
    }

    MemoryClock clock;
    MemoryFileSystem files;
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    MemorySystemFolders folders;
    ScriptedUser user;
    App app{{files, user, clipboard, clock, screen, shell, instance, user,
             [] { return std::make_unique<MemoryGrid>(CodePage::Windows1252()); }, CodePage::Windows1252(),
             &folders}};
};

} // namespace korvane
