#pragma once

#include "controls/CommandButton.h"
#include "controls/Label.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace korvane {

class App;
class Form;
class Tabs;
struct UnsavedTable;

/// What the main window shows, while no table is open, of the tables whose changes were kept when the program
/// didn't end as it should. A click opens one of them on a tab.
class UnsavedPage {
public:
    static constexpr std::size_t kTables = 8;

    /// All outlive the page.
    UnsavedPage(App& app, Form& window, Tabs& tabs);

    /// Shows the newest of them, or nothing while a table is open.
    void Fill();

private:
    Text CaptionOf(const UnsavedTable& table) const;
    void Open(std::size_t at);

    App& app_;
    Tabs& tabs_;
    Panel fraUnsaved_;
    Label lblUnsaved_;
    std::vector<std::unique_ptr<CommandButton>> buttons_;
};

} // namespace korvane
