#pragma once

#include "controls/Buttons.h"
#include "controls/lists/ListBox.h"
#include "document/model/ParaFormat.h"
#include "text/control/ControlForm.h"

namespace korvane {

/// Makes lists of the selected paragraphs of a text control, with bullets or numbers.
class frmTextList : public ControlForm {
public:
    frmTextList(App& app, TextControl& target);

    ListBox lstKind{*this, "lstKind"};
    ComboBox cboLevel{*this, "cboLevel"};
    TextBox txtStart{*this, "txtStart"};
    CheckBox chkContinue{*this, "chkContinue", u"Continue the list &before"};

    void Load() override;

protected:
    bool Accept() override;

private:
    void ShowUse();
    bool Continues() const;
    doc::ListMark Wanted() const;

    /// The mark of the nearest paragraph of a list before the selection.
    doc::ListMark before_{};
    /// Whether the paragraphs continued that list when the window was opened.
    bool continued_ = false;
};

} // namespace korvane
