#include "Windows.h"

#include "dbops/windows/frmChooseRange.h"
#include "dbops/windows/frmFindReplace.h"
#include "dbops/windows/frmFormatTable.h"
#include "dbops/windows/frmRowColour.h"
#include "dbops/windows/frmSetRowHeight.h"
#include "dbops/windows/frmTxtDbAddRows.h"
#include "dbops/windows/frmTxtDbColName.h"
#include "dialogs/frmMyInputBox.h"
#include "dialogs/frmMyMsgBox.h"
#include "extras/clock/frmShowTimer.h"
#include "extras/lock/frmWallpaper.h"
#include "extras/web/frmBrowser.h"
#include "extras/web/frmWebList.h"
#include "files/jobs/frmAskCopyMove.h"
#include "files/jobs/frmCopyMove.h"
#include "files/jobs/frmFolderOpNotify.h"
#include "files/lister/frmGetFileFromTree.h"
#include "files/lists/frmFavouriteLocations.h"
#include "files/lists/frmFindStingInList.h"
#include "files/lists/frmFoldersToday.h"
#include "files/lists/frmOpenFileWith.h"
#include "files/names/frmDupFile.h"
#include "files/names/frmEnterFileName.h"
#include "files/names/frmNewDir.h"
#include "files/names/frmRenDir.h"
#include "files/names/frmRenFile.h"
#include "platform/FileSystem.h"
#include "shell/commands/frmAbout.h"
#include "shell/commands/frmHelp.h"
#include "shell/recent/frmFileList.h"
#include "shell/settings/frmCtrlRet.h"
#include "shell/settings/frmProgramLocations.h"
#include "shell/settings/frmSetYourProg.h"
#include "shell/settings/frmSettings.h"
#include "shell/settings/frmWindowSize.h"
#include "shell/tabs/frmLoadList.h"
#include "table/frmDesignTable.h"
#include "table/frmTxtDbInfo.h"
#include "text/control/frmTextInsertTable.h"
#include "text/control/frmTextList.h"
#include "text/control/frmTextPage.h"
#include "text/control/frmTextParagraph.h"
#include "text/control/frmTextSearch.h"
#include "text/control/frmTextTable.h"
#include "text/control/frmTextTabs.h"
#include "text/fields/frmShowFieldContents.h"
#include "text/fields/frmViewEditField.h"
#include "text/find/frmFindString.h"
#include "text/formats/frmQuickNameSize.h"
#include "text/formats/frmSetForegroundColour.h"
#include "text/frmViewAndPaste.h"
#include "text/insert/frmASCIIBox.h"
#include "text/insert/frmDateType.h"
#include "text/insert/frmElements.h"
#include "text/insert/frmSymbolTables.h"
#include "text/markup/frmHTMLCodes.h"
#include "text/paragraph/frmFramesDlg.h"
#include "text/paragraph/frmIndent.h"
#include "text/paragraph/frmParaSpacing.h"
#include "text/paragraph/frmTabWidth.h"
#include "text/window/frm_RTF_HTM.h"
#include "text/words/frmHoldWordList.h"

namespace korvane {

namespace {

template <class FormT>
std::unique_ptr<Form> FromApp(Surroundings& all) {
    return std::make_unique<FormT>(all.app);
}
template <class FormT>
std::unique_ptr<Form> FromText(Surroundings& all) {
    return std::make_unique<FormT>(all.app, all.text);
}

constexpr Window kWindows[] = {
    {"frmAbout", FromApp<frmAbout>},
    {"frmASCIIBox",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmASCIIBox>(all.app, &all.insertTarget);
     }},
    {"frmAskCopyMove",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmAskCopyMove>(all.app, all.copyMove);
     }},
    {"frmBrowser",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmBrowser>(all.app, u"C:\\data\\Page.htm");
     }},
    {"frmChooseRange", FromApp<frmChooseRange>},
    {"frmCopyMove", FromApp<frmCopyMove>},
    {"frmCtrlRet", FromApp<frmCtrlRet>},
    {"frmDateType", FromApp<frmDateType>},
    {"frmDelimiterType",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmDelimiterType>(all.tab, all.copy);
     }},
    {"frmDesignTable",
     [](Surroundings& all) -> std::unique_ptr<Form> { return std::make_unique<frmDesignTable>(all.tab); }},
    {"frmDupFile", FromApp<frmDupFile>},
    {"frmElements",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmElements>(all.app, &all.insertTarget);
     }},
    {"frmEnterFileName",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmEnterFileName>(all.app, all.nameLine);
     }},
    {"frmFavouriteLocations",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmFavouriteLocations>(all.app, all.main, u"C:\\data");
     }},
    {"frmFileList",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmFileList>(all.app, all.main.Parts().recents, all.main);
     }},
    {"frmFindReplace",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmFindReplace>(all.tab, FindMode::Replace);
     }},
    {"frmFolderOpNotify",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         auto form = std::make_unique<frmFolderOpNotify>(all.app);
         form->TellOfDeletion(u"C:\\data\\Old letters");
         return form;
     }},
    {"frmFindStingInList",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmFindStingInList>(all.app, u"garden");
     }},
    {"frmFindString",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         all.app.Exchange<FindState>() = {u"garden\rhouse\r", u"garden"};
         all.app.Settings.WordDelimiters = u"'\",.;:#/()[]{} \t\f\n\r";
         return std::make_unique<frmFindString>(all.app, all.text);
     }},
    {"frmFoldersToday",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmFoldersToday>(all.app, u"C:\\data");
     }},
    {"frmFormatTable", FromApp<frmFormatTable>},
    {"frmFramesDlg", FromApp<frmFramesDlg>},
    {"frmGetFileFromTree", FromApp<frmGetFileFromTree>},
    {"frmHelp",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmHelp>(
             all.app, std::vector<HelpSection>{{u"What Korvane is", u"Korvane keeps tables of text.\r\n\r\n"},
                                               {u"The keys", u"F1  \u2013  This help text\r\n\r\n"}});
     }},
    {"frmHoldWordList",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         all.app.Exchange<WordListState>().WordListBuffer =
             u"Yours sincerely\rwith reference to your letter of\rTable of contents\r";
         return std::make_unique<frmHoldWordList>(all.app);
     }},
    {"frmHTMLCodes", FromApp<frmHTMLCodes>},
    {"frmIndent", FromApp<frmIndent>},
    {"frmLoadList",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmLoadList>(all.app, all.main.Parts().tabs, all.main);
     }},
    {"frmMDIChild",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmMDIChild>(all.app, all.states);
     }},
    {"frmMDIParent",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmMDIParent>(all.app, Text());
     }},
    {"frmMyInputBox", FromApp<frmMyInputBox>},
    {"frmMyMsgBox", FromApp<frmMyMsgBox>},
    {"frmNewDir", FromApp<frmNewDir>},
    {"frmOpenFileWith", FromApp<frmOpenFileWith>},
    {"frmParaSpacing", FromApp<frmParaSpacing>},
    {"frmProgramLocations", FromApp<frmProgramLocations>},
    {"frmQuickNameSize", FromApp<frmQuickNameSize>},
    {"frmRenDir", FromApp<frmRenDir>},
    {"frmRenFile", FromApp<frmRenFile>},
    {"frmRowColour",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmRowColour>(all.tab, Colour{0xFFFFFF});
     }},
    {"frm_RTF_HTM", FromApp<frm_RTF_HTM>},
    {"frmSetForegroundColour", FromApp<frmSetForegroundColour>},
    {"frmSetRowHeight",
     [](Surroundings& all) -> std::unique_ptr<Form> { return std::make_unique<frmSetRowHeight>(all.tab); }},
    {"frmSetYourProg", FromApp<frmSetYourProg>},
    {"frmSettings",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmSettings>(all.app, all.main.Parts().tabs, all.main.OfficeMenu1,
                                              all.main.iGridListBar);
     }},
    {"frmShowFieldContents", FromApp<frmShowFieldContents>},
    {"frmShowTimer", FromApp<frmShowTimer>},
    {"frmSymbolTables",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmSymbolTables>(all.app, &all.insertTarget);
     }},
    {"frmTabWidth", FromApp<frmTabWidth>},
    {"frmTextInsertTable", FromText<frmTextInsertTable>},
    {"frmTextList", FromText<frmTextList>},
    {"frmTextPage", FromText<frmTextPage>},
    {"frmTextParagraph", FromText<frmTextParagraph>},
    {"frmTextSearch",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmTextSearch>(all.app, all.text, SearchUse::Replace, all.search);
     }},
    {"frmTextTable", FromText<frmTextTable>},
    {"frmTextTabs", FromText<frmTextTabs>},
    {"frmTxtDbAddRows", FromApp<frmTxtDbAddRows>},
    {"frmTxtDbColName",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmTxtDbColName>(all.app, u"Name");
     }},
    {"frmTxtDbInfo",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmTxtDbInfo>(all.tab, true);
     }},
    {"frmTxtInfo",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmTxtInfo>(all.app, all.facts);
     }},
    {"frmViewAndPaste", FromApp<frmViewAndPaste>},
    {"frmViewEditField",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmViewEditField>(all.app, all.text);
     }},
    {"frmViewCell",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmViewCell>(all.app, all.cell);
     }},
    {"frmWallpaper",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         all.app.Settings.WallpaperFile = u"C:\\sea.png";
         all.app.Files().OpenRaw(all.app.Settings.WallpaperFile);
         return std::make_unique<frmWallpaper>(all.app);
     }},
    {"frmWebList",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmWebList>(all.app, all.main);
     }},
    {"frmWindowSize",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmWindowSize>(all.app, all.main.Parts().windowSize);
     }},
};

} // namespace

std::span<const Window> AllWindows() {
    return kWindows;
}

} // namespace korvane
