#pragma once

#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"

namespace korvane {

class App;
class NameLine;

/// Types the name of a file to save into the lister's line, letter by letter. Modal; `DialogResult` is 1 when
/// the name was accepted, and 9 when the file is to be saved under it at once.
class frmEnterFileName : public Form {
public:
    /// Both outlive the window. The caller may set the caption, which shows the name's length once that
    /// changes.
    frmEnterFileName(App& app, NameLine& line);

    Menu OfficeMenu1;
    Panel Frame1{*this, "Frame1"};
    TextBox txtFileName{*this, "txtFileName"};

    void Load() override;
    void Unload() override;

private:
    using Handler = void (frmEnterFileName::*)();
    void Finish(std::int16_t outcome);
    void Accept() { Finish(1); }
    void AcceptAndSave() { Finish(9); }
    void Reject();

    void txtFileName_Change();
    void txtFileName_KeyDown(KeyEvent& key);
    void ToggleExtension();
    void CapsAndDocx();
    void AddToday();
    void Tidy();
    void TidyWithCaps();
    void EnlargeFont() { ChangeFontSize(1); }
    void ReduceFont() { ChangeFontSize(-1); }
    void ChangeFontSize(int step);
    void StartLorrit();

    App& app_;
    NameLine& line_;
    Text atOpening_;
};

} // namespace korvane
