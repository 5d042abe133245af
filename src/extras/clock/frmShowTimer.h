#pragma once

#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Timer.h"

namespace korvane {

class App;

/// Shows the date and the time in large letters until a key is pressed. Modal.
class frmShowTimer : public Form {
public:
    explicit frmShowTimer(App& app);

    Label Label1{*this, "Label1"};
    Label Label2{*this, "Label2"};
    Label Label3{*this, "Label3"};
    Timer frmTimer{*this, "frmTimer", std::chrono::milliseconds(100)};

    void Load() override;
    void KeyDown(KeyEvent& key) override;
    void Clicked() override { Close(); }

private:
    void frmTimer_Timer();

    App& app_;
    /// The time that the labels show.
    Text shown_;
};

} // namespace korvane
