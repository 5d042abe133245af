#include "text/fields/FieldEvents.h"

#include "text/fields/FieldNotes.h"
#include "text/fields/frmShowFieldContents.h"
#include "text/fields/frmViewEditField.h"
#include "unit/text/fields/FieldStage.h"

namespace korvane {
namespace {

using FieldEvents = FieldStage;

TEST_F(FieldEvents, TheTipHasTheNoteOnOneLineOrTheAddress) {
    EXPECT_EQ(FieldTip(document, 1), u"Field No. 1: my  note");
    EXPECT_EQ(FieldTip(document, 2), u"Field No. 2: www.a.b");
    document.SetFieldData(2, u"C:\\a.txt");
    EXPECT_EQ(FieldTip(document, 2), u"Field No. 2: C:\\a.txt");
    document.SetFieldData(1, u"{\\rtf1 {\\b bold} note}");
    EXPECT_EQ(FieldTip(document, 1), u"Field No. 1: bold note");
}

TEST_F(FieldEvents, AClickedHyperlinkShowsItsAddressInPlainCharacters) {
    t.user.On<frmShowFieldContents>([this](frmShowFieldContents& shown) {
        EXPECT_EQ(shown.txtHyperLabel.Text.Get(), u"link");
        EXPECT_EQ(shown.txtHyperLink.Text.Get(), u"www.a.b/?x=1&y=2");
        EXPECT_EQ(Transit().FieldNumber, 2);
        shown.cmdExit.Press();
    });
    ShowHyperlink(t.app, document, scratch, 2, u"www.a.b/?x=1&y=2");
    EXPECT_EQ(t.app.Settings.ViewEditOption, 1);
    EXPECT_EQ(form.Focused(), &document);
}

// Kept for compatibility: field-start-after.
TEST_F(FieldEvents, TheFieldAtTheCursorIsEdited) {
    t.app.Settings.ViewEditOption = 1;
    document.SetSelStart(6);
    t.user.On<frmViewEditField>([](frmViewEditField& editor) {
        EXPECT_EQ(editor.txtFieldLabel.Text.Get(), u"mark");
        EXPECT_EQ(editor.txtFieldEntry.All(), u"my\r\nnote");
        EXPECT_TRUE(editor.optTextField.Value);
        editor.Close();
    });
    EXPECT_TRUE(EditField(t.app, document));
    EXPECT_EQ(document.FieldCurrent(), 1);
    EXPECT_EQ(document.SelStart(), 5);
}

TEST_F(FieldEvents, ANegativeResultAltersNothing) {
    document.SetSelStart(6);
    t.user.On<frmViewEditField>([this](frmViewEditField& editor) {
        editor.Close();
        t.app.DialogResult = -1;
    });
    EXPECT_FALSE(EditField(t.app, document));
}

TEST_F(FieldEvents, ANoteIsRtfOnlyWithFormatting) {
    scratch.SetAll(u"plain\r\nnote");
    EXPECT_EQ(NoteOf(scratch), u"plain\r\nnote");
    scratch.SetSelection(0, 5);
    scratch.SetFontBold(1);
    const Text note = NoteOf(scratch);
    EXPECT_TRUE(note.starts_with(u"{\\rtf"));
    EXPECT_EQ(NoteText(note), u"plain\r\nnote");
    document.SetAll(u"");
    WriteNote(document, note);
    document.SetSelection(0, 5);
    EXPECT_EQ(document.FontBold(), 1);
}

} // namespace
} // namespace korvane
