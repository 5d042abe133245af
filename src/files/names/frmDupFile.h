#pragma once

#include "files/names/NameDialog.h"

namespace korvane {

/// Copies the file `FileOpName` of the current directory to a new name. Modal; `DialogResult` is 1 when it is
/// copied.
class frmDupFile : public NameDialog {
public:
    explicit frmDupFile(App& app);

    Panel Frame1{*this, "Frame1"};
    TextBox Text1{*this, "Text1"};
    Panel Frame2{*this, "Frame2"};
    TextBox Text2{*this, "Text2"};
    CommandButton cmdAddDate{*this, "cmdAddDate", u"Add da&te"};

    void Load() override;
    /// A copy on its way isn't left alone.
    bool QueryUnload() override { return !copying_; }

private:
    void Accept() override;
    void FieldKey(TextBox& field, KeyEvent& key) override;
    void Copy(const Text& target);

    bool copying_ = false;
};

} // namespace korvane
