#pragma once

#include "files/names/NameDialog.h"

namespace korvane {

/// Renames the file `FileOpName` in `FileOpFolder`. Modal; `DialogResult` is 1 when it has its new name,
/// which is in `FileNewName` then.
class frmRenFile : public NameDialog {
public:
    explicit frmRenFile(App& app);

    Panel Frame1{*this, "Frame1"};
    TextBox Text1{*this, "Text1"};
    Panel Frame2{*this, "Frame2"};
    TextBox Text2{*this, "Text2"};
    Label lblNameLength{*this, "lblNameLength"};
    Label lblLengthMax{*this, "lblLengthMax", u"Most disks take 255."};
    CommandButton cmdUnderscoreCaps{*this, "cmdUnderscoreCaps", u"Underscore / Ca&ps"};
    CommandButton cmdAddDate{*this, "cmdAddDate", u"Add da&te"};
    CommandButton cmdBufferName{*this, "cmdBufferName", u"&Buffer name and close"};
    CommandButton cmdUnderscores{*this, "cmdUnderscores", u"Spaces to &underscores  [ Ctrl-U ]"};

    void Load() override;

private:
    void Accept() override;
    void FieldKey(TextBox& field, KeyEvent& key) override;
    void Text2_Change();
    void cmdUnderscoreCaps_Click();
    void cmdBufferName_Click();
    void cmdUnderscores_Click();
};

} // namespace korvane
