#include "shell/settings/frmSetYourProg.h"

#include "context/App.h"
#include "context/Launching.h"
#include "context/ProgramPicker.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"

namespace korvane {

frmSetYourProg::frmSetYourProg(App& app)
    : Form(app.Forms(), "frmSetYourProg", u"Set your program"), app_(app) {
    prgText1.Change = [this] { prgText1_Change(); };
    cmdBrowse1.Click = [this] { cmdBrowse1_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmSetYourProg::Load() {
    prgText1.Text = app_.Settings.YourProgramPath;
}

bool frmSetYourProg::IsThere(const Text& path) const {
    return !path.empty() && app_.Files().FileExists(path);
}

void frmSetYourProg::prgText1_Change() {
    if (IsThere(prgText1.Text)) app_.Settings.YourProgramPath = prgText1.Text;
}

void frmSetYourProg::cmdBrowse1_Click() {
    Text& location = app_.Settings.YourProgramPath;
    if (PickProgram(app_, {}, location)) prgText1.Text = location;
}

void frmSetYourProg::cmdOK_Click() {
    const Text& program = app_.Settings.YourProgramPath;
    if (!IsThere(program)) {
        Warn(app_, u"Cannot find this program:\r\n\r\n" + program);
        return;
    }
    // The program starts as it was typed, without a look for its other drive form, and the window stays. Kept
    // for compatibility: your-program-started-as-given.
    StartProgram(app_, program);
}

} // namespace korvane
