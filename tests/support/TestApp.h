#pragma once

#include "context/App.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FilePicker.h"
#include "context/ports/FontPicker.h"
#include "grid/GridStore.h"
#include "support/ScriptedUser.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryFileTypes.h"
#include "testing/MemoryFonts.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"
#include "testing/MemorySpreadsheet.h"
#include "testing/MemorySystemFolders.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace korvane {

/// A new program without windows: an App on an in-memory platform with a scripted user.
class TestApp {
public:
    explicit TestApp(const PathStyle& style = PathStyle::Windows) : files(style, clock) {
        shell.SetRecycler([this](TextView path) { return TakeAway(path); });
        app.SetPort<FilePicker>(&user);
        app.SetPort<ColourPicker>(&user);
        app.SetPort<FontPicker>(&user);
    }

    MemoryClock clock;
    MemoryFileSystem files;
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    MemorySystemFolders folders;
    MemoryFileTypes fileTypes;
    MemoryFonts fonts;
    ScriptedUser user;
    /// What the program asked the spreadsheet application to do.
    std::vector<std::string> spreadsheetSteps;
    /// Whether the spreadsheet application can be started.
    bool hasSpreadsheet = true;
    /// Whether it can write files.
    bool spreadsheetSaves = true;
    /// Runs before a grid is made.
    std::function<void()> beforeGrid = [] {};
    App app{{files, user, clipboard, clock, screen, shell, instance, user, [this] { return MakeGrid(); },
             CodePage::Windows1252(), &folders, [this] { return StartSpreadsheet(); }, nullptr, &fileTypes,
             &fonts}};

private:
    bool TakeAway(TextView path) {
        if (!files.FileExists(path) && !files.DirExists(path) && !files.IsLink(path)) return false;
        files.Erase(path);
        return true;
    }
    std::unique_ptr<Grid> MakeGrid() {
        beforeGrid();
        return std::make_unique<GridStore>(CodePage::Windows1252());
    }
    std::unique_ptr<Spreadsheet> StartSpreadsheet() {
        if (!hasSpreadsheet) return nullptr;
        return std::make_unique<MemorySpreadsheet>(spreadsheetSteps, spreadsheetSaves);
    }
};

} // namespace korvane
