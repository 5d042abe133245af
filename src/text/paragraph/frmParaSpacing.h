#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"

namespace korvane {

class App;

/// Sets the distances before and after the paragraphs of the text window. Modal.
class frmParaSpacing : public Form {
public:
    /// The App outlives the window.
    explicit frmParaSpacing(App& app);

    ListBox lstSpacingTop{*this, "lstSpacingTop"};
    ListBox lstSpacingBottom{*this, "lstSpacingBottom"};
    CheckBox chkSingleLineSpacing{*this, "chkSingleLineSpacing", u"&Single line spacing"};
    CommandButton cmdOk{*this, "cmdOk", u"&Accept"};
    CommandButton cmdRemoveSpacing{*this, "cmdRemoveSpacing", u"&Remove all spacing"};

    void Load() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    void cmdOk_Click();
    void cmdRemoveSpacing_Click();

    App& app_;
};

} // namespace korvane
