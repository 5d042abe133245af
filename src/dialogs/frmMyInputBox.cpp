#include "dialogs/frmMyInputBox.h"

#include "context/App.h"
#include "context/Desktop.h"
#include "context/exchange/InputQuestion.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

namespace korvane {

struct frmMyInputBox::Tables {
    static constexpr WindowKey<frmMyInputBox> kTextKeys[] = {{"Any+Return", &frmMyInputBox::cmdOk}};
};

frmMyInputBox::frmMyInputBox(App& app) : Form(app.Forms(), "frmMyInputBox", u"Korvane"), app_(app) {
    txtBoxText.KeyDown = KeysOf(*this, Tables::kTextKeys);
    cmdOk.Click = [this] { cmdOk_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    cmdCancel.Cancel = true;
    cmdDesktop.Click = [this] { ShowDesktop(app_); };
    cmdExplorer.Click = [this] { cmdExplorer_Click(); };
}

void frmMyInputBox::Load() {
    InputQuestion& question = app_.Exchange<InputQuestion>();
    txtBoxText.Text = question.InputInitial;
    txtBoxText.SelectAll();
    txtBoxCaption.Caption = question.InputCaption;
    question.InputResult.clear();
}

void frmMyInputBox::cmdOk_Click() {
    app_.Exchange<InputQuestion>().InputResult = txtBoxText.Text;
    app_.DialogResult = 1;
    Close();
}

void frmMyInputBox::cmdCancel_Click() {
    app_.DialogResult = 0;
    Close();
}

void frmMyInputBox::cmdExplorer_Click() {
    const Text here = app_.Files().CurrentDir();
    app_.Shell().Open({.verb = u"explore", .file = here, .directory = here});
}

/// A cancel and an empty answer give the same. Kept for compatibility: input-empty-and-cancel.
Text AskForText(App& app, TextView caption, TextView initial) {
    InputQuestion& question = app.Exchange<InputQuestion>();
    question.InputCaption = Text(caption);
    question.InputInitial = Text(initial);
    frmMyInputBox form(app);
    ShowForResult(app, form);
    return question.InputResult;
}

} // namespace korvane
