#pragma once

#include "controls/CommandButton.h"
#include "controls/Label.h"

#include <functional>
#include <memory>
#include <vector>

namespace korvane {

class App;
class Form;
class RecentRecord;

/// What the main window shows while no table is open: the recent files and a sample, each of which a click
/// opens.
class StartPage {
public:
    using OpenFile = std::function<void(const Text& path)>;
    static constexpr int kFiles = 8;

    /// App and window outlive the page.
    StartPage(App& app, Form& window, OpenFile open);

    /// Shows the newest files of the record that are there.
    void Fill(const RecentRecord& recents);

private:
    void ShowFile(CommandButton& button, const Text& path, TextView before);

    App& app_;
    OpenFile open_;
    Label lblStart_;
    std::vector<std::unique_ptr<CommandButton>> files_;
    CommandButton cmdSample_;
};

} // namespace korvane
