#include "support/TestApp.h"

#include "grid/GridStore.h"
#include "support/ScriptedPickers.h"
#include "testing/MemoryFileTypes.h"
#include "testing/MemoryFonts.h"
#include "testing/MemorySpreadsheet.h"
#include "testing/MemorySystemFolders.h"

namespace korvane {

struct TestApp::Parts {
    MemorySystemFolders folders;
    MemoryFileTypes fileTypes;
    MemoryFonts fonts;
};

TestApp::TestApp(const PathStyle& style)
    : parts_(std::make_unique<Parts>()),
      files(style, clock),
      folders(parts_->folders),
      fileTypes(parts_->fileTypes),
      fonts(parts_->fonts),
      app({files, user, clipboard, clock, screen, shell, instance, user, [this] { return MakeGrid(); },
           CodePage::Windows1252(), &folders, [this] { return StartSpreadsheet(); }, nullptr, &fileTypes,
           &fonts}) {
    shell.SetRecycler([this](TextView path) { return TakeAway(path); });
    user.Pickers().AnswerFor(app);
}

TestApp::~TestApp() = default;

bool TestApp::TakeAway(TextView path) {
    if (!files.FileExists(path) && !files.DirExists(path) && !files.IsLink(path)) return false;
    files.Erase(path);
    return true;
}

std::unique_ptr<Grid> TestApp::MakeGrid() {
    beforeGrid();
    return std::make_unique<GridStore>(CodePage::Windows1252());
}

std::unique_ptr<Spreadsheet> TestApp::StartSpreadsheet() {
    if (!hasSpreadsheet) return nullptr;
    return std::make_unique<MemorySpreadsheet>(spreadsheetSteps, spreadsheetSaves);
}

} // namespace korvane
