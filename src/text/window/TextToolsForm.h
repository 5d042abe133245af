#pragma once

#include "controls/Form.h"
#include "controls/text/TextControl.h"

#include <cstdint>
#include <string_view>

namespace korvane {

class App;

/// What the text window opens beside itself, other windows and programs, and its places on the screen.
class TextToolsForm : public Form {
public:
    TextControl ThisTextCtrl{*this, "ThisTextCtrl"};

    /// The full path of the document, or "Untitled.rtf".
    Text ThisFileName;
    /// 1 after a change that the control doesn't know of.
    std::int16_t TextAltered = 0;

    void DoConvertHTML();

protected:
    /// The App outlives the window.
    TextToolsForm(App& app, std::string_view name);

    App& Context() const { return app_; }

    void mnuFind_Click();
    void mnuReplace_Click();
    void mnuEdit_ViewAndPaste_Click();
    void mnuWordList_Click();
    void mnuEdit_Unicode_Click();
    void mnuCharacters_Click();
    void mnuSymbols_Click();
    void mnuEdit_GetHTML_Click();
    void mnuFonts_Click();
    void mnuAlign_Click();
    void mnuParagraphFormatting_Click();
    void mnuBulletsNumbering_Click();
    void mnuPageSetup_Click();
    void mnuExplorer_Click();
    void mnuDateInsert_Click();
    void mnuTimer_Click();
    void Webmail();
    void Desktop();
    void StartBrowser();
    void StartLorrit();
    void OpenUrl();
    void cmdCentreOnScreen_Click();
    void CentreAt90();
    void DockLeft();
    void DockLeftFilling();
    void DockRight();
    void DockRightFilling();

private:
    Text FolderOfFile() const;
    Form* MainForm() const;

    App& app_;
};

} // namespace korvane
