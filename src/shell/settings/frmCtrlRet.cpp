#include "shell/settings/frmCtrlRet.h"

#include "context/App.h"

namespace korvane {

frmCtrlRet::frmCtrlRet(App& app)
    : Form(app.Forms(), "frmCtrlRet", u"Strings for various key presses"), app_(app) {
    cmdOK.Click = [this] { cmdOK_Click(); };
}

void frmCtrlRet::Load() {
    txtText2.Text = app_.Settings.CtrlShiftReturnString;
    txtText3.Text = app_.Settings.AltReturnString;
}

void frmCtrlRet::cmdOK_Click() {
    app_.Settings.CtrlShiftReturnString = txtText2.Text;
    app_.Settings.AltReturnString = txtText3.Text;
    Close();
}

} // namespace korvane
