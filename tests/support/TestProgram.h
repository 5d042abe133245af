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

/// The whole program on a platform in memory, with a scripted user.
class TestProgram : public TestApp {
public:
    explicit TestProgram(const PathStyle& style = PathStyle::Windows) : TestApp(style) {}

    // These prepare the test.

    /// Puts a settings file beside the program, each line from the field that the reader puts it in.
    void AddSettings(const Settings& settings = {});
    /// Makes a file with a table of one column.
    void AddTable(const Text& path, const TestRow& names);

    /// Starts the program, which shows its main window unless it hands its file over.
    void Start(const Text& commandLine = {});
    /// Starts it with a settings file, empty as far as `settings` doesn't say otherwise.
    void StartWith(const Settings& settings, const Text& commandLine = {});
    frmMDIParent& Main() { return *main_; }
    /// Takes the program's windows away, as the end of its process does.
    void EndProcess() { main_.reset(); }

    // These play the user.

    void Choose(std::string_view command) { main_->OfficeMenu1.Choose(command); }
    /// Opens an empty tab, by starting a design and giving it up.
    void OpenNewTab();
    /// The next window is that of a design, which the user gives up.
    void CancelDesign();
    /// Opens a file through the menu.
    void Open(const Text& path);
    /// Presses a key with the keyboard in the grid of the active tab: the menu bar sees it first. The result
    /// is whether the grid didn't get it.
    bool PressKey(int code, int mask = Mask::None);
    bool PressSideBarKey(int code, int mask = Mask::None);

    // These show the outcome.

    frmMDIChild& Tab(int slot);
    Tabs& AllTabs() { return main_->Parts().tabs; }
    /// The captions along the strip.
    std::vector<Text> Captions() const;
    std::string FileBytes(const Text& path) const { return files.Contents(path).value_or("(no such file)"); }

private:
    /// Whether a menu entry has the key; it has been chosen then.
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
