#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "text/control/LengthBox.h"

#include <string_view>

namespace korvane {

class App;
class TextControl;

/// A window of a text control's own, which changes the text once it is accepted. Modal.
class ControlForm : public Form {
public:
    CommandButton cmdOK{*this, "cmdOK", u"OK"};
    CommandButton cmdCancel{*this, "cmdCancel", u"Cancel"};

protected:
    /// The App and the control outlive the window.
    ControlForm(App& app, TextControl& target, std::string_view name, TextView caption);

    App& Context() const { return app_; }
    TextControl& Target() const { return target_; }
    /// The unit of the control's ruler.
    LengthUnit Unit() const;

    /// Does what the user asked for, in one step to undo. False keeps the window open.
    virtual bool Accept() = 0;

private:
    void cmdOK_Click();

    App& app_;
    TextControl& target_;
};

} // namespace korvane
