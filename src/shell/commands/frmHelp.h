#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"
#include "shell/commands/HelpSections.h"

#include <vector>

namespace korvane {

class App;

/// The help text, a section at a time. It is shown where no other program shows it. Modal.
class frmHelp : public Form {
public:
    frmHelp(App& app, std::vector<HelpSection> sections);

    ListBox lstSections{*this, "lstSections"};
    TextBox txtHelp{*this, "txtHelp"};
    CommandButton cmdClose{*this, "cmdClose", u"&Close"};

    void Load() override;

private:
    void ShowSection();

    std::vector<HelpSection> sections_;
};

/// Shows the help text in this window; says so when the text can't be read.
void ShowHelp(App& app);

} // namespace korvane
