#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/lists/ListBox.h"
#include "controls/lists/Tiles.h"

namespace korvane {

class App;
class InsertTarget;

/// The characters of the code page in a font, which are put into a text. Modal.
class frmASCIIBox : public Form {
public:
    /// The App and the target outlive the window. Without a target nothing is put in.
    frmASCIIBox(App& app, InsertTarget* target);

    ComboBox cboFont{*this, "cboFont"};
    Tiles Grid1{*this, "Grid1", 16};
    /// How the character is typed with the keys for numbers.
    Label lblKeyStroke{*this, "lblKeyStroke"};
    CommandButton cmdInsert{*this, "cmdInsert", u"&Insert"};
    CommandButton cmdMakeDefault{*this, "cmdMakeDefault", u"&Make default"};

    void Load() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    void FillFonts();
    void FillCharacters();
    void ShowKeyStroke(int code);
    void cmdInsert_Click();
    void cmdMakeDefault_Click();

    App& app_;
    InsertTarget* target_;
};

} // namespace korvane
