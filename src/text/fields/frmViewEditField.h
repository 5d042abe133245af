#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/text/TextControl.h"

namespace korvane {

class App;

/// Edits the current field of a text. Modal.
class frmViewEditField : public Form {
public:
    /// Both outlive the window.
    frmViewEditField(App& app, TextControl& document);

    Menu OfficeMenu1;
    OptionButton optHyperLink{*this, "optHyperLink", "kind", u"&Hyperlink (RTF, DOC(x), HTML files)"};
    OptionButton optTextField{*this, "optTextField", "kind", u"&Text field (RTF file)"};
    TextBox txtFieldLabel{*this, "txtFieldLabel"};
    TextBox txtFieldURL{*this, "txtFieldURL"};
    CommandButton cmdGetFile{*this, "cmdGetFile", u"", u"Get file name for link entry"};
    // They show the colours.
    Label lblText{*this, "lblText"};
    Label lblURL{*this, "lblURL"};
    TextControl txtFieldEntry{*this, "txtFieldEntry"};
    /// Takes the place of the note while all fields are shown.
    TextControl txtAllFields{*this, "txtAllFields"};
    CommandButton cmdWriteBack{*this, "cmdWriteBack", u"", u"Write back changes"};
    CommandButton cmdCreateField{*this, "cmdCreateField", u"", u"Create new field"};
    CommandButton cmdAllFields{*this, "cmdAllFields", u"", u"Show all fields in text"};
    CommandButton cmdHide{*this, "cmdHide", u"", u"Hide all fields"};
    CommandButton cmdSave{*this, "cmdSave", u"", u"Save list to disk"};
    CommandButton cmdFont{*this, "cmdFont", u"", u"Font for field in text"};
    CommandButton cmdFontEdit{*this, "cmdFontEdit", u"", u"Font for edit window"};
    CommandButton cmdHyperColour{*this, "cmdHyperColour", u"", u"Colour for hyperlink"};
    CommandButton cmdTextColour{*this, "cmdTextColour", u"", u"Colour for text field"};
    CommandButton cmdHelp{*this, "cmdHelp", u"", u"Help note"};
    CommandButton cmdExit{*this, "cmdExit", u"", u"Close this window"};

    void Load() override;
    bool QueryUnload() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    void Wire();
    void ShowField();
    void ShowKind();
    void TakeFirstColours();
    void ShowColours();
    void ShowPane(bool all);
    void ShowEditFont();
    TextControl& Pane() { return allShown_ ? txtAllFields : txtFieldEntry; }
    /// Says so when all fields are shown, and what is to be done is for a single one.
    bool RefusedForAll();
    void WriteFields();
    void PutNewField();
    void FillNewField(int field);
    void PaintField(int kind);
    void ChooseColours(std::int32_t& fore, std::int32_t& back);

    void cmdWriteBack_Click();
    void cmdCreateField_Click();
    void cmdAllFields_Click();
    void cmdHide_Click();
    void cmdSave_Click();
    void cmdFont_Click();
    void cmdFontEdit_Click();
    void cmdHyperColour_Click();
    void cmdTextColour_Click();
    void cmdHelp_Click();
    void cmdGetFile_Click();
    void mnuUpdateColours_Click();

    // Keys of the two texts.

    void SelectAll();
    void Find();
    void Replace();
    void ToggleControlChars();
    void Swap();
    void DeleteKey(KeyEvent& key);
    void WritePlusSigns();
    void NoteChange();
    void PasteView();
    void GoToUrl();

    App& app_;
    TextControl& document_;
    bool allShown_ = false;
    bool altered_ = false;
};

} // namespace korvane
