#pragma once

#include "context/ports/OpenText.h"
#include "controls/CommandButton.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/text/TextBars.h"
#include "text/window/TextToolsForm.h"

#include <cstdint>

namespace korvane {

enum class MsgAnswer : std::int16_t;
struct UnsavedText;

/// The rich-text window, in which one document is edited. It opens with the file `TextWindowFile`, or without
/// one.
class frm_RTF_HTM : public TextToolsForm {
public:
    /// The App outlives the window.
    explicit frm_RTF_HTM(App& app);
    ~frm_RTF_HTM() override;

    Menu OfficeMenu1;
    Panel picToolbar{*this, "picToolbar"};
    CommandButton cmdNew{*this, "cmdNew", u"", u"Start new text"};
    CommandButton cmdOpen{*this, "cmdOpen", u"", u"Open file on disk"};
    CommandButton cmdSave{*this, "cmdSave", u"", u"Save text to disk"};
    CommandButton cmdSaveAs{*this, "cmdSaveAs", u"", u"Save text as ..."};
    CommandButton cmdInfo{*this, "cmdInfo", u"", u"Info on file"};
    CommandButton cmdWordList{*this, "cmdWordList", u"", u"Open list of shortcuts"};
    // It does nothing. Kept for compatibility: text-clip-button-does-nothing.
    CommandButton cmdClipTmp{*this, "cmdClipTmp", u"", u"Put selection in cumulative clipboard"};
    CommandButton cmdViewAndPaste{*this, "cmdViewAndPaste", u"", u"View Windows clipboard and paste to text"};
    CommandButton cmdFind{*this, "cmdFind", u"", u"Find string in text"};
    // The tip is that of finding. Kept for compatibility: replace-has-tip-of-find.
    CommandButton cmdReplace{*this, "cmdReplace", u"", u"Find string in text"};
    CommandButton cmdFonts{*this, "cmdFonts", u"", u"Specify font"};
    CommandButton cmdAlign{*this, "cmdAlign", u"", u"Text alignment"};
    CommandButton cmdParagraph{*this, "cmdParagraph", u"", u"Paragraph dialog (Ctrl-4)"};
    CommandButton cmdPageSetup{*this, "cmdPageSetup", u"", u"Page setup (Ctrl-7)"};
    // No key Ctrl-F5 exists. Kept for compatibility: text-keys-without-handler.
    CommandButton cmdBulletsNumbering{*this, "cmdBulletsNumbering", u"", u"Bullets/numbering (Ctrl-F5)"};
    CommandButton cmdFormatting{*this, "cmdFormatting", u"", u"Show control characters"};
    CommandButton cmdViewMode{*this, "cmdViewMode", u"", u"View mode"};
    CommandButton cmdZoomIn{*this, "cmdZoomIn", u"", u"Zoom in"};
    CommandButton cmdZoomOut{*this, "cmdZoomOut", u"", u"Zoom out"};
    CommandButton cmdCentreOnScreen{*this, "cmdCentreOnScreen", u"", u"Centre window on screen"};
    CommandButton cmdExit{*this, "cmdExit", u"", u"Exit text editor"};
    /// Takes the place of the buttons while a save runs.
    Label lblFileName{*this, "lblFileName"};
    TextButtonBar TXButtonBar1{*this, "TXButtonBar1"};
    TextRuler TXRuler1{*this, "TXRuler1"};
    TextStatusBar TXStatusBar1{*this, "TXStatusBar1"};
    HairLine tabHairline{*this, "tabHairline"};
    /// This is never seen.
    TextControl rtfTempText{*this, "rtfTempText"};

    void Load() override;
    bool HasChanges() const override { return Altered(); }
    bool QueryUnload() override;
    void Unload() override;
    void Activate() override;
    void Resize() override;

    void LoadThisFile();
    /// Saves under the name that the document has, whatever it is.
    void SaveThisFile();
    /// What the user wants to do with the altered text.
    MsgAnswer AskSaveChanges();
    /// Opens a file in place of the text, after the question that closing asks. Nothing happens when the user
    /// cancels.
    void View(TextView path);
    /// The same with a text that was kept, which stays altered.
    void ViewUnsaved(const UnsavedText& text);
    /// Keeps an altered text for the next run of the program.
    void KeepUnsaved();
    bool Altered() const { return ThisTextCtrl.DataChanged() || TextAltered == 1; }

    // Nothing in the window starts these six. Kept for compatibility: text-operations-without-key.
    void DoUppercase();
    void DoLowercase();
    void DoSmallCaps();
    void DoSuperScript();
    void DoSubScript();
    void AssignAltAKey();

    void mnuView_EditField_Clack();
    void EditThisField();
    void DoThisZoomIn();
    void DoThisZoomOut();
    /// Tells the user that a load or a save failed, in words that depend on the reason.
    void ThisTextCtrl_Error(const Text& reason);

private:
    struct Tables;

    void Wire();
    void WireButtons();
    void ClearAltered();
    void ForgetKept();
    void SetZoom(int percent);
    bool MayClose();
    void ShowButtons(bool visible);
    void Typed(TypedText& typed);
    void TakePage();
    void LoadFile();
    void NoteCut();
    bool IsCut() const { return !cutFile_.empty() && ThisFileName == cutFile_; }
    bool SaveFile();
    void TellNeeded(int format, FileUse use);

    void mnuFile_New_Click();
    void mnuFile_Open_Click();
    void mnuFile_SaveAs_Click();
    void mnuInfo_Click();
    void mnuView_Click();
    void mnuFormatting_Click();
    void mnuColours_Click();

    // Keys.

    void FocusText();
    void TabKey(KeyEvent& key);
    void WriteCtrlShiftReturn();
    void WriteAltReturn();
    void Swap();
    void TableAttributes();
    void InsertTable();
    void SetTabs();
    void NoteEdit();
    void SelectAll();
    void Bold();
    void Underline();
    void Italic();
    void ClearFormat();
    void Yellow();
    void NoteFind();

    /// Where the text is kept; empty when it isn't.
    Text keptIn_;
    /// The file of which the text has only the beginning; empty when there is none.
    Text cutFile_;
    OpenText openText_{ThisTextCtrl, rtfTempText};
};

} // namespace korvane
