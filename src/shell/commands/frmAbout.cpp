#include "shell/commands/frmAbout.h"

#include "context/App.h"
#include "platform/FileSystem.h"

namespace korvane {

frmAbout::frmAbout(App& app) : Form(app.Forms(), "frmAbout", u"About Korvane") {
    lblVersion.Caption = u"Version " + FromAscii(KORVANE_VERSION);
    txtState.Text = app.Files().StateDir();
    txtState.Locked = true;
    cmdClose.Click = [this] { Close(); };
    cmdClose.Default = true;
    cmdClose.Cancel = true;
}

} // namespace korvane
