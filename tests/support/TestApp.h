#pragma once

#include "context/App.h"
#include "support/ScriptedUser.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace korvane {

class MemoryFileTypes;
class MemoryFonts;
class MemorySystemFolders;

/// A new program without windows: an App on an in-memory platform with a scripted user. A test includes the
/// headers of the parts that are references here, if it uses them.
class TestApp {
    struct Parts;
    std::unique_ptr<Parts> parts_;

public:
    explicit TestApp(const PathStyle& style = PathStyle::Windows);
    TestApp(const TestApp&) = delete;
    TestApp& operator=(const TestApp&) = delete;
    ~TestApp();

    MemoryClock clock;
    MemoryFileSystem files;
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    MemorySystemFolders& folders;
    MemoryFileTypes& fileTypes;
    MemoryFonts& fonts;
    ScriptedUser user;
    /// What the program asked the spreadsheet application to do.
    std::vector<std::string> spreadsheetSteps;
    /// Whether the spreadsheet application can be started.
    bool hasSpreadsheet = true;
    /// Whether it can write files.
    bool spreadsheetSaves = true;
    /// Runs before a grid is made.
    std::function<void()> beforeGrid = [] {};
    App app;

private:
    bool TakeAway(TextView path);
    std::unique_ptr<Grid> MakeGrid();
    std::unique_ptr<Spreadsheet> StartSpreadsheet();
};

} // namespace korvane
