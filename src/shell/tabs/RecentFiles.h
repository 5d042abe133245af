#pragma once

#include "common/text/Text.h"

#include <cstddef>

namespace korvane {

class App;
class Form;
class LoadPipeline;
class RecentRecord;
class Tabs;

/// Loads files from the list of recent files into tabs.
class RecentFiles {
public:
    /// `window` is the main window, beside which the list docks. All outlive the object.
    RecentFiles(App& app, Tabs& tabs, RecentRecord& recents, LoadPipeline& pipeline, const Form& window)
        : app_(app), tabs_(tabs), recents_(recents), pipeline_(pipeline), window_(window) {}

    /// Shows the recent files and loads those that the user picks, each on a tab of its own.
    void ShowRecentFiles();
    /// Loads one of them on a tab of its own; says so when it isn't there any more.
    void Open(const Text& path);

private:
    void LoadPick(std::size_t index);
    void OpenFromRecord(const Text& path);
    /// Throws the only tab away when nothing was ever loaded into it.
    void DiscardPristineUntitled();

    App& app_;
    Tabs& tabs_;
    RecentRecord& recents_;
    LoadPipeline& pipeline_;
    const Form& window_;
};

} // namespace korvane
