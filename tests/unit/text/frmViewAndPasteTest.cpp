#include "text/frmViewAndPaste.h"

#include "context/exchange/TextWindowState.h"
#include "context/ports/SystemFileDialog.h"
#include "support/TestApp.h"
#include "text/files/DocumentFiles.h"
#include "unit/text/FakeTextPorts.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace korvane {
namespace {

class ViewAndPaste : public testing::Test {
protected:
    ViewAndPaste() { t.app.SetPort<TextFiles>(&documents); }

    /// Runs `script` in the window as it comes up, and closes it at the end.
    void Look(const std::function<void(frmViewAndPaste&)>& script) {
        t.user.On<frmViewAndPaste>([&script](frmViewAndPaste& f) {
            f.Activate();
            script(f);
            f.Close();
        });
        frmViewAndPaste(t.app).ShowModal();
    }
    /// Does the same without closing the window, which `script` does.
    void LookTillClosed(const std::function<void(frmViewAndPaste&)>& script) {
        t.user.On<frmViewAndPaste>([&script](frmViewAndPaste& f) {
            f.Activate();
            script(f);
        });
        frmViewAndPaste(t.app).ShowModal();
    }
    void Put(const Text& text) { t.clipboard.SetText(text); }
    static std::vector<bool> Visible(const frmViewAndPaste& f) {
        return {f.TXTextControl1.Visible, f.RichTextBox1.Visible, f.Text1.Visible};
    }
    static bool Press(Control& control, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        control.KeyDown(key);
        return key.consumed;
    }
    static constexpr TextView kNoText = u"\r\n( Windows clipboard does not contain text )\r\n";

    const Text kViewer = u"C:\\Drive_G\\Sandrel\\Wexley\\Wexley.exe";
    const Text kTextTool = u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe";
    TestApp t;
    DocumentFiles documents{t.files, CodePage::Windows1252(), nullptr};
};

TEST_F(ViewAndPaste, HasItsCaptionAndItsMenu) {
    const frmViewAndPaste f(t.app);
    EXPECT_EQ(f.Caption.Get(),
              u"Contents of Windows clipboard  (use [Shift-]Tab to select item in toolbar on left)");
    std::vector<std::pair<int, Text>> menu;
    for (const MenuEntry& entry : f.OfficeMenu1.Entries())
        menu.emplace_back(entry.level, Text(entry.caption));
    EXPECT_EQ(menu, (std::vector<std::pair<int, Text>>{{0, u"&File >>"},
                                                       {1, u"&Save contents to disk"},
                                                       {1, u"&Pinsey"},
                                                       {1, u"&Your program"},
                                                       {1, u"&Explorer"},
                                                       {1, u"&Browser"},
                                                       {1, u"&Desktop"},
                                                       {1, u"E&xit"},
                                                       {0, u"Clipboard &viewer"},
                                                       {0, u"&Text styles"},
                                                       {0, u"&Retrieve"}}));
}

TEST_F(ViewAndPaste, ListsItsCommandsWithTheFirstOneCurrentAndInUse) {
    Look([](frmViewAndPaste& f) {
        std::vector<Text> listed;
        for (int index = 0; index < f.iGridListBar.ListCount(); ++index)
            listed.push_back(f.iGridListBar.List(index));
        EXPECT_EQ(listed, (std::vector<Text>{u"Retrieve", u"Text style", u"Viewer", u"Save to disk",
                                             u"Explorer", u"Desktop", u"Exit"}));
        EXPECT_EQ(f.iGridListBar.ListIndex(), 0);
        EXPECT_EQ(f.Focused(), &f.iGridListBar);
    });
}

TEST_F(ViewAndPaste, ShowsTheTextInAllThreeRenderings) {
    Put(u"one\r\ntwo");
    Look([](frmViewAndPaste& f) {
        EXPECT_EQ(f.TXTextControl1.All(), u"one\r\ntwo");
        EXPECT_EQ(f.RichTextBox1.All(), u"one\r\ntwo");
        EXPECT_EQ(f.Text1.Text.Get(), u"one\r\ntwo");
        EXPECT_EQ(f.TmpTextCtrl.All(), u"");
        EXPECT_FALSE(f.TmpTextCtrl.Visible);
    });
}

TEST_F(ViewAndPaste, TakesTheContentsIntoItsHiddenControlBeforeAnythingIsShown) {
    Put(u"text");
    frmViewAndPaste f(t.app);
    std::vector<Text> passed;
    bool empty = true;
    f.TmpTextCtrl.Change = [&] {
        passed.push_back(f.TmpTextCtrl.All());
        empty = empty && f.Text1.Text.Get().empty();
    };
    f.EnsureLoaded();
    f.Activate();
    EXPECT_EQ(passed, (std::vector<Text>{u"text", u""}));
    EXPECT_TRUE(empty);
}

TEST_F(ViewAndPaste, AClipboardWithoutTextSaysSoInTheFullRendering) {
    Look([](frmViewAndPaste& f) {
        EXPECT_EQ(f.TXTextControl1.All(), kNoText);
        EXPECT_EQ(f.RichTextBox1.All(), u"");
        EXPECT_EQ(f.Text1.Text.Get(), u"");
    });
}

TEST_F(ViewAndPaste, AnEmptyTextSaysSoToo) {
    Put(u"");
    Look([](frmViewAndPaste& f) { EXPECT_EQ(f.TXTextControl1.All(), kNoText); });
}

// Kept for compatibility: clipboard-view-opens-plain.
TEST_F(ViewAndPaste, OpensOnThePlainRendering) {
    Put(u"text");
    Look([](frmViewAndPaste& f) {
        EXPECT_EQ(f.ClipViewMode, 2);
        EXPECT_EQ(Visible(f), (std::vector<bool>{false, false, true}));
        EXPECT_EQ(f.Frame1.Caption.Get(), u"> plain text <");
    });
}

TEST_F(ViewAndPaste, ATextStyleStepShowsTheNextRenderingAndWraps) {
    Look([](frmViewAndPaste& f) {
        f.OfficeMenu1.Choose("mnuToggle");
        EXPECT_EQ(f.ClipViewMode, 0);
        EXPECT_EQ(Visible(f), (std::vector<bool>{true, false, false}));
        EXPECT_EQ(f.Frame1.Caption.Get(), u"> full RTF <");
        f.OfficeMenu1.Choose("mnuToggle");
        EXPECT_EQ(f.ClipViewMode, 1);
        EXPECT_EQ(Visible(f), (std::vector<bool>{false, true, false}));
        EXPECT_EQ(f.Frame1.Caption.Get(), u"> basic RTF <");
        f.OfficeMenu1.Choose("mnuToggle");
        EXPECT_EQ(f.ClipViewMode, 2);
        EXPECT_EQ(f.Frame1.Caption.Get(), u"> plain text <");
    });
}

TEST_F(ViewAndPaste, AModeOutsideTheThreeCountsAsTheFirst) {
    for (const int mode : {-1, 3, 100}) {
        frmViewAndPaste f(t.app);
        f.ClipViewMode = static_cast<std::int16_t>(mode);
        f.EnsureLoaded();
        EXPECT_EQ(f.Frame1.Caption.Get(), u"> full RTF <");
        EXPECT_EQ(Visible(f), (std::vector<bool>{true, false, false}));
    }
}

TEST_F(ViewAndPaste, ATextStyleStepFromAModeOutsideTheThreeGoesOnFromTheFirst) {
    Look([](frmViewAndPaste& f) {
        for (const int mode : {-5, 3, 32767}) {
            f.ClipViewMode = static_cast<std::int16_t>(mode);
            f.OfficeMenu1.Choose("mnuToggle");
            EXPECT_EQ(f.ClipViewMode, 1);
            EXPECT_EQ(f.Frame1.Caption.Get(), u"> basic RTF <");
        }
    });
}

TEST_F(ViewAndPaste, TheMarginTakesTheColourOfTheRenderingThatIsSeen) {
    Look([](frmViewAndPaste& f) {
        f.TXTextControl1.BackColor = Colour{0xE0E0E0};
        f.OfficeMenu1.Choose("mnuToggle");
        EXPECT_EQ(f.lblLeftMargin.BackColor.Get(), Colour{0xE0E0E0});
        f.OfficeMenu1.Choose("mnuToggle");
        EXPECT_EQ(f.lblLeftMargin.BackColor.Get(), kNoColour);
    });
}

TEST_F(ViewAndPaste, OnlyTheFirstActivationFills) {
    Put(u"first");
    t.app.DialogResult = 7;
    Look([this](frmViewAndPaste& f) {
        EXPECT_EQ(t.app.DialogResult, 0);
        f.OfficeMenu1.Choose("mnuToggle");
        Put(u"second");
        f.Activate();
        EXPECT_EQ(f.Text1.Text.Get(), u"first");
        EXPECT_EQ(f.ClipViewMode, 0);
        EXPECT_EQ(f.iGridListBar.ListCount(), 7);
    });
}

TEST_F(ViewAndPaste, LetsEventsRunFirstAndBetweenItsSteps) {
    Put(u"text");
    frmViewAndPaste f(t.app);
    std::vector<std::vector<Text>> seen;
    for (int step = 0; step < 4; ++step) {
        t.screen.QueueMessage([&] {
            seen.push_back({f.TXTextControl1.All(), f.RichTextBox1.All(), f.Text1.Text});
        });
    }
    f.EnsureLoaded();
    f.Activate();
    EXPECT_EQ(
        seen,
        (std::vector<std::vector<Text>>{
            {u"", u"", u""}, {u"text", u"", u""}, {u"text", u"text", u""}, {u"text", u"text", u"text"}}));
}

TEST_F(ViewAndPaste, ShowsTheHourglassWhileItFills) {
    Put(u"text");
    Look([this](frmViewAndPaste&) {
        EXPECT_EQ(t.screen.Pointers(), (std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}));
    });
}

TEST_F(ViewAndPaste, RetrieveOfThePlainRenderingPutsTheWholeTextIntoTheTextWindow) {
    FakeOpenText window(t.app);
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    Put(u"one\r\ntwo");
    LookTillClosed([](frmViewAndPaste& f) {
        f.Text1.SelStart = 1;
        f.Text1.SelLength = 2;
        f.OfficeMenu1.Choose("mnuRetrieve");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(window.All(), u"one\r\ntwo");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(ViewAndPaste, RetrieveOfAFormattedRenderingPutsItsSelectionOnly) {
    FakeOpenText window(t.app);
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    Put(u"one two");
    LookTillClosed([](frmViewAndPaste& f) {
        f.OfficeMenu1.Choose("mnuToggle");
        f.TXTextControl1.SetSelection(4, 3);
        f.OfficeMenu1.Choose("mnuRetrieve");
    });
    LookTillClosed([](frmViewAndPaste& f) {
        f.OfficeMenu1.Choose("mnuToggle");
        f.OfficeMenu1.Choose("mnuToggle");
        f.RichTextBox1.SetSelection(0, 3);
        f.OfficeMenu1.Choose("mnuRetrieve");
    });
    EXPECT_EQ(window.All(), u"twoone");
}

// Kept for compatibility: retrieve-takes-selection.
TEST_F(ViewAndPaste, RetrieveOfAFormattedRenderingWithoutASelectionWritesNothing) {
    FakeOpenText window(t.app);
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    Put(u"text");
    LookTillClosed([](frmViewAndPaste& f) {
        f.OfficeMenu1.Choose("mnuToggle");
        f.OfficeMenu1.Choose("mnuRetrieve");
    });
    EXPECT_EQ(window.All(), u"");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(ViewAndPaste, WithoutATextWindowOpenRetrieveOnlyTellsTheCaller) {
    FakeOpenText window(t.app);
    Put(u"text");
    LookTillClosed([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuRetrieve"); });
    EXPECT_EQ(window.All(), u"");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(ViewAndPaste, RetrieveOfAnEmptyPlainRenderingPutsNothingInPlaceOfTheSelection) {
    FakeOpenText window(t.app);
    window.text.SetAll(u"of before");
    window.text.SetSelection(0, 3);
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    LookTillClosed([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuRetrieve"); });
    EXPECT_EQ(window.All(), u"before");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(ViewAndPaste, FormattedContentsAreShownAndRetrievedWithTheirFormatting) {
    FakeOpenText window(t.app);
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    Put(u"one two");
    t.clipboard.AddRtf("{\\rtf1 one {\\b two}}");
    LookTillClosed([](frmViewAndPaste& f) {
        EXPECT_EQ(f.TXTextControl1.All(), u"one two");
        EXPECT_EQ(f.RichTextBox1.All(), u"one two");
        EXPECT_EQ(f.Text1.Text.Get(), u"one two");
        f.OfficeMenu1.Choose("mnuToggle");
        f.TXTextControl1.SetSelection(4, 3);
        EXPECT_EQ(f.TXTextControl1.FontBold(), 1);
        f.OfficeMenu1.Choose("mnuRetrieve");
    });
    EXPECT_EQ(window.All(), u"two");
    window.text.SetSelection(0, 3);
    EXPECT_EQ(window.text.FontBold(), 1);
}

TEST_F(ViewAndPaste, TheSimpleRenderingHasTheFormattingToo) {
    FakeOpenText window(t.app);
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    Put(u"one two");
    t.clipboard.AddRtf("{\\rtf1 one {\\b two}}");
    LookTillClosed([](frmViewAndPaste& f) {
        f.OfficeMenu1.Choose("mnuToggle");
        f.OfficeMenu1.Choose("mnuToggle");
        f.RichTextBox1.SetSelection(4, 3);
        EXPECT_EQ(f.RichTextBox1.FontBold(), 1);
        f.OfficeMenu1.Choose("mnuRetrieve");
    });
    EXPECT_EQ(window.All(), u"two");
    window.text.SetSelection(0, 3);
    EXPECT_EQ(window.text.FontBold(), 1);
}

TEST_F(ViewAndPaste, FormattedContentsAreSavedByTheNameOfTheFile) {
    FakeSystemFileDialog dialog(t.app);
    Put(u"two");
    t.clipboard.AddRtf("{\\rtf1 {\\b two}}");
    dialog.answer = u"C:\\clip.rtf";
    Look([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuSave"); });
    EXPECT_NE(t.files.Contents(u"C:\\clip.rtf").value_or("").find("\\b "), std::string::npos);
}

TEST_F(ViewAndPaste, RetrieveForATextWindowThatIsGoneOnlyTellsTheCaller) {
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    Put(u"text");
    LookTillClosed([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuRetrieve"); });
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(ViewAndPaste, ClosingTellsThatNothingWasRetrieved) {
    t.app.DialogResult = 1;
    LookTillClosed([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuExit"); });
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(ViewAndPaste, ReturnAndADoubleClickRunTheListedCommand) {
    LookTillClosed([this](frmViewAndPaste& f) {
        EXPECT_TRUE(Press(f.iGridListBar, Key::Return));
        EXPECT_FALSE(f.Shown());
        EXPECT_EQ(t.app.DialogResult, 1);
    });
    LookTillClosed([](frmViewAndPaste& f) {
        f.iGridListBar.DoubleClick(1);
        EXPECT_EQ(f.ClipViewMode, 0);
        f.iGridListBar.DoubleClick(6);
        EXPECT_FALSE(f.Shown());
    });
}

TEST_F(ViewAndPaste, EveryListedCommandRuns) {
    t.files.AddFile(kViewer);
    Look([this](frmViewAndPaste& f) {
        f.iGridListBar.DoubleClick(2);
        f.iGridListBar.DoubleClick(4);
        f.iGridListBar.DoubleClick(5);
        EXPECT_EQ(t.shell.Starts().at(0).program, kViewer);
        EXPECT_EQ(t.shell.Opened().at(0).file, u"explorer.exe");
        EXPECT_EQ(t.shell.Calls().at(0).kind, ShellCall::Kind::ToggleDesktop);
        FakeSystemFileDialog dialog(t.app);
        f.iGridListBar.DoubleClick(3);
        EXPECT_EQ(dialog.requests.size(), 1u);
        t.app.SetPort<SystemFileDialog>(nullptr);
    });
}

TEST_F(ViewAndPaste, OtherKeysInTheListPass) {
    Look([](frmViewAndPaste& f) {
        EXPECT_FALSE(Press(f.iGridListBar, Key::Return, Mask::Ctrl));
        EXPECT_FALSE(Press(f.iGridListBar, Key::Down));
    });
}

TEST_F(ViewAndPaste, EscCloses) {
    LookTillClosed([](frmViewAndPaste& f) {
        KeyEvent other{Key::Escape, Mask::Shift};
        f.KeyDown(other);
        EXPECT_TRUE(f.Shown());
        KeyEvent esc{Key::Escape, Mask::None};
        f.KeyDown(esc);
        EXPECT_TRUE(esc.consumed);
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(ViewAndPaste, StartsThePrograms) {
    FakeMainWindow main(t.app);
    t.files.AddFile(kTextTool);
    t.files.AddFile(u"C:\\browser.exe");
    t.app.Settings.CustomBrowserPath = u"C:\\browser.exe";
    Look([](frmViewAndPaste& f) {
        f.OfficeMenu1.Choose("mnuPinsey");
        f.OfficeMenu1.Choose("mnuBrowser");
        f.OfficeMenu1.Choose("mnuYourProgram");
    });
    EXPECT_EQ(t.shell.Starts().at(0).program, kTextTool);
    EXPECT_TRUE(t.shell.Starts().at(0).arguments.empty());
    EXPECT_EQ(t.shell.Starts().back().program, u"C:\\browser.exe");
    EXPECT_EQ(main.commands, std::vector<std::string>{"mnuMisc_YourProgram"});
}

TEST_F(ViewAndPaste, SavesTheContentsUnderTheChosenName) {
    FakeMainWindow main(t.app);
    main.folder = u"C:\\Data";
    FakeSystemFileDialog dialog(t.app);
    dialog.answer = u"C:\\clip.txt";
    Put(u"caf\u00E9\nb");
    Look([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuSave"); });
    ASSERT_EQ(dialog.requests.size(), 1u);
    EXPECT_EQ(dialog.requests.at(0),
              (SystemFileDialog::Request{SystemFileDialog::Purpose::Save, u"All files (*.*)|*.*",
                                         u"Save clipboard contents to file", u"", u"", u"C:\\Data"}));
    EXPECT_EQ(t.files.Contents(u"C:\\clip.txt"), "caf\xE9\r\nb");
}

TEST_F(ViewAndPaste, ASaveTakesThePlaceOfAFileThatWasLonger) {
    FakeSystemFileDialog dialog(t.app);
    dialog.answer = u"C:\\clip.txt";
    t.files.AddFile(u"C:\\clip.txt", "of before");
    Put(u"text");
    Look([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuSave"); });
    EXPECT_EQ(t.files.Contents(u"C:\\clip.txt"), "text");
}

TEST_F(ViewAndPaste, ACancelledSaveWritesNothing) {
    const FakeSystemFileDialog dialog(t.app);
    t.files.AddFile(u"C:\\clip.txt", "of before");
    Put(u"text");
    Look([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuSave"); });
    EXPECT_EQ(t.files.Contents(u"C:\\clip.txt"), "of before");
}

// Kept for compatibility: clipboard-save-is-silent.
TEST_F(ViewAndPaste, ASaveThatFailsIsSilent) {
    FakeSystemFileDialog dialog(t.app);
    dialog.answer = u"C:\\missing\\clip.txt";
    Put(u"text");
    Look([](frmViewAndPaste& f) { f.OfficeMenu1.Choose("mnuSave"); });
    EXPECT_TRUE(t.user.Messages().empty());
}

TEST_F(ViewAndPaste, KeepsItsPlace) {
    Settings& settings = t.app.Settings;
    settings.PasteLeft = 1000;
    settings.PasteTop = 1200;
    settings.PasteWidth = 8000;
    settings.PasteHeight = 6000;
    Look([](frmViewAndPaste& f) {
        EXPECT_EQ(f.Left.Get(), Twips{1000});
        EXPECT_EQ(f.Top.Get(), Twips{1200});
        EXPECT_EQ(f.Width.Get(), Twips{8000});
        EXPECT_EQ(f.Height.Get(), Twips{6000});
        f.Left = Twips{1500};
        f.Width = Twips{9000};
    });
    EXPECT_EQ(settings.PasteLeft, 1500);
    EXPECT_EQ(settings.PasteTop, 1200);
    EXPECT_EQ(settings.PasteWidth, 9000);
    EXPECT_EQ(settings.PasteHeight, 6000);
}

TEST_F(ViewAndPaste, IsNeverSmallerThanItsLeast) {
    Look([](frmViewAndPaste& f) {
        EXPECT_EQ(f.Width.Get(), Twips{5856});
        EXPECT_EQ(f.Height.Get(), Twips{4000});
    });
}

TEST_F(ViewAndPaste, TheRenderingsCannotBeTypedInto) {
    const frmViewAndPaste f(t.app);
    EXPECT_TRUE(f.TXTextControl1.Locked);
    EXPECT_TRUE(f.RichTextBox1.Locked);
    EXPECT_TRUE(f.Text1.Locked);
}

} // namespace
} // namespace korvane
