#include "dbops/windows/frmTxtDbColName.h"

#include "context/App.h"
#include "controls/KeyTable.h"

namespace korvane {

struct frmTxtDbColName::Tables {
    static constexpr WindowKey<frmTxtDbColName> kNameKeys[] = {
        {"Return", &frmTxtDbColName::cmdColAccept},
        {"Esc", &frmTxtDbColName::cmdColReject},
    };
};

frmTxtDbColName::frmTxtDbColName(App& app, const Text& oldName)
    : Form(app.Forms(), "frmTxtDbColName", u"Column name"), app_(app) {
    lblOldColumnName.Caption = oldName;
    txtNewColumnName.Text = oldName;
    txtNewColumnName.KeyDown = KeysOf(*this, Tables::kNameKeys);
    cmdColAccept.Click = [this] { cmdColAccept_Click(); };
    cmdColReject.Click = [this] { Close(); };
    cmdColReject.Cancel = true;
}

void frmTxtDbColName::cmdColAccept_Click() {
    newName_ = txtNewColumnName.Text;
    app_.DialogResult = 1;
    Close();
}

} // namespace korvane
