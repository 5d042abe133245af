#pragma once

#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/text/TextControl.h"

namespace korvane {

class App;
class ControlTarget;

/// A file with symbols, of which some are copied to another text. Modal.
class frmSymbolTables : public Form {
public:
    /// The App and the target outlive the window. Without a target nothing is copied.
    frmSymbolTables(App& app, ControlTarget* target);

    Menu OfficeMenu1;
    TextControl ThisTextCtrl{*this, "ThisTextCtrl"};

    void Load() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    bool LoadThisFile(const Text& path);
    void SetZoom(int percent);
    void mnuCentreScreen_Click();
    void mnuInfo_Click();
    void mnuGetFile_Click();
    void mnuZoomIn_Click();
    void mnuZoomOut_Click();
    void mnuInsertSymbol_Click();

    App& app_;
    ControlTarget* target_;
};

} // namespace korvane
