#include "dbops/windows/frmTxtDbColName.h"

#include "context/App.h"

namespace korvane {

frmTxtDbColName::frmTxtDbColName(App& app, const Text& oldName)
    : Form(app.Forms(), "frmTxtDbColName", u"Column name"), app_(app) {
    lblOldColumnName.Caption = oldName;
    txtNewColumnName.Text = oldName;
    txtNewColumnName.KeyDown = [this](KeyEvent& key) { txtNewColumnName_KeyDown(key); };
    cmdColAccept.Click = [this] { cmdColAccept_Click(); };
    cmdColReject.Click = [this] { Close(); };
    cmdColReject.Cancel = true;
}

void frmTxtDbColName::txtNewColumnName_KeyDown(KeyEvent& key) {
    const bool accepts = key.Is(Key::Return, Mask::None);
    const bool rejects = key.Is(Key::Escape, Mask::None);
    if (!accepts && !rejects) return;
    key.consumed = true;
    (accepts ? cmdColAccept : cmdColReject).Press();
}

void frmTxtDbColName::cmdColAccept_Click() {
    newName_ = txtNewColumnName.Text;
    app_.DialogResult = 1;
    Close();
}

} // namespace korvane
