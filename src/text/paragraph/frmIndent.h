#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"

namespace korvane {

class App;

/// Aligns and indents the paragraphs of the text window, and leads to the other windows for paragraphs.
class frmIndent : public Form {
public:
    /// The App outlives the window.
    explicit frmIndent(App& app);

    ListBox lstClient{*this, "lstClient"};
    CommandButton cmdAccept{*this, "cmdAccept", u"&Align"};
    OptionButton optNoLeftTab{*this, "optNoLeftTab", "left", u"No left indentation"};
    OptionButton Option1{*this, "Option1", "left", u"1 tab"};
    OptionButton Option2{*this, "Option2", "left", u"2 tabs"};
    OptionButton Option3{*this, "Option3", "left", u"3 tabs"};
    OptionButton Option4{*this, "Option4", "left", u"4 tabs"};
    OptionButton Option5{*this, "Option5", "left", u"5 tabs"};
    OptionButton Option6{*this, "Option6", "left", u"6 tabs"};
    OptionButton optNoRightIndent{*this, "optNoRightIndent", "right", u"No right indent"};
    OptionButton optOneRightIndent{*this, "optOneRightIndent", "right", u"1 tab"};
    OptionButton optTwoRightIndent{*this, "optTwoRightIndent", "right", u"2 tabs"};
    OptionButton optThreeRightIndent{*this, "optThreeRightIndent", "right", u"3 tabs"};
    CheckBox chkHangingIndent{*this, "chkHangingIndent", u"Left hanging indent"};
    CommandButton cmdIndent{*this, "cmdIndent", u"&Indent"};
    CommandButton cmdDeleteIndent{*this, "cmdDeleteIndent", u"&Delete indent"};
    CommandButton cmdDelRightIndent{*this, "cmdDelRightIndent", u"Delete right indent"};
    CommandButton cmdParagraph{*this, "cmdParagraph", u"&Paragraph settings"};
    CommandButton cmdBullets{*this, "cmdBullets", u"&Bullets"};
    CommandButton cmdFrames{*this, "cmdFrames", u"Fra&mes"};
    CommandButton cmdParaSpacing{*this, "cmdParaSpacing", u"&Paragraph spacing"};
    CommandButton cmdSetTabs{*this, "cmdSetTabs", u"&Tabs"};

    void Load() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    void cmdAccept_Click();
    void cmdIndent_Click();
    void ReadChoices();

    App& app_;
};

} // namespace korvane
