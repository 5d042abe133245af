#pragma once

#include "files/names/NameDialog.h"

namespace korvane {

/// Makes a folder in the current directory. Modal; `DialogResult` is 1 when it is made, and its path is
/// in `NewFolderPath` and `NewFolderResult`.
class frmNewDir : public NameDialog {
public:
    explicit frmNewDir(App& app);

    Panel Frame1{*this, "Frame1"};
    TextBox Text1{*this, "Text1"};
    Label Label2{*this, "Label2", u"Forbidden characters in file names"};
    CommandButton cmdUnderscoreCaps{*this, "cmdUnderscoreCaps", u"&Underscore / Caps"};

    void Load() override;

private:
    void Accept() override;
    void cmdUnderscoreCaps_Click();

    /// In which the new one is made.
    Text folder_;
};

} // namespace korvane
