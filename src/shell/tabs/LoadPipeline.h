#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

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
    /// Nothing when the load stops here.
    std::optional<std::vector<Text>> FilesToLoad(const Text& path);
    bool ChooseFiles();
    bool ConfirmSeveral(std::size_t count);
    bool IsLoaded(const Text& file);
    /// `place` is that of the file in the list of this load, from 0.
    void LoadFile(std::size_t place, const Text& file, LoadInto into);
    void ReadIntoActiveTab(const Text& file);

    App& app_;
    Tabs& tabs_;
    RecentRecord& recents_;
    const Form& window_;
};

} // namespace korvane
