#include "text/control/ControlForm.h"

#include "context/App.h"
#include "controls/text/TextControl.h"

namespace korvane {

ControlForm::ControlForm(App& app, TextControl& target, std::string_view name, TextView caption)
    : Form(app.Forms(), name, caption), app_(app), target_(target) {
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdOK.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

LengthUnit ControlForm::Unit() const {
    return UnitOf(target_.ScaleUnits);
}

void ControlForm::cmdOK_Click() {
    bool accepted = false;
    {
        const doc::Step together(target_.Store());
        accepted = Accept();
    }
    if (accepted) Close();
}

} // namespace korvane
