#include "dbops/windows/frmChooseRange.h"

#include "context/App.h"
#include "dbops/rules/Rows.h"
#include "dialogs/Questions.h"

namespace korvane {

namespace {

constexpr std::int16_t kAllRows = 0;
constexpr std::int16_t kTickedRows = 1;

} // namespace

frmChooseRange::frmChooseRange(App& app) : Form(app.Forms(), "frmChooseRange", u"Choose range"), app_(app) {
    cmdProceed.Click = [this] { cmdProceed_Click(); };
    cmdProceed.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmChooseRange::Load() {
    const bool onlyTicked = app_.Settings.ChooseRangeOption == kTickedRows;
    (onlyTicked ? Option2 : Option1).Value = true;
}

void frmChooseRange::cmdProceed_Click() {
    app_.Settings.ChooseRangeOption = Option2.Value ? kTickedRows : kAllRows;
    app_.DialogResult = 1;
    Close();
}

bool ChooseRange(App& app) {
    frmChooseRange form(app);
    return ShowForResult(app, form) != 0;
}

bool IsInChosenRange(const App& app, const Grid& grid, Row row) {
    const std::int16_t range = app.Settings.ChooseRangeOption;
    return range == kAllRows || (range == kTickedRows && IsTicked(grid, row));
}

} // namespace korvane
