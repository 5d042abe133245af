#include "files/lists/frmFindStingInList.h"

#include "context/App.h"

namespace korvane {

frmFindStingInList::frmFindStingInList(App& app, TextView initial)
    : Form(app.Forms(), "frmFindStingInList", u"Find string in list"), initial_(initial) {
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdOK.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmFindStingInList::Load() {
    FindString.clear();
    txtFindString.Text = initial_;
    txtFindString.SelectAll();
    txtFindString.SetFocus();
}

void frmFindStingInList::cmdOK_Click() {
    FindString = txtFindString.Text;
    Close();
}

Text AskForStringInList(App& app, TextView initial) {
    frmFindStingInList window(app, initial);
    window.ShowModal();
    return window.FindString;
}

} // namespace korvane
