#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"

namespace korvane {

class App;

/// Asks where the Office programs are. Modal; each choice is stored at once.
class frmProgramLocations : public Form {
public:
    explicit frmProgramLocations(App& app);

    TextBox prgText1{*this, "prgText1"};
    CommandButton cmdWord{*this, "cmdWord", u"...", u"Locate Word on your disk"};
    TextBox prgText2{*this, "prgText2"};
    CommandButton cmdExcel{*this, "cmdExcel", u"...", u"Locate Excel on your disk"};
    TextBox prgText3{*this, "prgText3"};
    CommandButton cmdPowerPoint{*this, "cmdPowerPoint", u"...", u"Locate PowerPoint on your disk"};
    TextBox prgText4{*this, "prgText4"};
    CommandButton cmdPublisher{*this, "cmdPublisher", u"...", u"Locate Publisher on your disk"};
    TextBox prgText5{*this, "prgText5"};
    CommandButton cmdAccess{*this, "cmdAccess", u"...", u"Locate Access on your disk"};
    CommandButton cmdSameForAll{*this, "cmdSameForAll", u"&All have same location as Word"};
    CommandButton cmdClose{*this, "cmdClose", u"&Close"};

    void Load() override;

private:
    struct Program;
    static const Program kPrograms[];

    void Locate(const Program& program);
    void cmdSameForAll_Click();

    App& app_;
};

} // namespace korvane
