// The lock, the clock, the list of websites and the window of pages from each place that opens them, with the
// real windows there.

#include "context/ports/FilePicker.h"
#include "dialogs/frmMyInputBox.h"
#include "extras/clock/frmShowTimer.h"
#include "extras/lock/frmWallpaper.h"
#include "extras/web/Pages.h"
#include "extras/web/Websites.h"
#include "extras/web/frmBrowser.h"
#include "extras/web/frmWebList.h"
#include "files/lister/Lister.h"
#include "files/lister/frmGetFileFromTree.h"
#include "files/lists/FileHandling.h"
#include "support/TestProgram.h"
#include "testing/MemoryDocumentConverter.h"
#include "testing/MemoryNetwork.h"
#include "text/fields/frmShowFieldContents.h"
#include "text/files/DocumentFiles.h"
#include "text/insert/InsertWindows.h"
#include "text/insert/frmDateType.h"
#include "text/window/TextWindows.h"
#include "text/window/frm_RTF_HTM.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

class CallersTest : public testing::Test {
protected:
    CallersTest() {
        p.app.SetPort<FilePicker>(&lister);
        p.app.SetPort<FileViewer>(&fileHandling);
        p.app.SetPort<Network>(&net);
        p.app.SetPort<TextFiles>(&documents);
        p.AddTable(kTable, {"a"});
        p.files.AddFile(kPage, "<p>Of the disk</p>");
        Settings settings;
        settings.WallpaperFile = kSea;
        settings.ReturnPassword = u"Secret";
        p.files.AddFile(kSea);
        p.StartWith(settings, kTable);
        p.files.ChangeDir(u"C:\\Data");
    }

    /// The next to appear is a window of this class, which closes itself.
    template <class Window>
    void Expect(bool modal) {
        p.user.On<Window>([this, modal](Window& window) {
            ++shown;
            EXPECT_EQ(p.user.ShowsModal(), modal);
            window.Close();
        });
    }
    void ExpectClock() { Expect<frmShowTimer>(true); }
    void ExpectLock() {
        Expect<frmWallpaper>(true);
        p.user.On<frmMyInputBox>([](frmMyInputBox& box) {
            box.txtBoxText.Type(u"Secret");
            box.cmdOk.Press();
        });
    }
    /// The next to appear is the window of pages with this one.
    void ExpectPage(const Text& address, bool modal) {
        p.user.On<frmBrowser>([this, address, modal](frmBrowser& browser) {
            ++shown;
            EXPECT_EQ(p.user.ShowsModal(), modal);
            EXPECT_EQ(browser.BrowserStartFile, address);
            EXPECT_EQ(browser.txtAddress.Text.Get(), address);
            browser.Close();
        });
    }
    void ExpectShown(int times) { EXPECT_EQ(shown, times); }
    void InLister(const std::function<void(frmGetFileFromTree&)>& act) {
        p.user.On<frmGetFileFromTree>([&act](frmGetFileFromTree& f) {
            act(f);
            f.Close();
        });
        p.Choose("mnuFile_DirLister");
    }
    frm_RTF_HTM& OpenTextWindow() {
        p.user.On<frm_RTF_HTM>([](frm_RTF_HTM&) {});
        texts.TextWindowShow();
        return *texts.Open();
    }
    static bool Press(Control& control, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        control.KeyDown(key);
        return key.consumed;
    }

    const Text kTable = u"C:\\Data\\a.tbx";
    const Text kPage = u"C:\\Data\\page.htm";
    const Text kSea = u"C:\\Data\\sea.png";
    int shown = 0;
    TestProgram p;
    MemoryDocumentConverter converter;
    DocumentFiles documents{p.files, p.app.Page(), &converter};
    MemoryNetwork net;
    Lister lister{p.app};
    FileHandling fileHandling{p.app};
    TextWindows texts{p.app};
    InsertWindows inserts{p.app};
    Websites websites{p.app};
    Pages pages{p.app};
};

// ---- The lock -------------------------------------------------------------------------------------------

TEST_F(CallersTest, TheLockOpensFromTheMenuItsKeyAndTheStripAboveTheTable) {
    ExpectLock();
    p.Choose("mnuMisc_Wallpaper");
    ExpectLock();
    EXPECT_TRUE(p.PressKey(Key::F(7)));
    ExpectLock();
    p.Tab(1).cmdWallpaper.Press();
    ExpectShown(3);
}

TEST_F(CallersTest, TheLockOpensWithoutATableToo) {
    p.Choose("mnuFile_Close");
    ASSERT_TRUE(p.Captions().empty());
    ExpectLock();
    p.Choose("mnuMisc_Wallpaper");
    ExpectShown(1);
}

// ---- The clock ------------------------------------------------------------------------------------------

TEST_F(CallersTest, TheClockOpensFromTheMenuAndTheToolBar) {
    ExpectClock();
    p.Choose("mnuMisc_Clock");
    ExpectClock();
    auto* button = dynamic_cast<CommandButton*>(p.Main().Find("cmdClock"));
    ASSERT_NE(button, nullptr);
    button->Press();
    ExpectShown(2);
}

TEST_F(CallersTest, TheClockOpensFromTheTextWindow) {
    frm_RTF_HTM& text = OpenTextWindow();
    ExpectClock();
    text.OfficeMenu1.Choose("mnuTimer");
    for (const int mask : {Mask::Shift, Mask::Ctrl, Mask::Alt, Mask::Ctrl | Mask::Shift}) {
        ExpectClock();
        EXPECT_TRUE(Press(text.ThisTextCtrl, Key::F(11), mask));
    }
    ExpectShown(5);
}

TEST_F(CallersTest, TheClockOpensFromTheWindowOfDates) {
    OpenTextWindow();
    p.user.On<frmDateType>([this](frmDateType& dates) {
        ExpectClock();
        dates.cmdClock.Press();
        dates.Close();
    });
    texts.Open()->OfficeMenu1.Choose("mnuDateInsert");
    ExpectShown(1);
}

TEST_F(CallersTest, TheClockOpensFromTheLister) {
    InLister([this](frmGetFileFromTree& f) {
        for (const int mask : {Mask::Shift, Mask::Ctrl, Mask::Alt}) {
            ExpectClock();
            EXPECT_TRUE(Press(f.ListView1, Key::F(11), mask));
        }
    });
    ExpectShown(3);
}

// ---- The list of websites -------------------------------------------------------------------------------

TEST_F(CallersTest, TheListOfWebsitesOpensFromTheMenuItsKeyAndTheStripAboveTheTable) {
    Expect<frmWebList>(false);
    p.Choose("mnuMisc_Websites");
    Expect<frmWebList>(false);
    EXPECT_TRUE(p.PressKey(Key::F(7), Mask::Ctrl));
    Expect<frmWebList>(false);
    p.Tab(1).cmdWebsites.Press();
    ExpectShown(3);
}

TEST_F(CallersTest, TheListOfWebsitesLeavesTheTableFree) {
    p.user.On<frmWebList>([](frmWebList&) {});
    p.Choose("mnuMisc_Websites");
    p.Tab(1).iGrid1.CommitEdit(Row{1}, Col{1}, u"A");
    EXPECT_TRUE(p.PressKey('S', Mask::Ctrl));
    EXPECT_EQ(p.FileBytes(kTable), NameTable(kTable, {"A"}));
    p.Tab(1).cmdWebsites.Press();
    EXPECT_EQ(p.user.Raised(), std::vector<std::string>{"frmWebList"});
    p.user.Shown().back()->Close();
}

TEST_F(CallersTest, ABrowserOfTheListIsTheOneOfTheMenu) {
    p.files.AddFile(u"C:\\Web\\b.exe");
    p.user.On<frmWebList>([](frmWebList& f) {
        f.prgText1.Type(u"C:\\Web\\b.exe");
        f.Close();
    });
    p.Choose("mnuMisc_Websites");
    p.Choose("mnuMisc_Browser");
    EXPECT_EQ(p.shell.Starts(), std::vector<ProgramStart>{{u"C:\\Web\\b.exe"}});
}

TEST_F(CallersTest, ABrowserOfTheListBecomesTheOneOfLinks) {
    p.files.AddFile(u"C:\\Web\\b.exe");
    p.user.On<frmWebList>([this](frmWebList& f) {
        f.prgText2.Type(u"C:\\Web\\b.exe");
        f.Option2.Press();
        p.user.Answer(Answer::Yes);
        f.OfficeMenu1.Choose("mnuCustomBrowser");
        f.Close();
    });
    p.Choose("mnuMisc_Websites");
    EXPECT_TRUE(p.PressKey('B', Mask::Alt));
    frm_RTF_HTM& text = OpenTextWindow();
    p.user.On<frmShowFieldContents>([](frmShowFieldContents& f) {
        f.cmdGotoLink.Press();
        f.Close();
    });
    text.ThisTextCtrl.HyperlinkClicked(1, 0, u"http://x.org");
    EXPECT_EQ(p.shell.Starts(),
              (std::vector<ProgramStart>{{u"C:\\Web\\b.exe"}, {u"C:\\Web\\b.exe", {u"http://x.org"}}}));
}

// ---- The window of pages --------------------------------------------------------------------------------

TEST_F(CallersTest, APageOpensOverTheLister) {
    InLister([this](frmGetFileFromTree& f) {
        f.txtSearchSpec.Type(u"*.htm");
        Press(f.txtSearchSpec, Key::Return);
        ASSERT_EQ(f.ListView1.Count(), 1);
        f.ListView1.Select(1);
        ExpectPage(kPage, true);
        EXPECT_TRUE(Press(f.ListView1, Key::Space));
        ExpectPage(kPage, true);
        f.cmdViewFile.Press();
        ExpectPage(kPage, true);
        f.OfficeMenu1.Choose("mnuEdit_View");
    });
    ExpectShown(3);
}

TEST_F(CallersTest, ALinkOfATextOpensOverItsWindow) {
    frm_RTF_HTM& text = OpenTextWindow();
    for (const auto& [link, opened] : {std::pair<Text, Text>{u"http://x.org", u"http://x.org"},
                                       {u"www.x.org", u"www.x.org"},
                                       {u"C:\\Data\\page.htm", kPage}}) {
        p.user.On<frmShowFieldContents>([this, page = opened](frmShowFieldContents& f) {
            ExpectPage(page, true);
            f.cmdGotoLink.Press();
            f.Close();
        });
        text.ThisTextCtrl.HyperlinkClicked(1, 0, link);
    }
    ExpectShown(3);
}

} // namespace
} // namespace korvane
