#include "extras/web/frmBrowser.h"

#include "context/App.h"
#include "context/FileChooser.h"
#include "context/exchange/ListerRequest.h"
#include "controls/KeyTable.h"
#include "platform/Screen.h"

namespace korvane {

namespace {

constexpr Twips kLeastWidth{8600};
constexpr Twips kLeastHeight{4000};

} // namespace

struct frmBrowser::Tables {
    using Window = frmBrowser;
    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuExit", u"E&xit", "", &Window::Close},
        {0, "mnuOpen", u"&Open", "", &Window::GetFile},
        {0, "mnuLoad", u"&Load", "", &Window::LoadAddress},
    };
    static constexpr WindowKey<Window> kAddressKeys[] = {{"Return", &Window::LoadAddress}};
    static constexpr WindowKey<Window> kPageKeys[] = {{"Return", &Window::FollowLinkAtCursor}};
};

frmBrowser::frmBrowser(App& app, TextView startFile)
    : Form(app.Forms(), "frmBrowser", u"Internet browser"),
      BrowserStartFile(startFile),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      engine_(app, WebBrowser1, pageText) {
    WebBrowser1.Visible = false;
    Wire();
}

void frmBrowser::Wire() {
    const auto on = [this](CommandButton& button, Handler<frmBrowser> starts) {
        button.Click = [this, starts] { starts.Run(*this); };
    };
    on(cmdExit, &frmBrowser::Close);
    on(cmdGetFile, &frmBrowser::GetFile);
    on(cmdHome, &frmBrowser::GoHome);
    on(cmdBack, &frmBrowser::GoBack);
    on(cmdforward, &frmBrowser::GoForward);
    on(cmdRefresh, &frmBrowser::Refresh);
    on(cmdStop, &frmBrowser::Stop);
    on(cmdStatusBar, &frmBrowser::ToggleStatusBar);
    on(cmdLoad, &frmBrowser::LoadAddress);
    cmdExit.Cancel = true;
    txtAddress.KeyDown = KeysOf(*this, Tables::kAddressKeys);
    pageText.KeyDown = KeysOf(*this, Tables::kPageKeys);
    WebBrowser1.DownloadBegin = [this] { StatusBar1.Caption = u" Loading page ..."; };
    WebBrowser1.DownloadComplete = [this] { StatusBar1.Caption = u" Done."; };
}

void frmBrowser::Load() {
    if (BrowserStartFile.empty()) {
        txtAddress.SetFocus();
    } else {
        ShowStart();
    }
}

void frmBrowser::Unload() {
    engine_.Close();
}

void frmBrowser::Resize() {
    // A window that has no place yet has no size either.
    if (State.Get() != FormState::Normal || Width.Get() <= Twips{0}) return;
    if (Width.Get() < kLeastWidth) Width = kLeastWidth;
    if (Height.Get() < kLeastHeight) Height = kLeastHeight;
}

void frmBrowser::ShowStart() {
    const Hourglass hourglass(app_.Screen());
    txtAddress.Text = BrowserStartFile;
    Navigate(BrowserStartFile);
    engine_.TakeKeyboard();
}

void frmBrowser::Open(TextView startFile) {
    if (startFile.empty()) return;
    BrowserStartFile = Text(startFile);
    ShowStart();
}

void frmBrowser::Navigate(const Text& address) {
    WebBrowser1.Navigate(address);
    WebBrowser1.Visible = true;
}

void frmBrowser::LoadAddress() {
    if (!txtAddress.Text.Get().empty()) Navigate(txtAddress.Text);
}

void frmBrowser::GetFile() {
    const KeepCurrentDir keep(app_);
    ShowFileChooser(app_, ChooserMode::Load, u"*.htm;*.html;*.xhtml", {});
    const Text chosen = app_.Exchange<ListerRequest>().ChosenFilePath;
    if (chosen.empty()) return;
    txtAddress.Text = chosen;
    Navigate(chosen);
}

void frmBrowser::GoHome() {
    txtAddress.Text = BrowserStartFile;
    WebBrowser1.Navigate(BrowserStartFile);
}

void frmBrowser::GoBack() {
    WebBrowser1.GoBack();
}

void frmBrowser::GoForward() {
    WebBrowser1.GoForward();
}

void frmBrowser::Refresh() {
    WebBrowser1.Refresh();
}

void frmBrowser::Stop() {
    WebBrowser1.Stop();
}

void frmBrowser::ToggleStatusBar() {
    StatusBar1.Visible = !StatusBar1.Visible;
}

void frmBrowser::FollowLinkAtCursor() {
    if (const int field = pageText.FieldAtInputPos(); field != 0) pageText.Click(field);
}

} // namespace korvane
