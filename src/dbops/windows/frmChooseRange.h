#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "grid/Grid.h"

namespace korvane {

class App;

/// Asks which rows a pending operation takes. Modal; `DialogResult` is 1 when it may go on.
class frmChooseRange : public Form {
public:
    explicit frmChooseRange(App& app);

    OptionButton Option1{*this, "Option1", "ChooseRange", u"All rows in table"};
    OptionButton Option2{*this, "Option2", "ChooseRange", u"Only rows with ticks in box on left"};
    CommandButton cmdProceed{*this, "cmdProceed", u"&Proceed"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    void cmdProceed_Click();

    App& app_;
};

/// Lets the user choose the rows; false when the user gives up.
bool ChooseRange(App& app);

/// Whether the row is among those last chosen.
bool IsInChosenRange(const App& app, const Grid& grid, Row row);

} // namespace korvane
