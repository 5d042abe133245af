#pragma once

#include "controls/Buttons.h"
#include "controls/lists/ListBox.h"
#include "text/control/ControlForm.h"

namespace korvane {

/// Sets the page of a text control: its paper and its margins.
class frmTextPage : public ControlForm {
public:
    frmTextPage(App& app, TextControl& target);

    ComboBox cboPaper{*this, "cboPaper"};
    OptionButton optPortrait{*this, "optPortrait", "orientation", u"&Portrait"};
    OptionButton optLandscape{*this, "optLandscape", "orientation", u"L&andscape"};
    LengthBox txtWidth{*this, "txtWidth"};
    LengthBox txtHeight{*this, "txtHeight"};
    LengthBox txtMarginLeft{*this, "txtMarginLeft"};
    LengthBox txtMarginRight{*this, "txtMarginRight"};
    LengthBox txtMarginTop{*this, "txtMarginTop"};
    LengthBox txtMarginBottom{*this, "txtMarginBottom"};

    void Load() override;

protected:
    bool Accept() override;

private:
    void TakePaper();
    void TakeOrientation();
    void SizeTyped();
    void ShowSize(int width, int height);

    /// While the window itself writes the size of the page.
    bool showing_ = false;
};

} // namespace korvane
