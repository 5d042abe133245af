#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"

#include <cstdint>

namespace korvane {

class App;
struct Rect;

/// What was picked last in `frmWindowSize`. It is kept as long as the program runs.
struct WindowSizeChoice {
    std::int16_t WindowLayoutChoice = 0;
    std::int16_t WindowPercentChoice = 0;
};

/// Asks where on the screen, or how large in percent of it, a window is to be. Modal; `DialogResult` is 1 for
/// a layout and 2 for a percentage, and `choice` holds what was picked.
class frmWindowSize : public Form {
public:
    /// The choice outlives the window.
    frmWindowSize(App& app, WindowSizeChoice& choice);

    ListBox List1{*this, "List1"};
    ListBox lstSize{*this, "lstSize"};
    CommandButton cmdOk{*this, "cmdOk", u"&Size"};
    CommandButton cmdPercent{*this, "cmdPercent", u"&Percent"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    struct Tables;

    void CloseWith(std::int16_t result);

    App& app_;
    WindowSizeChoice& choice_;
};

/// Lets the user choose and gives the window its place in the work area; false when the user gave up.
bool ChooseWindowSize(App& app, WindowSizeChoice& choice, Form& window);

// The entries are numbered from 0. An index without an entry leaves the window alone.

/// Puts the window where the entry of the layouts says.
void ApplyWindowLayout(Form& window, const Rect& workArea, int layout);

/// Gives the window the size that belongs to the entry of the percentages, and centres it.
void ApplyWindowPercent(Form& window, const Rect& workArea, int percentEntry);

} // namespace korvane
