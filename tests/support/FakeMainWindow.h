#pragma once

#include "context/App.h"
#include "context/ports/MainWindow.h"
#include "controls/Form.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// Knows the folder of its tab, and remembers what it was to run.
class FakeMainWindow final : public MainWindow {
public:
    explicit FakeMainWindow(App& app) : window(app.Forms(), "frmMDIParent", u"Korvane") {
        app.SetPort<MainWindow>(this);
    }
    Form window;
    Text folder;
    std::vector<std::string> commands;
    /// What the user does with the recent files.
    std::function<void()> onFileList = [] {};

    void GridKeyDown(KeyEvent&) override {}
    void ShowPopupMenu() override {}
    void RunCommand(std::string_view name) override { commands.emplace_back(name); }
    Text GetActiveFolder() override { return folder; }
    Form& Window() override { return window; }
    void ShowFileList() override { onFileList(); }
};

} // namespace korvane
