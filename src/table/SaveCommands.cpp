#include "table/SaveCommands.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/exchange/ClosingSave.h"
#include "context/exchange/ListerRequest.h"
#include "grid/Grid.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "table/TabContext.h"
#include "table/TableFile.h"
#include "table/frmTxtDbInfo.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

enum class InfoAfter : std::uint8_t { Command, Save };

void ShowFileInfo(const TabContext& tab, InfoAfter after) {
    frmTxtDbInfo(tab, after == InfoAfter::Save).ShowModal();
    tab.table.GridStore().GridSetFocus();
}

void SaveAndTell(const TabContext& tab) {
    SaveThisTable(tab);
    if (tab.app.Settings.ShowFileInfoAfterSave == 1) ShowFileInfo(tab, InfoAfter::Save);
}

void SaveUnderChosenName(const TabContext& tab) {
    tab.table.TxtDbFile = tab.app.Exchange<ListerRequest>().ChosenFilePath;
    SaveAndTell(tab);
    tab.host.SetTabCaption(tab.table.TxtDbFile);
    tab.app.DialogResult = 1;
}

Answer AskAboutChanges(const TabContext& tab, MessageIcon icon) {
    return tab.app.Messages().Show({u"The text database has been changed.\r\n\r\n" + tab.table.TxtDbFile +
                                        u"\r\n\r\nDo you want to save the changes?\r\n",
                                    icon, MessageButtons::YesNoCancel});
}

/// Asks for no name. Kept for compatibility: closing-saves-directly.
bool SaveAtClosing(const TabContext& tab) {
    // A result that another window left earlier mustn't stop this closing.
    tab.app.DialogResult = 0;
    const ScopedValue closing(tab.app.Exchange<ClosingSave>().ClosingTabSave, 1, 0);
    mnuFile_Save_Clack(tab);
    return tab.table.TableAltered == 0 && tab.app.DialogResult != kKeepTabOpen;
}

} // namespace

void mnuFile_Save_Clack(const TabContext& tab) {
    const Text& path = tab.table.TxtDbFile;
    if (!path.empty() && tab.app.Files().FileExists(path)) {
        SaveAndTell(tab);
    } else {
        tab.app.Messages().Show(
            {u"Cannot save this file: \r\n\r\n" + path + u"\r\n\r\nTry saving it explicitly.",
             MessageIcon::Stop});
        mnuFile_SaveAs_Clack(tab);
    }
    tab.table.GridStore().GridSetFocus();
}

void mnuFile_SaveAs_Clack(const TabContext& tab) {
    {
        const KeepCurrentDir keep(tab.app);
        ShowFileChooser(tab.app, ChooserMode::Save, u"*.tbx", u"Save database to disk", tab.table.TxtDbFile);
        if (!tab.app.Exchange<ListerRequest>().ChosenFilePath.empty()) SaveUnderChosenName(tab);
    }
    tab.table.GridStore().GridSetFocus();
}

void mnuFile_FileInfo_Clack(const TabContext& tab) {
    ShowFileInfo(tab, InfoAfter::Command);
}

bool AskToSave(const TabContext& tab) {
    if (tab.table.TableAltered != 1) return true;
    switch (AskAboutChanges(tab, MessageIcon::None)) {
    case Answer::Yes:
        mnuFile_SaveAs_Clack(tab);
        return tab.table.TableAltered == 0;
    case Answer::No:
        return true;
    default:
        return false;
    }
}

bool AskToSaveAtClosing(const TabContext& tab) {
    if (tab.table.TableAltered != 1) return true;
    switch (AskAboutChanges(tab, MessageIcon::Question)) {
    case Answer::Yes:
        return SaveAtClosing(tab);
    case Answer::No:
        return true;
    default:
        return false;
    }
}

} // namespace korvane
