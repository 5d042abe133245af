#include "dbops/windows/frmTxtDbAddRows.h"

#include "common/number/Number.h"
#include "context/App.h"

namespace korvane {

namespace {

constexpr int kMostRows = 12;
constexpr std::size_t kEntryWidth = 3;

} // namespace

frmTxtDbAddRows::frmTxtDbAddRows(App& app) : Form(app.Forms(), "frmTxtDbAddRows", u"Add rows"), app_(app) {
    cmdProceed.Click = [this] { cmdProceed_Click(); };
    cmdProceed.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmTxtDbAddRows::Load() {
    for (int rows = 1; rows <= kMostRows; ++rows) {
        const Text number = NumberText(rows);
        List1.AddItem(Text(kEntryWidth - number.size(), u' ') + number);
    }
}

void frmTxtDbAddRows::cmdProceed_Click() {
    ReadNumber(List1.List(List1.ListIndex()), app_.DialogResult);
    Close();
}

} // namespace korvane
