#include "dbops/windows/frmDelimiterType.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/exchange/DelimiterChoice.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

/// The delimiters that the entries of `optDelimiter` choose, in their order.
constexpr std::array<TextView, 5> kDelimiters{u"\t", u",", u";", u" ", u""};

TextView DestinationText(CopyDestination destination) {
    return destination == CopyDestination::TextWindow ? u"text module" : u"clipboard";
}

} // namespace

frmDelimiterType::frmDelimiterType(const TabContext& tab, CopyRequest& request)
    : Form(tab.app.Forms(), "frmDelimiterType", u"Copy rows"), tab_(tab), request_(request) {
    cmdProceed.Click = [this] { cmdProceed_Click(); };
    cmdProceed.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmDelimiterType::Load() {
    ListColumns();
    ShowDelimiter();
    chkBreakAfterFieldThree.Value = tab_.app.Exchange<DelimiterChoice>().BreakAfterFieldThree;
    lblDestination.Caption = Text(DestinationText(request_.destination));
    lblCheckedRows.Caption = NumberText(request_.rowsToCopy);
}

void frmDelimiterType::ListColumns() {
    const Grid& grid = tab_.table.GridStore();
    request_.ColumnIncluded = {};
    for (Col col{1}; col <= grid.ColCount(); ++col) {
        request_.ColumnIncluded.Set(col, true);
        lstColumns.AddItem(grid.ColHeaderText(col));
        lstColumns.SetSelected(col.Number() - 1, true);
    }
}

void frmDelimiterType::ShowDelimiter() {
    for (std::size_t index = 0; index < kDelimiters.size(); ++index) {
        if (tab_.app.Settings.DelimiterString == kDelimiters[index]) optDelimiter[index].Value = true;
    }
}

void frmDelimiterType::TakeDelimiter() {
    for (std::size_t index = 0; index < kDelimiters.size(); ++index) {
        if (!optDelimiter[index].Value) continue;
        tab_.app.Settings.DelimiterString = Text(kDelimiters[index]);
        tab_.app.Settings.ImportDelimiterType = static_cast<std::int16_t>(index);
    }
}

void frmDelimiterType::cmdProceed_Click() {
    for (int index = 0; index < lstColumns.ListCount(); ++index) {
        if (!lstColumns.Selected(index)) request_.ColumnIncluded.Set(Col{index + 1}, false);
    }
    TakeDelimiter();
    tab_.app.Exchange<DelimiterChoice>().BreakAfterFieldThree = chkBreakAfterFieldThree.Value;
    tab_.app.DialogResult = 1;
    Close();
}

} // namespace korvane
