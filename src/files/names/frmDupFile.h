#pragma once

#include "files/names/NameDialog.h"
#include "platform/FileSystem.h"

#include <optional>

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
    /// A copy on its way isn't left alone, unless its disk has fallen silent.
    bool QueryUnload() override;

private:
    void Accept() override;
    void FieldKey(TextBox& field, KeyEvent& key) override;
    void Copy(const Text& target);
    struct Copied {
        CopyOutcome outcome{};
        /// The system's words for why it failed.
        Text reason;
    };
    /// Nothing when the user gave up a disk that had fallen silent.
    std::optional<Copied> CopyOnDisk(const Text& target);

    bool copying_ = false;
    /// The user wanted to leave the copy.
    bool left_ = false;
};

} // namespace korvane
