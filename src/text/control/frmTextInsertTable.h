#pragma once

#include "text/control/ControlForm.h"

namespace korvane {

/// Puts a table at the cursor of a text control.
class frmTextInsertTable : public ControlForm {
public:
    frmTextInsertTable(App& app, TextControl& target);

    TextBox txtColumns{*this, "txtColumns", u"3"};
    TextBox txtRows{*this, "txtRows", u"3"};

    void Load() override;

protected:
    bool Accept() override;
};

} // namespace korvane
