#pragma once

#include "files/names/NameDialog.h"

namespace korvane {

/// Renames the folder `ListerFolder`. Modal; `DialogResult` is 1 when it has its new name: the path is in
/// `ListerFolder` and `NewFolderResult` then, and is the current directory.
class frmRenDir : public NameDialog {
public:
    explicit frmRenDir(App& app);

    Panel Frame1{*this, "Frame1"};
    TextBox Text1{*this, "Text1"};
    Panel Frame2{*this, "Frame2"};
    TextBox Text2{*this, "Text2"};
    CommandButton cmdUnderscoreCaps{*this, "cmdUnderscoreCaps", u"&Underscore / Caps"};

    void Load() override;

private:
    void Accept() override;
    Text FolderOfName() const override { return folder_; }
    void FieldKey(TextBox& field, KeyEvent& key) override;
    void cmdUnderscoreCaps_Click();
    void Rename(const Text& newPath);

    Text folder_;
};

} // namespace korvane
