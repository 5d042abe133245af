#include "shell/commands/frmAbout.h"

#include "context/App.h"

namespace korvane {

frmAbout::frmAbout(App& app) : Form(app.Forms(), "frmAbout", u"About Korvane") {
    cmdClose.Click = [this] { Close(); };
    cmdClose.Default = true;
    cmdClose.Cancel = true;
}

} // namespace korvane
