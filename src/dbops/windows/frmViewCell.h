#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "table/TabContext.h"

#include <cstdint>

namespace korvane {

class App;

/// What the table and the window of a cell pass to each other.
struct CellExchange {
    Text text;
    /// Where a selection begins on opening, counted from 0. The selection is as long as the settings'
    /// `ViewCellText`. -1 selects nothing.
    int selStart = -1;
};

/// One cell's text in a large window with tools for it. Modal; `DialogResult` is `kWrittenBack` when the
/// text goes back to the table.
class frmViewCell : public Form {
public:
    static constexpr std::int16_t kWrittenBack = 999;

    /// App and exchange outlive the window.
    frmViewCell(App& app, CellExchange& exchange);

    Menu OfficeMenu1;
    CommandButton cmdWriteBack{*this, "cmdWriteBack", u"Write back changes"};
    CommandButton cmdOk{*this, "cmdOk", u"Just continue"};
    CommandButton cmdExit{*this, "cmdExit", u"Close this window"};
    CommandButton cmdClipboard{*this, "cmdClipboard", u"", u"Clipboard"};
    CommandButton cmdWordList{*this, "cmdWordList", u"", u"Word list"};
    CommandButton cmdDateTime{*this, "cmdDateTime", u"", u"Insert date and/or time"};
    CommandButton cmdAsciiBox{*this, "cmdAsciiBox", u"", u"Table of Ascii characters"};
    CommandButton cmdElements{*this, "cmdElements", u"", u"Insert style element"};
    CommandButton cmdFonts{*this, "cmdFonts", u"", u"Specify font for text box"};
    CommandButton cmdHTML{*this, "cmdHTML", u"", u"Get HTML code"};
    TextBox txtCell{*this, "txtCell"};

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    void ConnectButtons();
    void ShowSelection();
    void txtCell_Change();
    void PressOk();
    void InsertTab();
    void cmdWriteBack_Click();
    void cmdOk_Click();
    void cmdClipboard_Click();
    void cmdWordList_Click();
    void cmdDateTime_Click();
    void cmdAsciiBox_Click();
    void cmdElements_Click();
    void cmdFonts_Click();
    void cmdHTML_Click();

    App& app_;
    CellExchange& exchange_;
    bool altered_ = false;
};

/// Shows the current cell in its window, and takes over what is written back.
void mnuEdit_EditCell_Clack(const TabContext& tab);

} // namespace korvane
