#pragma once

#include "common/number/DateTime.h"
#include "controls/CommandButton.h"
#include "controls/Label.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace korvane {

class App;
class Form;
class Tabs;
struct UnsavedTable;
struct UnsavedText;

/// What the main window shows, while no table is open, of the tables and texts whose changes were kept when
/// the program didn't end as it should. A click opens a table on a tab, and a text in the text window.
class UnsavedPage {
public:
    static constexpr std::size_t kMost = 8;

    /// All outlive the page.
    UnsavedPage(App& app, Form& window, Tabs& tabs);

    /// Shows the newest of them, or nothing while a table is open.
    void Fill();

private:
    struct Entry {
        Text name;
        DateTime changed;
        std::function<void()> open;
    };

    std::vector<Entry> Entries();
    Text CaptionOf(const Entry& entry) const;
    void Open(std::size_t at);
    void OpenTable(const UnsavedTable& table);
    void OpenText(const UnsavedText& text);

    App& app_;
    Tabs& tabs_;
    Panel fraUnsaved_;
    Label lblUnsaved_;
    std::vector<std::unique_ptr<CommandButton>> buttons_;
};

} // namespace korvane
