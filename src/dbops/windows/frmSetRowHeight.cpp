#include "dbops/windows/frmSetRowHeight.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

constexpr int kHighest = 128;

} // namespace

frmSetRowHeight::frmSetRowHeight(const TabContext& tab)
    : Form(tab.app.Forms(), "frmSetRowHeight", u"Row height"), tab_(tab) {
    cmdProceed.Click = [this] { cmdProceed_Click(); };
    cmdProceed.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmSetRowHeight::Load() {
    for (int height = 1; height <= kHighest; ++height)
        cboRowHeight.AddItem(NumberText(height));
    cboRowHeight.SetListIndex(tab_.table.SetRowHeight.value_or(std::int16_t{0}) - 1);
}

void frmSetRowHeight::cmdProceed_Click() {
    // The present height need not be one of the list: then nothing is chosen, and all heights stay.
    if (const int index = cboRowHeight.ListIndex(); index >= 0) {
        tab_.table.SetRowHeight = static_cast<std::int16_t>(index + 1);
        tab_.app.DialogResult = 1;
    }
    Close();
}

} // namespace korvane
