#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/text/TextControl.h"
#include "controls/views/WebView.h"
#include "extras/web/BrowserEngine.h"

namespace korvane {

class App;

/// Shows pages of the web and of the disk.
class frmBrowser : public Form {
public:
    /// Opens with a page unless the address is empty.
    frmBrowser(App& app, TextView startFile);

    /// The address that the window opens with and that `cmdHome` goes back to.
    Text BrowserStartFile;

    Menu OfficeMenu1;
    CommandButton cmdExit{*this, "cmdExit", u"", u"Exit this level"};
    CommandButton cmdGetFile{*this, "cmdGetFile", u"", u"Load file from disk"};
    CommandButton cmdHome{*this, "cmdHome", u"", u"Back to outset address"};
    CommandButton cmdBack{*this, "cmdBack", u"", u"Move back a page"};
    CommandButton cmdforward{*this, "cmdforward", u"", u"Move forward a page"};
    CommandButton cmdRefresh{*this, "cmdRefresh", u"", u"Refresh current page"};
    CommandButton cmdStop{*this, "cmdStop", u"", u"Stop loading current page"};
    // It shows or hides the status bar, whatever its tip says. Kept for compatibility:
    // status-bar-tip-forward.
    CommandButton cmdStatusBar{*this, "cmdStatusBar", u"", u"Move forward a page"};
    TextBox txtAddress{*this, "txtAddress"};
    CommandButton cmdLoad{*this, "cmdLoad", u"", u"Proceed with operation"};
    WebView WebBrowser1{*this, "WebBrowser1"};
    /// What the program's own page view shows its pages with.
    TextControl pageText{*this, "pageText"};
    Label StatusBar1{*this, "StatusBar1"};

    /// Shows the page at the address from now on; an empty one changes nothing.
    void Open(TextView startFile);

    void Load() override;
    void Unload() override;
    void Resize() override;

private:
    struct Tables;

    void Wire();
    void ShowStart();
    void Navigate(const Text& address);
    void LoadAddress();
    void GetFile();
    void GoHome();
    void GoBack();
    void GoForward();
    void Refresh();
    void Stop();
    void ToggleStatusBar();
    void FollowLinkAtCursor();

    App& app_;
    BrowserEngine engine_;
};

} // namespace korvane
