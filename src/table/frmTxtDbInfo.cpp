#include "table/frmTxtDbInfo.h"

#include "common/DateTime.h"
#include "common/Number.h"
#include "context/App.h"
#include "platform/Clipboard.h"
#include "platform/FileSystem.h"
#include "table/SaveCommands.h"
#include "table/TableModel.h"

namespace korvane {

frmTxtDbInfo::frmTxtDbInfo(const TabContext& tab, bool afterSave)
    : Form(tab.app.Forms(), "frmTxtDbInfo", afterSave ? u"Database saved to disk!" : u"File information"),
      tab_(tab) {
    cmdClip.Click = [this] { cmdClip_Click(); };
    cmdClose.Click = [this] { Close(); };
    cmdClose.Default = true;
    cmdClose.Cancel = true;
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmTxtDbInfo::Load() {
    const TableModel& table = tab_.table;
    const PathStyle style = tab_.app.Files().Style();
    lblFileName.Caption = Text(style.NamePart(table.TxtDbFile));
    lblFilePath.Caption = Text(style.FolderPart(table.TxtDbFile));
    lblRows.Caption = NumberText(table.GridStore().RowCount().Number());
    lblCols.Caption = NumberText(table.GridStore().ColCount().Number());
    ShowFile();
    cmdCancel.Visible = tab_.app.ClosingTabSave == 1;
}

void frmTxtDbInfo::ShowFile() {
    const FileSystem& files = tab_.app.Files();
    if (const auto size = files.Size(tab_.table.TxtDbFile)) {
        lblFileSize.Caption = FormatGrouped(*size) + u" bytes";
    }
    if (const auto modified = files.Modified(tab_.table.TxtDbFile)) {
        lblArchived.Caption = GeneralDate(*modified);
    }
}

void frmTxtDbInfo::cmdClip_Click() {
    const auto line = [](TextView title, const Text& value) { return Text(title) + value + Text(kCrLf); };
    // The label of the size ends in " bytes" already, so that the word stands twice. Deliberate: readers of
    // these texts expect the line as it has always been.
    const Text size = FormatGrouped(TextView(lblFileSize.Caption.Get())) + u" bytes";
    tab_.app.Clipboard().SetText(line(u"File: ", lblFileName.Caption) + line(u"Path: ", lblFilePath.Caption) +
                                 line(u"Rows: ", lblRows.Caption) + line(u"Cols.: ", lblCols.Caption) +
                                 line(u"Size: ", size) + line(u"Archived: ", lblArchived.Caption) +
                                 Text(kCrLf));
}

void frmTxtDbInfo::cmdCancel_Click() {
    tab_.app.DialogResult = kKeepTabOpen;
    Close();
}

} // namespace korvane
