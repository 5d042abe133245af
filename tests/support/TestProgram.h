#pragma once

#include "common/settings/Settings.h"
#include "grid/Grid.h"
#include "shell/main/frmMDIParent.h"
#include "shell/tabs/frmMDIChild.h"
#include "support/TableBytes.h"
#include "support/TestApp.h"
#include "text/ClipboardWindow.h"

#include <memory>
#include <string>
#include <string_view>

namespace korvane {

/// The whole program on an in-memory platform with a scripted user.
class TestProgram : public TestApp {
public:
    explicit TestProgram(const PathStyle& style = PathStyle::Windows) : TestApp(style) {}

    // Preparing the test.

    /// Adds a settings file to the program's folder. Each line of it comes from the field into which the
    /// reader puts it.
    void AddSettings(const Settings& settings = {});
    /// Adds the file of a table with one column.
    void AddTable(const Text& path, const TestRow& names);

    /// Starts the program. It shows its main window unless it hands its file over to a running copy.
    void Start(const Text& commandLine = {});
    /// Starts the program with a settings file. Lines that `settings` doesn't set are empty.
    void StartWith(const Settings& settings, const Text& commandLine = {});
    frmMDIParent& Main() { return *main_; }
    /// Destroys the program's windows, as the end of its process does.
    void EndProcess() { main_.reset(); }

    // What the user does.

    void Choose(std::string_view command) { main_->OfficeMenu1.Choose(command); }
    /// Opens an empty tab by starting a new table and cancelling its design.
    void OpenNewTab();
    /// The next window to appear is the one for designing a table, and the user cancels it.
    void CancelDesign();
    /// Opens a file with the command of the menu.
    void Open(const Text& path);
    /// Presses a key while the grid of the active tab has the keyboard. The menu bar gets the key first.
    /// Returns whether the key was kept from the grid.
    bool PressKey(int code, int mask = Mask::None);
    bool PressSideBarKey(int code, int mask = Mask::None);

    // What the user sees.

    frmMDIChild& Tab(int slot);
    Tabs& AllTabs() { return main_->Parts().tabs; }
    /// The captions of all tabs.
    std::vector<Text> Captions() const;
    std::string FileBytes(const Text& path) const { return files.Contents(path).value_or("(no such file)"); }

private:
    /// Chooses the menu entry with this key. Returns false when there is none.
    bool ChooseByKey(const KeyEvent& key);

    ClipboardWindow clipboardWindow_{app};
    std::unique_ptr<frmMDIParent> main_;
};

/// All lines of a settings file.
std::string SettingsBytes(const Settings& settings);

/// Counts how often a grid asks for the keyboard.
class FocusCounter final : public GridListener {
public:
    explicit FocusCounter(Grid& grid) : grid_(grid) { grid_.SetListener(this); }
    FocusCounter(const FocusCounter&) = delete;
    FocusCounter& operator=(const FocusCounter&) = delete;
    ~FocusCounter() override { grid_.SetListener(nullptr); }

    int Count() const { return count_; }

    void RowsChanged(Row, Row) override {}
    void TableChanged() override {}
    void ColumnChanged(Col) override {}
    void LookChanged() override {}
    void CurrentCellChanged() override {}
    void FocusWanted() override { ++count_; }
    void RowWantedInView(Row) override {}

private:
    Grid& grid_;
    int count_ = 0;
};

} // namespace korvane
