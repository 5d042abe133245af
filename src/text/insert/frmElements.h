#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/lists/ListBox.h"

#include <cstdint>
#include <string_view>

namespace korvane {

class App;
class InsertTarget;

/// Puts shapes of the font Wingdings and symbols of the font Cambria into a text. Modal.
class frmElements : public Form {
public:
    /// The App and the target outlive the window. Without a target nothing is put in.
    frmElements(App& app, InsertTarget* target);

    Menu OfficeMenu1;
    ListBox lstShapes{*this, "lstShapes"};
    ListBox lstSymbols{*this, "lstSymbols"};
    ListBox lstShapeSize{*this, "lstShapeSize"};
    ListBox lstSymbolSize{*this, "lstSymbolSize"};
    CommandButton cmdAccept1{*this, "cmdAccept1", u"Insert shape (left window)"};
    CommandButton cmdAccept2{*this, "cmdAccept2", u"Insert symbol (right window)"};

    void Load() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;
    struct Side;

    void FillShapes();
    void FillSymbols();
    void Insert(const Side& side);
    void cmdAccept1_Click();
    void cmdAccept2_Click();

    App& app_;
    InsertTarget* target_;
};

} // namespace korvane
