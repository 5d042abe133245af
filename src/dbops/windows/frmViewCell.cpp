#include "dbops/windows/frmViewCell.h"

#include "common/text/LineEnds.h"
#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/FontPicker.h"
#include "context/ports/InsertTools.h"
#include "context/ports/MarkupPicker.h"
#include "context/ports/WordList.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "grid/Grid.h"
#include "platform/Clipboard.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::ViewCellLeft, &Settings::ViewCellTop, &Settings::ViewCellWidth,
                             &Settings::ViewCellHeight};

} // namespace

struct frmViewCell::Tables {
    static constexpr MenuRow<frmViewCell> kMenu[] = {
        {0, "mnuCell", u"&Cell", ""},
        {1, "mnuWriteBack", u"&Write back changes", "", &frmViewCell::cmdWriteBack},
        {1, "mnuContinue", u"&Just continue", "", &frmViewCell::cmdOk},
        {1, "", u"", ""},
        {1, "mnuExit", u"E&xit", "", &frmViewCell::cmdExit},
        {0, "mnuTools", u"&Tools", ""},
        {1, "mnuClipboard", u"Clip&board", "", &frmViewCell::cmdClipboard},
        {1, "mnuWordList", u"&Wordlist", "", &frmViewCell::cmdWordList},
        {1, "mnuDateTime", u"&Insert date/time", "", &frmViewCell::cmdDateTime},
        {1, "mnuAscii", u"&Ascii table", "", &frmViewCell::cmdAsciiBox},
        {1, "mnuElements", u"St&yle elements", "", &frmViewCell::cmdElements},
        {1, "", u"", ""},
        {1, "mnuFont", u"Set fon&t", "", &frmViewCell::cmdFonts},
        {1, "mnuHTML", u"Get& HTML code", "", &frmViewCell::cmdHTML},
    };
    static constexpr WindowKey<frmViewCell> kKeys[] = {
        {"Any+Esc", &frmViewCell::PressOk},    {"Ctrl+Alt+V", &frmViewCell::cmdClipboard},
        {"Ctrl+Alt+L", &frmViewCell::cmdHTML}, {"Ctrl+K", &frmViewCell::cmdWordList},
        {"Any+Tab", &frmViewCell::InsertTab},
    };
};

frmViewCell::frmViewCell(App& app, CellExchange& exchange)
    : Form(app.Forms(), "frmViewCell", u"View and edit cell"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      exchange_(exchange) {
    txtCell.Change = [this] { txtCell_Change(); };
    txtCell.KeyDown = KeysOf(*this, Tables::kKeys);
    ConnectButtons();
}

void frmViewCell::ConnectButtons() {
    cmdWriteBack.Click = [this] { cmdWriteBack_Click(); };
    cmdOk.Click = [this] { cmdOk_Click(); };
    // Changes are dropped. Kept for compatibility: cell-window-closes-unasked.
    cmdExit.Click = [this] { Close(); };
    cmdClipboard.Click = [this] { cmdClipboard_Click(); };
    cmdWordList.Click = [this] { cmdWordList_Click(); };
    cmdDateTime.Click = [this] { cmdDateTime_Click(); };
    cmdAsciiBox.Click = [this] { cmdAsciiBox_Click(); };
    cmdElements.Click = [this] { cmdElements_Click(); };
    cmdFonts.Click = [this] { cmdFonts_Click(); };
    cmdHTML.Click = [this] { cmdHTML_Click(); };
}

void frmViewCell::Load() {
    const Settings& settings = app_.Settings;
    // Filling the box is no change of the cell.
    const ScopedValue filling(altered_, true, false);
    RestorePlace(app_, *this, kPlace);
    txtCell.Font = {settings.ViewCellFontName, settings.ViewCellFontSize};
    txtCell.Text = exchange_.text;
    ShowSelection();
    txtCell.SetFocus();
}

void frmViewCell::ShowSelection() {
    if (exchange_.selStart < 0) return;
    txtCell.SelStart = exchange_.selStart;
    txtCell.SelLength = static_cast<int>(app_.Settings.ViewCellText.size());
}

void frmViewCell::Unload() {
    StorePlace(app_, *this, kPlace);
}

void frmViewCell::txtCell_Change() {
    if (altered_) return;
    altered_ = true;
    Caption = u"   ( cell text has been altered )";
}

/// Nothing happens once the text was changed. Kept for compatibility: esc-keeps-changed-cell.
void frmViewCell::PressOk() {
    if (!altered_) cmdOk.Press();
}

void frmViewCell::InsertTab() {
    txtCell.SetSelText(u"\t");
}

void frmViewCell::cmdWriteBack_Click() {
    app_.DialogResult = kWrittenBack;
    exchange_.text = txtCell.Text;
    Close();
}

void frmViewCell::cmdOk_Click() {
    app_.DialogResult = 0;
    Close();
}

void frmViewCell::cmdClipboard_Click() {
    auto* clipboardView = app_.Port<ClipboardView>();
    if (clipboardView == nullptr || !clipboardView->Choose()) return;
    txtCell.SetSelText(WithCrLf(app_.Clipboard().GetText()));
}

void frmViewCell::cmdWordList_Click() {
    auto* wordList = app_.Port<WordList>();
    if (wordList == nullptr) return;
    if (const auto word = wordList->Choose()) txtCell.SetSelText(*word);
}

void frmViewCell::cmdDateTime_Click() {
    auto* insertTools = app_.Port<InsertTools>();
    if (insertTools == nullptr) return;
    if (const auto text = insertTools->ChooseDateTime()) txtCell.SetSelText(*text);
}

void frmViewCell::cmdAsciiBox_Click() {
    if (auto* insertTools = app_.Port<InsertTools>()) insertTools->ShowCharacters(txtCell);
}

void frmViewCell::cmdElements_Click() {
    if (auto* insertTools = app_.Port<InsertTools>()) insertTools->ShowElements(txtCell);
}

void frmViewCell::cmdFonts_Click() {
    auto* fontPicker = app_.Port<FontPicker>();
    if (fontPicker == nullptr) return;
    const auto font = fontPicker->Choose(txtCell.Font);
    if (!font) return;
    txtCell.Font = {font->name, font->size};
    app_.Settings.ViewCellFontName = font->name;
    app_.Settings.ViewCellFontSize = static_cast<std::int16_t>(font->size);
}

void frmViewCell::cmdHTML_Click() {
    if (auto* markupPicker = app_.Port<MarkupPicker>()) markupPicker->InsertTagPair(txtCell);
}

void mnuEdit_EditCell_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const CellPosition cell{grid.CurRow(), grid.CurCol()};
    CellExchange exchange{grid.CellText(cell.row, cell.col)};
    frmViewCell form(tab.app, exchange);
    if (ShowForResult(tab.app, form) == frmViewCell::kWrittenBack) {
        grid.SetCellValue(cell.row, cell.col, exchange.text);
        tab.table.TableAltered = 1;
        tab.app.DialogResult = 0;
    }
    grid.GridRefresh();
    grid.GridSetFocus();
}

} // namespace korvane
