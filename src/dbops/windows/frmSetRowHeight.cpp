#include "dbops/windows/frmSetRowHeight.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "table/TableModel.h"

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
    std::int16_t height = 0;
    ReadNumber(cboRowHeight.Chosen(), height);
    tab_.table.SetRowHeight = height;
    tab_.app.DialogResult = 1;
    Close();
}

} // namespace korvane
