#include "text/window/TextToolsForm.h"

#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/Launching.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/InsertTools.h"
#include "context/ports/MainWindow.h"
#include "context/ports/TextFinder.h"
#include "context/ports/TextTools.h"
#include "context/ports/WordList.h"
#include "dialogs/Docking.h"
#include "dialogs/Webmail.h"
#include "platform/FileSystem.h"
#include "text/fields/OpenUrl.h"
#include "text/markup/MarkupConversion.h"
#include "text/markup/TagPairs.h"
#include "text/paragraph/frmIndent.h"

namespace korvane {

TextToolsForm::TextToolsForm(App& app, std::string_view name) : Form(app.Forms(), name, u""), app_(app) {}

Text TextToolsForm::FolderOfFile() const {
    const PathStyle style = app_.Files().Style();
    return style.DirectoryForChange(style.FolderPart(ThisFileName));
}

void TextToolsForm::mnuFind_Click() {
    if (auto* finder = app_.Port<TextFinder>()) finder->FindString(ThisTextCtrl);
}

void TextToolsForm::mnuReplace_Click() {
    ThisTextCtrl.FindReplaceDialog(2);
}

void TextToolsForm::mnuEdit_ViewAndPaste_Click() {
    auto* view = app_.Port<ClipboardView>();
    if (view == nullptr) return;
    view->Show();
    ThisTextCtrl.SetFocus();
    // Without a paste the text counts as unaltered. Kept for compatibility: closed-paste-view-clears.
    TextAltered = app_.DialogResult;
}

void TextToolsForm::mnuWordList_Click() {
    auto* list = app_.Port<WordList>();
    if (list == nullptr) return;
    if (ThisTextCtrl.SelLength() > 0)
        list->Collect(ThisTextCtrl.SelText());
    else if (const auto words = list->Choose())
        ThisTextCtrl.SetSelText(*words);
    ThisTextCtrl.SetFocus();
}

void TextToolsForm::mnuEdit_Unicode_Click() {
    if (auto* tools = app_.Port<TextTools>()) tools->ShowUnicode(ThisTextCtrl);
    ThisTextCtrl.SetFocus();
}

void TextToolsForm::mnuCharacters_Click() {
    auto* tools = app_.Port<TextTools>();
    if (tools == nullptr) return;
    tools->ShowCharacters(ThisTextCtrl);
    // This is so too when no character was taken. Kept for compatibility: character-table-alters.
    TextAltered = 1;
    ThisTextCtrl.SetFocus();
}

void TextToolsForm::mnuSymbols_Click() {
    if (auto* tools = app_.Port<TextTools>()) tools->ShowElements(ThisTextCtrl);
    ThisTextCtrl.SetFocus();
}

void TextToolsForm::mnuEdit_GetHTML_Click() {
    InsertTagPair(app_, ThisTextCtrl);
}

void TextToolsForm::DoConvertHTML() {
    ConvertMarkupDirect(app_, ThisTextCtrl);
}

void TextToolsForm::mnuFonts_Click() {
    auto* tools = app_.Port<TextTools>();
    if (tools == nullptr) return;
    if (tools->ChooseFont(ThisTextCtrl)) TextAltered = 1;
    ThisTextCtrl.SetFocus();
}

void TextToolsForm::mnuAlign_Click() {
    frmIndent(app_).ShowModal();
    ThisTextCtrl.SetFocus();
}

void TextToolsForm::mnuParagraphFormatting_Click() {
    ThisTextCtrl.ParagraphDialog();
}

void TextToolsForm::mnuBulletsNumbering_Click() {
    ThisTextCtrl.ListAttrDialog();
}

void TextToolsForm::mnuPageSetup_Click() {
    ThisTextCtrl.PageSetupDialog();
}

void TextToolsForm::mnuExplorer_Click() {
    ExploreFolder(app_, FolderOfFile());
}

void TextToolsForm::mnuDateInsert_Click() {
    auto* tools = app_.Port<InsertTools>();
    if (tools == nullptr) return;
    if (const auto date = tools->ChooseDateTime()) ThisTextCtrl.SetSelText(*date);
    ThisTextCtrl.SetFocus();
}

void TextToolsForm::mnuTimer_Click() {
    if (auto* main = app_.Port<MainWindow>()) main->RunCommand(CommandName::mnuMisc_Clock);
}

void TextToolsForm::Webmail() {
    OpenWebmail(app_);
}

void TextToolsForm::Desktop() {
    ShowDesktop(app_);
}

void TextToolsForm::StartBrowser() {
    LaunchProgram(app_, Text(app_.Settings.CustomBrowserPath));
}

void TextToolsForm::StartLorrit() {
    LaunchLorrit(app_, FolderOfFile());
}

void TextToolsForm::OpenUrl() {
    OpenUrlFromSelection(app_, ThisTextCtrl);
}

// The place of the window.

Form* TextToolsForm::MainForm() const {
    auto* main = app_.Port<MainWindow>();
    return main == nullptr ? nullptr : &main->Window();
}

void TextToolsForm::cmdCentreOnScreen_Click() {
    if (const Form* main = MainForm()) CentreWithin(*main, *this, 95);
}

void TextToolsForm::CentreAt90() {
    if (const Form* main = MainForm()) CentreWithin(*main, *this, 90);
}

void TextToolsForm::DockLeft() {
    if (const Form* main = MainForm()) DockLeftOf(app_, *main, *this, Stretch::KeepWidth);
}

void TextToolsForm::DockLeftFilling() {
    if (const Form* main = MainForm()) DockLeftOf(app_, *main, *this, Stretch::FillSpace);
}

void TextToolsForm::DockRight() {
    if (const Form* main = MainForm()) DockRightOf(app_, *main, *this, Stretch::KeepWidth);
}

void TextToolsForm::DockRightFilling() {
    if (const Form* main = MainForm()) DockRightOf(app_, *main, *this, Stretch::FillSpace);
}

} // namespace korvane
