#include "table/frmTxtDbInfo.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/exchange/ClosingSave.h"
#include "grid/Grid.h"
#include "platform/FileSystem.h"
#include "platform/UserLocale.h"
#include "table/SaveCommands.h"
#include "table/model/TableModel.h"

namespace korvane {

frmTxtDbInfo::frmTxtDbInfo(const TabContext& tab, bool afterSave)
    : FileInfoForm(tab.app, "frmTxtDbInfo", afterSave ? u"Database saved to disk!" : u"File information"),
      tab_(tab) {
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmTxtDbInfo::Load() {
    const TableModel& table = tab_.table;
    ShowPath(table.TxtDbFile);
    lblRows.Caption = NumberText(table.GridStore().RowCount().Number());
    lblCols.Caption = NumberText(table.GridStore().ColCount().Number());
    ShowFile();
    cmdCancel.Visible = tab_.app.Exchange<ClosingSave>().ClosingTabSave == 1;
}

void frmTxtDbInfo::ShowFile() {
    const FileSystem& files = tab_.app.Files();
    if (const auto size = files.Size(tab_.table.TxtDbFile)) {
        lblFileSize.Caption = FormatGrouped(*size) + u" bytes";
    }
    if (const auto modified = files.Modified(tab_.table.TxtDbFile)) {
        lblArchived.Caption = tab_.app.Locale().GeneralDate(*modified);
    }
}

Text frmTxtDbInfo::Facts() const {
    return NameLines() + Line(u"Rows: ", lblRows.Caption.Get()) + Line(u"Cols.: ", lblCols.Caption.Get()) +
           SizeLines();
}

void frmTxtDbInfo::cmdCancel_Click() {
    tab_.app.DialogResult = kKeepTabOpen;
    Close();
}

} // namespace korvane
