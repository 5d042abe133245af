#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

class App;
class Form;
class RecentRecord;
class Tabs;

enum class LoadInto : std::uint8_t { ActiveTab, NewTab };

/// Loads files into tabs, wherever they come from.
class LoadPipeline {
public:
    /// `window` is the main window, beside which the list of loaded files docks. All outlive the pipeline.
    LoadPipeline(App& app, Tabs& tabs, RecentRecord& recents, const Form& window)
        : app_(app), tabs_(tabs), recents_(recents), window_(window) {}

    /// Loads the file; for an empty path, those that the user chooses. With `NewTab`, each file gets a tab of
    /// its own. Stops at a file that is open already. False when there was no file to load.
    bool OpenDatabase(const Text& path, LoadInto into);

private:
    /// False when the load stops here.
    bool TakeFiles(const Text& path);
    bool ChooseFiles();
    bool ConfirmSeveral();
    bool IsLoaded(const Text& file);
    /// `number` is the file's place in the list of this load.
    void LoadFile(int number, const Text& file, LoadInto into);
    void ReadIntoActiveTab(const Text& file);

    App& app_;
    Tabs& tabs_;
    RecentRecord& recents_;
    const Form& window_;
};

} // namespace korvane
