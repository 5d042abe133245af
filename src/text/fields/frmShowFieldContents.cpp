#include "text/fields/frmShowFieldContents.h"

#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/Launching.h"
#include "context/WindowFitting.h"
#include "context/exchange/FieldInTransit.h"
#include "context/ports/FileViewer.h"
#include "context/ports/OpenText.h"
#include "context/ports/PageViewer.h"
#include "context/ports/SystemFileDialog.h"
#include "controls/KeyTable.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr StoredCorner kPlace{&Settings::FieldsLeft, &Settings::FieldsTop};
/// The last code that an address keeps as it is.
constexpr unsigned kLastPlainCode = 125;

constexpr TextView kFileEndings[] = {u".TXT", u".LST", u".ASC", u".RTF", u".DOC", u".DOCX"};

bool NamesTextFile(TextView link) {
    return std::ranges::any_of(kFileEndings, [link](TextView ending) { return HasExtension(link, ending); });
}

bool IsWebAddress(TextView link) {
    return link.find(u"://") != TextView::npos || link.starts_with(u"www.");
}

/// The character as it is, or as "%" and its code. "%" itself stays. Kept for compatibility:
/// link-hex-from-tilde.
Text InHex(char16_t character, const CodePage& page) {
    constexpr TextView kDigits = u"0123456789ABCDEF";
    const unsigned code = page.Encode(character).value_or(CodePage::kSubstitute);
    if (code <= kLastPlainCode) return Text(1, character);
    return Text{u'%', kDigits[code / 16], kDigits[code % 16]};
}

} // namespace

struct frmShowFieldContents::Tables {
    using Window = frmShowFieldContents;
    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuAscToHex", u"Link to &Hex", "", &Window::cmdAscToHex}};
    static constexpr WindowKey<Window> kLinkKeys[] = {{"Return", &Window::GoToLink}, {"Esc", &Window::Close}};
};

frmShowFieldContents::frmShowFieldContents(App& app)
    : Form(app.Forms(), "frmShowFieldContents", u"Field contents"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app) {
    Wire();
}

void frmShowFieldContents::Wire() {
    TXTextControl1.Visible = false;
    txtHyperLink.KeyDown = KeysOf(*this, Tables::kLinkKeys);
    txtHyperLink.Change = [this] { OfferByLink(); };
    cmdGotoLink.Click = [this] { GoToLink(); };
    cmdGotoLink.KeyDown = KeysOf(*this, Tables::kLinkKeys);
    cmdLoadFile.Click = [this] { GoToLink(); };
    cmdAscToHex.Click = [this] { cmdAscToHex_Click(); };
    cmdWriteBack.Click = [this] { cmdWriteBack_Click(); };
    cmdGetBrowser.Click = [this] { cmdGetBrowser_Click(); };
    cmdGetFile.Click = [this] { cmdGetFile_Click(); };
    cmdProgramForFile.Click = [this] { cmdProgramForFile_Click(); };
    cmdExit.Click = [this] { Close(); };
    cmdExit.Cancel = true;
    chkWhichBrowser.Click = [this] { app_.Settings.UseCustomBrowser = chkWhichBrowser.Value; };
}

void frmShowFieldContents::Load() {
    const FieldInTransit& transit = app_.Exchange<FieldInTransit>();
    const auto* open = app_.Port<OpenText>();
    const bool ownLink = transit.ReadOnlyLink == 1 || open == nullptr;
    RestoreCorner(app_, *this, kPlace);
    if (app_.Settings.FieldsWidth > 0) Width = Twips{app_.Settings.FieldsWidth};
    txtHyperLabel.Text = transit.FieldLabelText;
    txtHyperLink.Text = ownLink ? transit.FieldLinkData : open->rtfTempText.All();
    cmdAscToHex_Click();
    lblWhichBrowser.Caption = app_.Settings.CustomBrowserPath;
    chkWhichBrowser.Value = app_.Settings.UseCustomBrowser == 0 ? 0 : 1;
    OfferByLink();
    txtHyperLink.SetFocus();
}

void frmShowFieldContents::Unload() {
    StoreCorner(app_, *this, kPlace);
    app_.Settings.FieldsWidth = Width.Get().Number();
}

/// The address without blanks round it and without line ends after it.
Text frmShowFieldContents::Link() const {
    Text link(Trim(txtHyperLink.Text.Get()));
    link.erase(link.find_last_not_of(kCrLf) + 1);
    return link;
}

void frmShowFieldContents::OfferByLink() {
    const bool file = NamesTextFile(Link());
    cmdLoadFile.Visible = file;
    cmdGotoLink.Visible = !file;
}

void frmShowFieldContents::GoToLink() {
    const Text link = Link();
    if (!NamesTextFile(link) && app_.Settings.UseCustomBrowser != 0) {
        LaunchProgram(app_, Text(app_.Settings.CustomBrowserPath), link);
    } else if (IsWebAddress(link)) {
        if (auto* pages = app_.Port<PageViewer>()) pages->View(link);
    } else if (app_.Files().FileExists(link)) {
        if (auto* files = app_.Port<FileViewer>()) files->View(link);
    }
}

void frmShowFieldContents::cmdAscToHex_Click() {
    TXTextControl1.SetAll(u"");
    Text converted;
    for (const char16_t character : txtHyperLink.Text.Get())
        converted += InHex(character, app_.Page());
    TXTextControl1.SetAll(converted);
    txtHyperLink.Text = TXTextControl1.All();
}

/// Nothing reaches the document. Kept for compatibility: link-write-back-reaches-nothing.
void frmShowFieldContents::cmdWriteBack_Click() {
    FieldInTransit& transit = app_.Exchange<FieldInTransit>();
    if (transit.ReadOnlyLink == 1) return;
    transit.FieldLabelText = txtHyperLabel.Text;
    transit.FieldLinkData = txtHyperLink.Text;
}

void frmShowFieldContents::cmdGetBrowser_Click() {
    auto* dialog = app_.Port<SystemFileDialog>();
    if (dialog == nullptr) return;
    // The extension is that of another dialog. Kept for compatibility: browser-with-list-extension.
    const auto path = dialog->Choose({SystemFileDialog::Purpose::Open,
                                      u"Programs (*.exe)|*.exe",
                                      u"Specify custom browser",
                                      {},
                                      u"lst",
                                      {}});
    if (!path) return;
    app_.Settings.CustomBrowserPath = *path;
    lblWhichBrowser.Caption = *path;
}

void frmShowFieldContents::cmdGetFile_Click() {
    auto* dialog = app_.Port<SystemFileDialog>();
    if (dialog == nullptr) return;
    const auto path = dialog->Choose({SystemFileDialog::Purpose::Open,
                                      u"All files (*.*)|*.*",
                                      u"File with field contents",
                                      {},
                                      u"lst",
                                      {}});
    if (path) txtHyperLink.Text = *path;
}

void frmShowFieldContents::cmdProgramForFile_Click() {
    if (auto* files = app_.Port<FileViewer>()) files->OpenWith(Link());
}

} // namespace korvane
