#include "text/fields/frmShowFieldContents.h"

#include "support/Captions.h"
#include "support/DesignerFile.h"
#include "unit/text/fields/FieldStage.h"

namespace korvane {
namespace {

class ShowFieldContents : public FieldStage {
protected:
    frmShowFieldContents& Open(const Text& link) {
        Transit().FieldLinkData = link;
        Transit().ReadOnlyLink = 1;
        window.EnsureLoaded();
        return window;
    }
    static bool PressReturn(Control& control, int mask = Mask::None) {
        KeyEvent key{Key::Return, mask};
        control.KeyDown(key);
        return key.consumed;
    }

    frmShowFieldContents window{t.app};
};

TEST_F(ShowFieldContents, ShowsTheAddressOfTheScratchControlOfTheTextWindow) {
    Transit().FieldLinkData = u"other";
    Transit().FieldLabelText = u"label";
    scratch.SetAll(u"www.a.b");
    window.EnsureLoaded();
    EXPECT_EQ(window.txtHyperLink.Text.Get(), u"www.a.b");
    EXPECT_EQ(window.txtHyperLabel.Text.Get(), u"label");
    window.Close();
    t.app.SetPort<OpenText>(nullptr);
    window.EnsureLoaded();
    EXPECT_EQ(window.txtHyperLink.Text.Get(), u"other");
}

TEST_F(ShowFieldContents, HasItsCaptions) {
    ExpectLook(window, "text/fields", {"Label", "Link"});
    // Kept for compatibility: goto-link-caption.
    EXPECT_EQ(
        CaptionsOf(window),
        (std::vector<Text>{u"Goto this internet link (or load file", u"Load file in link field",
                           u"Convert link to Hex codes", u"Write back any changes to text",
                           u"Get browser to load link", u"Get file to load", u"Get program to edit file with",
                           u"Close this window", u"Use this browser when going to a weblink"}));
    EXPECT_EQ(window.OfficeMenu1.Entries().front().caption, u"Link to &Hex");
}

// Kept for compatibility: link-hex-from-tilde.
TEST_F(ShowFieldContents, TheAddressIsInHexFromTheTildeOn) {
    Open(u"www.a.b/~x %20}\u00E4\u20AC");
    EXPECT_EQ(window.txtHyperLink.Text.Get(), u"www.a.b/%7Ex %20}%E4%80");
    window.txtHyperLink.Type(u"~");
    window.OfficeMenu1.Choose("mnuAscToHex");
    EXPECT_EQ(window.txtHyperLink.Text.Get(), u"%7E");
    window.cmdAscToHex.Press();
    EXPECT_EQ(window.txtHyperLink.Text.Get(), u"%7E");
}

TEST_F(ShowFieldContents, OffersToLoadAFileByItsEnding) {
    for (const TextView link : {TextView(u"C:\\a.txt"), TextView(u"a.LST"), TextView(u"a.asc "),
                                TextView(u"a.rtf\n\n"), TextView(u"a.Doc"), TextView(u"a.docx")}) {
        Open(Text(link));
        EXPECT_TRUE(window.cmdLoadFile.Visible) << ToUtf8(link);
        EXPECT_FALSE(window.cmdGotoLink.Visible);
        window.Close();
    }
    Open(u"www.a.b");
    EXPECT_FALSE(window.cmdLoadFile.Visible);
    EXPECT_TRUE(window.cmdGotoLink.Visible);
    window.txtHyperLink.Type(u"a.txt");
    EXPECT_TRUE(window.cmdLoadFile.Visible);
}

TEST_F(ShowFieldContents, AnAddressOfTheWebGoesToTheBrowserOfTheSettings) {
    t.app.Settings.CustomBrowserPath = u"C:\\browser.exe";
    t.files.AddFile(u"C:\\browser.exe");
    Open(u" www.a.b ");
    EXPECT_EQ(window.lblWhichBrowser.Caption.Get(), u"C:\\browser.exe");
    window.cmdGotoLink.Press();
    EXPECT_EQ(pages.viewed, (std::vector<Text>{u"www.a.b"}));
    window.chkWhichBrowser.Press();
    EXPECT_EQ(t.app.Settings.UseCustomBrowser, 1);
    EXPECT_TRUE(PressReturn(window.txtHyperLink));
    EXPECT_FALSE(PressReturn(window.txtHyperLink, Mask::Shift));
    ASSERT_EQ(t.shell.Starts().size(), 1U);
    EXPECT_EQ(t.shell.Starts()[0].program, u"C:\\browser.exe");
    EXPECT_EQ(t.shell.Starts()[0].arguments, (std::vector<Text>{u"www.a.b"}));
}

TEST_F(ShowFieldContents, ReturnAndEscWorkOnTheButtonToo) {
    Open(u"www.a.b");
    EXPECT_FALSE(PressReturn(window.cmdGotoLink, Mask::Shift));
    EXPECT_TRUE(pages.viewed.empty());
    EXPECT_TRUE(PressReturn(window.cmdGotoLink));
    EXPECT_EQ(pages.viewed, (std::vector<Text>{u"www.a.b"}));
    KeyEvent esc{Key::Escape, Mask::None};
    window.cmdGotoLink.KeyDown(esc);
    EXPECT_FALSE(window.Shown());
}

TEST_F(ShowFieldContents, AFileIsShownByItsTypeAlsoWithABrowserOfTheUser) {
    t.app.Settings.UseCustomBrowser = 1;
    t.files.AddFile(u"C:\\a.txt");
    Open(u"C:\\a.txt");
    window.cmdLoadFile.Press();
    EXPECT_EQ(viewer.viewed, (std::vector<Text>{u"C:\\a.txt"}));
    window.txtHyperLink.Type(u"C:\\gone.txt");
    window.cmdLoadFile.Press();
    EXPECT_EQ(viewer.viewed.size(), 1U);
    EXPECT_TRUE(t.shell.Starts().empty());
}

TEST_F(ShowFieldContents, FilesAndBrowsersAreChosen) {
    Open(u"www.a.b");
    chooser.answer = u"C:\\b.txt";
    window.cmdGetFile.Press();
    EXPECT_EQ(window.txtHyperLink.Text.Get(), u"C:\\b.txt");
    EXPECT_EQ(chooser.requests[0].title, u"File with field contents");
    EXPECT_EQ(chooser.requests[0].filter, u"All files (*.*)|*.*");
    EXPECT_EQ(chooser.requests[0].defaultExtension, u"lst");
    chooser.answer = u"C:\\new.exe";
    window.cmdGetBrowser.Press();
    EXPECT_EQ(t.app.Settings.CustomBrowserPath, u"C:\\new.exe");
    EXPECT_EQ(window.lblWhichBrowser.Caption.Get(), u"C:\\new.exe");
    EXPECT_EQ(chooser.requests[1].title, u"Specify custom browser");
    EXPECT_EQ(chooser.requests[1].filter, u"Programs (*.exe)|*.exe");
    // Kept for compatibility: browser-with-list-extension.
    EXPECT_EQ(chooser.requests[1].defaultExtension, u"lst");
    chooser.answer.reset();
    window.cmdGetFile.Press();
    window.cmdGetBrowser.Press();
    EXPECT_EQ(window.txtHyperLink.Text.Get(), u"C:\\b.txt");
    EXPECT_EQ(t.app.Settings.CustomBrowserPath, u"C:\\new.exe");
    window.cmdProgramForFile.Press();
    EXPECT_EQ(viewer.openedWith, (std::vector<Text>{u"C:\\b.txt"}));
}

// Kept for compatibility: link-write-back-reaches-nothing.
TEST_F(ShowFieldContents, WritingBackReachesNoDocument) {
    scratch.SetAll(u"www.a.b");
    window.EnsureLoaded();
    window.txtHyperLabel.Type(u"new");
    window.txtHyperLink.Type(u"www.c.d");
    window.cmdWriteBack.Press();
    EXPECT_EQ(Transit().FieldLabelText, u"new");
    EXPECT_EQ(Transit().FieldLinkData, u"www.c.d");
    EXPECT_FALSE(document.DataChanged());
    window.Close();
    Open(u"www.e.f");
    window.txtHyperLabel.Type(u"other");
    window.cmdWriteBack.Press();
    EXPECT_EQ(Transit().FieldLabelText, u"new");
}

TEST_F(ShowFieldContents, EscClosesAndThePlaceIsKept) {
    t.app.Settings.FieldsWidth = 6000;
    Open(u"www.a.b");
    EXPECT_EQ(window.Width.Get(), Twips{6000});
    window.Left = Twips{400};
    window.Width = Twips{6500};
    KeyEvent key{Key::Escape};
    window.txtHyperLink.KeyDown(key);
    EXPECT_TRUE(key.consumed);
    EXPECT_EQ(t.app.Settings.FieldsLeft, 400);
    EXPECT_EQ(t.app.Settings.FieldsWidth, 6500);
}

} // namespace
} // namespace korvane
