#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"
#include "controls/text/TextControl.h"

namespace korvane {

class App;
struct FontChoice;

/// The font dialog of the program. What it opens with, and what was chosen, is in `FontChoice`. Modal.
class frmQuickNameSize : public Form {
public:
    /// The App outlives the window.
    explicit frmQuickNameSize(App& app);

    ListBox lstName{*this, "lstName"};
    ListBox lstSize{*this, "lstSize"};
    ListBox lstAttr{*this, "lstAttr"};
    CheckBox chkBold{*this, "chkBold", u"&Bold"};
    CheckBox chkItalic{*this, "chkItalic", u"&Italic"};
    CheckBox chkUnderline{*this, "chkUnderline", u"&Underline"};
    CheckBox chkStrikethru{*this, "chkStrikethru", u"S&trikethrough"};
    CheckBox chkSuperscript{*this, "chkSuperscript", u"Su&perscript"};
    CheckBox chkSubscript{*this, "chkSubscript", u"Subsc&ript"};
    CheckBox chkNoChange{*this, "chkNoChange", u"&No change"};
    TextControl txtSample{*this, "txtSample"};
    ComboBox cboSubSuper{*this, "cboSubSuper"};
    CommandButton cmdZeroBaseline{*this, "cmdZeroBaseline", u"Set to &zero"};
    CommandButton cmdColours{*this, "cmdColours", u"Text c&olour"};
    CommandButton cmdDrawLine{*this, "cmdDrawLine", u"Single line"};
    CommandButton cmdDrawDoubleLine{*this, "cmdDrawDoubleLine", u"Doubleline"};
    CommandButton cmdNoLine{*this, "cmdNoLine", u"No line"};
    CommandButton cmdShapes{*this, "cmdShapes", u"Shapes and symbols"};
    CommandButton cmdSymbols{*this, "cmdSymbols", u"ASCII characters table"};
    CommandButton cmdAllSymbols{*this, "cmdAllSymbols", u"All symbols"};
    CommandButton cmdAllFonts{*this, "cmdAllFonts", u"All fonts"};
    CommandButton cmdApply{*this, "cmdApply", u"&Apply"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    void WireChoices();
    void WireButtons();
    void FillLists();
    void ShowFirst();
    void ShowSample();
    int ChosenSize() const;
    int ShownHalfPoints() const;
    Text ShownName() const;
    Text SampleText() const;
    void SetLine(int style, int distance, int width);
    /// What changes the open text can't be used while there is none.
    void EnableLines();
    FontChoice& Choice() const;

    void cboSubSuper_Click();
    void cmdZeroBaseline_Click();
    void cmdColours_Click();
    void cmdAllFonts_Click();
    void cmdApply_Click();

    App& app_;
    /// Nothing is shown in the sample before all is filled.
    bool ready_ = false;
};

} // namespace korvane
