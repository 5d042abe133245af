#include "dbops/windows/frmFindReplace.h"

#include "context/App.h"
#include "controls/KeyTable.h"
#include "dbops/rules/UndoCommands.h"
#include "dialogs/Questions.h"
#include "grid/Grid.h"
#include "platform/MessageBoxes.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

constexpr Colour kGreyedBack{0xE0E0E0};

/// The cell's text with the match replaced.
Text ReplacedText(const Grid& grid, const TableMatch& match, TextView part, TextView replacement) {
    // The place of a match in its cell is known only for the rows below. Kept for compatibility:
    // replace-empties-cell.
    if (match.inCurrentRow) return {};
    const Text text = grid.CellText(match.cell.row, match.cell.col);
    const std::size_t at = InStr(text, part);
    Text replaced(Left(text, at - 1));
    replaced.append(replacement).append(Mid(text, at + part.size()));
    return replaced;
}

void ShowFindReplace(const TabContext& tab, FindMode mode) {
    frmFindReplace(tab, mode).ShowModal();
    tab.table.GridStore().GridSetFocus();
}

} // namespace

struct frmFindReplace::Tables {
    static constexpr WindowKey<frmFindReplace> kFindKeys[] = {{"Any+Return", &frmFindReplace::cmdFindButton}};
    static constexpr WindowKey<frmFindReplace> kReplaceKeys[] = {
        {"Any+Return", &frmFindReplace::cmdReplaceButton}};
};

frmFindReplace::frmFindReplace(const TabContext& tab, FindMode mode)
    : Form(tab.app.Forms(), "frmFindReplace", u"Find and Replace"), tab_(tab), mode_(mode) {
    Text1.KeyDown = KeysOf(*this, Tables::kFindKeys);
    Text2.KeyDown = KeysOf(*this, Tables::kReplaceKeys);
    cmdFindButton.Click = [this] { FindNext(); };
    cmdReplaceButton.Click = [this] { cmdReplaceButton_Click(); };
    cmdSwitch.Click = [this] { cmdSwitch_Click(); };
    cmdTextTop.Click = [this] { cmdTextTop_Click(); };
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmFindReplace::Load() {
    const Settings& settings = tab_.app.Settings;
    Text1.Text = settings.FindText;
    Text1.SelectAll();
    Text1.SetFocus();
    Text2.Text = settings.ReplaceText;
    Check1.Value = settings.ReplaceOption;
    if (mode_ == FindMode::Replace) return;
    Text2.Enabled = false;
    Text2.BackColor = kGreyedBack;
    cmdReplaceButton.Enabled = false;
}

void frmFindReplace::Unload() {
    Settings& settings = tab_.app.Settings;
    settings.FindText = Text1.Text;
    settings.ReplaceText = Text2.Text;
    // The search doesn't ask for it. Kept for compatibility: case-box-without-effect.
    settings.ReplaceOption = Check1.Value;
}

std::optional<TableMatch> frmFindReplace::FindNext() {
    const Text& part = tab_.app.Settings.FindText = Text1.Text;
    Grid& grid = tab_.table.GridStore();
    const auto match = FindBehindCurrentCell(grid, part);
    if (match) {
        GoToMatch(grid, *match);
    } else {
        Warn(tab_.app, u"No (further) find for string: \r\n\r\n\"" + part + u"\"");
    }
    return match;
}

void frmFindReplace::cmdReplaceButton_Click() {
    if (const auto match = FindNext()) ReplaceIn(*match);
}

void frmFindReplace::ReplaceIn(const TableMatch& match) {
    Settings& settings = tab_.app.Settings;
    settings.ReplaceText = Text2.Text;
    // Kept for compatibility: empty-replacement-does-nothing.
    if (settings.ReplaceText.empty()) return;
    Grid& grid = tab_.table.GridStore();
    grid.SetCellValue(match.cell.row, match.cell.col,
                      ReplacedText(grid, match, settings.FindText, settings.ReplaceText));
    tab_.table.TableAltered = 1;
    EndEdit(tab_);
}

void frmFindReplace::cmdSwitch_Click() {
    const Text find = Text1.Text;
    Text1.Text = Text2.Text;
    Text2.Text = find;
}

void frmFindReplace::cmdTextTop_Click() {
    Grid& grid = tab_.table.GridStore();
    grid.SetCurRow(Row{1});
    grid.SetCurCol(Col{1});
}

void mnuEdit_Find_Clack(const TabContext& tab) {
    ShowFindReplace(tab, FindMode::Find);
}

void mnuEdit_Replace_Clack(const TabContext& tab) {
    ShowFindReplace(tab, FindMode::Replace);
}

} // namespace korvane
