#include "dialogs/frmMyMsgBox.h"

#include "common/number/DateTime.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/StandardMessages.h"
#include "context/exchange/MessageQuestion.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Shell.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr Twips kHeight{4200};
constexpr Twips kMinWidth{9630};

} // namespace

struct frmMyMsgBox::Tables {
    static constexpr MenuRow<frmMyMsgBox> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuSave", u"Sa&ve file directly to disk", "", &frmMyMsgBox::cmdAutoSave},
        {1, "mnuFileInfo", u"&File info", "", &frmMyMsgBox::cmdInfo},
        {1, "mnuClip", u"Clip &info", "", &frmMyMsgBox::cmdClip},
        {1, "mnuExplorer", u"E&xplorer", "", &frmMyMsgBox::cmdExplorer},
        {1, "mnuLorrit", u"Lor&rit", "", &frmMyMsgBox::cmdLorrit},
    };
    static constexpr WindowKey<frmMyMsgBox> kAnswerKeys[] = {
        {"Any+Esc", &frmMyMsgBox::Close},
    };
};

frmMyMsgBox::frmMyMsgBox(App& app)
    : Form(app.Forms(), "frmMyMsgBox", u"Closing altered file..."),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app) {
    txtFileName.Locked = true;
    txtFilePath.Locked = true;
    Wire();
}

void frmMyMsgBox::Wire() {
    cmdYes.Click = [this] { CloseWith(MsgAnswer::SaveUnderAName); };
    cmdAutoSave.Click = [this] { CloseWith(MsgAnswer::SaveDirectly); };
    cmdNo.Click = [this] { cmdNo_Click(); };
    cmdCancel.Click = [this] { CloseWith(MsgAnswer::Cancel); };
    cmdInfo.Click = [this] { cmdInfo_Click(); };
    cmdClip.Click = [this] { cmdClip_Click(); };
    cmdExplorer.Click = [this] { cmdExplorer_Click(); };
    cmdLorrit.Click = [this] { cmdLorrit_Click(); };
    for (CommandButton* button : {&cmdCancel, &cmdNo, &cmdYes})
        button->KeyDown = KeysOf(*this, Tables::kAnswerKeys);
}

void frmMyMsgBox::Load() {
    facts_ = FactsOfFile(app_, app_.Exchange<MessageQuestion>().MsgFilePath);
    const DateTime now = app_.Clock().Now();
    today_ = FormatDate(now, u"dd/mm/yyyy");
    now_ = FormatDate(now, u"hh:mm:ss");
    txtFileName.Text = facts_.name;
    txtFilePath.Text = facts_.folder;
    lblFileSize.Caption = facts_.size;
    lblFileDate.Caption = facts_.date + u"     [ now: " + today_ + u", " + now_ + u" ]";
    Width = Twips{app_.Settings.MsgBoxWidth};
    Resize();
    chkDecisionConfirmNoSave.Value = app_.Settings.ConfirmNoSave;
    chkDecisionConfirmNoSave.Click = [this] { app_.Settings.ConfirmNoSave = chkDecisionConfirmNoSave.Value; };
    cmdYes.SetFocus();
}

void frmMyMsgBox::Resize() {
    Height = kHeight;
    Width = std::max(Width.Get(), kMinWidth);
}

void frmMyMsgBox::Unload() {
    app_.Settings.MsgBoxWidth = Width.Get().Number();
}

void frmMyMsgBox::CloseWith(MsgAnswer answer) {
    app_.Exchange<MessageQuestion>().MsgAnswer = answer;
    Close();
}

void frmMyMsgBox::cmdNo_Click() {
    const bool asks = app_.Settings.ConfirmNoSave == 1;
    if (asks && !AskYesNo(app_, u"Unload file without saving?", YesNoDefault::No)) return;
    CloseWith(MsgAnswer::DoNotSave);
}

void frmMyMsgBox::cmdInfo_Click() {
    frmTxtInfo(app_, facts_).ShowModal();
}

void frmMyMsgBox::cmdClip_Click() {
    const auto line = [](TextView title, const Text& value) { return Text(title) + value + Text(kCrLf); };
    app_.Clipboard().SetText(line({}, {}) + line(u"Current File: ", facts_.name) +
                             line(u"Path: ", facts_.folder) + line(u"Size: ", facts_.size) +
                             line(u"Saved: ", facts_.date) + line({}, {}) + line(u"Time: ", now_) +
                             line(u"Date: ", today_));
    ShowPasteHint(app_);
}

void frmMyMsgBox::cmdExplorer_Click() {
    app_.Shell().Open({.verb = u"explore", .file = facts_.folder, .directory = facts_.folder});
}

void frmMyMsgBox::cmdLorrit_Click() {
    LaunchLorrit(app_, facts_.folder);
}

} // namespace korvane
