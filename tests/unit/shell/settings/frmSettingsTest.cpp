#include "shell/settings/frmSettings.h"

#include "context/exchange/ListerRequest.h"
#include "context/ports/SystemFileDialog.h"
#include "shell/settings/frmCtrlRet.h"
#include "shell/settings/frmProgramLocations.h"
#include "support/TestProgram.h"
#include "unit/shell/settings/FakeDialogs.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

class SettingsWindowTest : public testing::Test {
protected:
    void InWindow(const std::function<void(frmSettings&)>& act) {
        p.user.On<frmSettings>([&act](frmSettings& f) {
            act(f);
            f.cmdExit.Press();
        });
        p.Choose("mnuMisc_Settings");
    }
    void OpenThree() {
        for (const char* name : {"a", "b", "c"})
            p.AddTable(u"C:\\Data\\" + FromAscii(name) + u".tbx", {name});
        p.StartWith({}, u"C:\\Data\\a.tbx");
        p.Open(u"C:\\Data\\b.tbx");
        p.Open(u"C:\\Data\\c.tbx");
    }

    TestProgram p;
};

TEST_F(SettingsWindowTest, HasItsCaptions) {
    p.StartWith({});
    InWindow([](frmSettings& f) {
        EXPECT_EQ(f.chkYesShowFullPath.Caption.Get(), u"Show path + file name in tab");
        EXPECT_EQ(f.chkAllowSorting.Caption.Get(), u"Allow sorting on column header click");
        EXPECT_EQ(f.chkShowFileInfoAfterSave.Caption.Get(), u"Show info after saving database");
        EXPECT_EQ(f.chkUseSmartQuotes.Caption.Get(), u"Use &smart quotes when typing in editor");
        EXPECT_EQ(f.chkUseCustomBrowser.Caption.Get(), u"Use this browser");
        EXPECT_EQ(f.chkConfirmExit.Caption.Get(), u"Confirm exit of program");
        EXPECT_EQ(f.cmdCustomBrowser.Caption.Get(), u"Specify your browser");
        EXPECT_EQ(f.cmdMenuFont.Caption.Get(), u"&Menu font");
        EXPECT_EQ(f.cmdSidebarFont.Caption.Get(), u"&SideBar font");
        EXPECT_EQ(f.cmdStringsForKeys.Caption.Get(), u"&String for keys");
        EXPECT_EQ(f.cmdOffice.Caption.Get(), u"&Office files location");
        EXPECT_EQ(f.cmdExit.Caption.Get(), u"E&xit");
    });
}

// Kept for compatibility: pdf-caption-misspelt.
TEST_F(SettingsWindowTest, OneCaptionHasItsSlipOfThePen) {
    p.StartWith({});
    InWindow([](frmSettings& f) {
        EXPECT_EQ(f.cmdBrannockLocation.Caption.Get(), u"Specify program for viewng PDFs");
    });
}

TEST_F(SettingsWindowTest, EachBoxStoresItsStateAtOnce) {
    Settings settings;
    settings.AllowSorting = 1;
    p.StartWith(settings);
    InWindow([this](frmSettings& f) {
        EXPECT_EQ(f.chkAllowSorting.Value.Get(), 1);
        f.chkAllowSorting.Press();
        EXPECT_EQ(p.app.Settings.AllowSorting, 0);
        f.chkShowFileInfoAfterSave.Press();
        EXPECT_EQ(p.app.Settings.ShowFileInfoAfterSave, 1);
        f.chkUseSmartQuotes.Press();
        EXPECT_EQ(p.app.Settings.SmartQuotes, 1);
        f.chkUseCustomBrowser.Press();
        EXPECT_EQ(p.app.Settings.UseCustomBrowser, 1);
        f.chkYesShowFullPath.Press();
        EXPECT_EQ(p.app.Settings.ShowFullPath, 1);
    });
}

// Kept for compatibility: confirm-exit-inert.
TEST_F(SettingsWindowTest, TheQuestionAtTheEndHasNoEffect) {
    p.StartWith({});
    const std::string before = SettingsBytes(p.app.Settings);
    InWindow([](frmSettings& f) { f.chkConfirmExit.Press(); });
    EXPECT_EQ(SettingsBytes(p.app.Settings), before);
    p.Choose("mnuFile_Exit");
    EXPECT_TRUE(p.user.Messages().empty());
}

// Kept for compatibility: full-path-active-tab-only.
TEST_F(SettingsWindowTest, TheFullPathChangesTheCaptionOfTheActiveTabOnly) {
    OpenThree();
    InWindow([this](frmSettings& f) {
        f.chkYesShowFullPath.Press();
        EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx", u"C:\\Data\\c.tbx"}));
        f.chkYesShowFullPath.Press();
        EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx", u"c.tbx"}));
    });
}

TEST_F(SettingsWindowTest, ShowingTheWindowLeavesTheCaptionAlone) {
    OpenThree();
    p.app.Settings.ShowFullPath = 1;
    InWindow([](frmSettings& f) { EXPECT_EQ(f.chkYesShowFullPath.Value.Get(), 1); });
    EXPECT_EQ(p.Captions().back(), u"c.tbx");
}

TEST_F(SettingsWindowTest, TheBrowserBoxIsStoredWhenTheWindowClosesAlsoWhenEmpty) {
    p.StartWith({});
    p.app.Settings.CustomBrowserPath = u"C:\\b.exe";
    InWindow([this](frmSettings& f) {
        EXPECT_EQ(f.txtBrowserLocation.Text.Get(), u"C:\\b.exe");
        f.txtBrowserLocation.Text = u"";
        EXPECT_EQ(p.app.Settings.CustomBrowserPath, u"C:\\b.exe");
    });
    EXPECT_EQ(p.app.Settings.CustomBrowserPath, u"");
}

TEST_F(SettingsWindowTest, ProgramsAreChosenInTheLister) {
    p.files.AddDir(u"C:\\Here");
    p.StartWith({});
    p.files.ChangeDir(u"C:\\Here");
    InWindow([this](frmSettings& f) {
        p.user.OnChooser([this](ListerRequest& request) {
            p.files.ChangeDir(u"C:\\");
            request.ChosenFilePath = u"C:\\browser.exe";
        });
        f.cmdCustomBrowser.Press();
        EXPECT_EQ(f.txtBrowserLocation.Text.Get(), u"C:\\browser.exe");
        p.user.ChooseFile(u"C:\\pdf.exe");
        f.cmdBrannockLocation.Press();
        EXPECT_EQ(f.txtBrannockLocation.Text.Get(), u"C:\\pdf.exe");
        p.user.CancelChooser();
        f.cmdBrannockLocation.Press();
    });
    EXPECT_EQ(p.app.Settings.CustomBrowserPath, u"C:\\browser.exe");
    EXPECT_EQ(p.app.Settings.PdfViewerPath, u"C:\\pdf.exe");
    EXPECT_EQ(p.files.CurrentDir(), u"C:\\Here");
    EXPECT_EQ(p.user.Requests().at(0).FileDialogFilter, u"*.exe");
    EXPECT_EQ(p.user.Requests().at(0).FileDialogCaption, u"Select your browser");
    EXPECT_EQ(p.user.Requests().at(1).FileDialogCaption, u"Select your PDF viewer");
}

TEST_F(SettingsWindowTest, TheWallpaperIsChosenInTheSystemsDialog) {
    FakeSystemFileDialog dialog(p.app);
    p.StartWith({});
    InWindow([this, &dialog](frmSettings& f) {
        dialog.answer = u"C:\\sea.png";
        f.cmdGetWallpaperFile.Press();
        EXPECT_EQ(f.txtWallpaper.Text.Get(), u"C:\\sea.png");
        dialog.answer = std::nullopt;
        f.cmdGetWallpaperFile.Press();
        EXPECT_EQ(p.app.Settings.WallpaperFile, u"C:\\sea.png");
    });
    EXPECT_EQ(dialog.requests.at(0),
              (SystemFileDialog::Request{
                  .filter = u"Image files (*.jpg;*.png;*.bmp;*.gif)|*.jpg;*.jpeg;*.png;*.bmp;*.gif",
                  .title = u"Get image file for wallpaper"}));
}

TEST_F(SettingsWindowTest, TheWallpaperDialogLeavesTheCurrentDirectoryAlone) {
    class WanderingDialog final : public SystemFileDialog {
    public:
        explicit WanderingDialog(App& app) : app_(app) { app.SetPort<SystemFileDialog>(this); }
        std::optional<Text> Choose(const Request&) override {
            app_.Files().ChangeDir(u"C:\\");
            return u"C:\\sea.png";
        }

    private:
        App& app_;
    } dialog(p.app);
    p.files.AddDir(u"C:\\Here");
    p.StartWith({});
    p.files.ChangeDir(u"C:\\Here");
    InWindow([](frmSettings& f) { f.cmdGetWallpaperFile.Press(); });
    EXPECT_EQ(p.app.Settings.WallpaperFile, u"C:\\sea.png");
    EXPECT_EQ(p.files.CurrentDir(), u"C:\\Here");
}

TEST_F(SettingsWindowTest, ShowsWhatIsStoredAndAPasswordInClear) {
    Settings settings;
    settings.CustomBrowserPath = u"C:\\b.exe";
    settings.PdfViewerPath = u"C:\\p.exe";
    settings.WallpaperFile = u"C:\\w.png";
    settings.ReturnPassword = u" secret";
    settings.SmartQuotes = 1;
    p.StartWith(settings);
    InWindow([](frmSettings& f) {
        EXPECT_EQ(f.txtBrowserLocation.Text.Get(), u"C:\\b.exe");
        EXPECT_EQ(f.txtBrannockLocation.Text.Get(), u"C:\\p.exe");
        EXPECT_EQ(f.txtWallpaper.Text.Get(), u"C:\\w.png");
        EXPECT_EQ(f.txtReturnPassword.Text.Get(), u" secret");
        EXPECT_EQ(f.chkUseSmartQuotes.Value.Get(), 1);
        EXPECT_EQ(f.chkAllowSorting.Value.Get(), 0);
        EXPECT_EQ(f.chkConfirmExit.Value.Get(), 0);
    });
}

TEST_F(SettingsWindowTest, HasNoPasswordAtFirst) {
    p.StartWith({});
    InWindow([](frmSettings& f) { EXPECT_EQ(f.txtReturnPassword.Text.Get(), u""); });
}

TEST_F(SettingsWindowTest, TheFullPathNeedsNoTab) {
    p.StartWith({});
    InWindow([this](frmSettings& f) {
        f.chkYesShowFullPath.Press();
        EXPECT_EQ(p.app.Settings.ShowFullPath, 1);
    });
}

TEST_F(SettingsWindowTest, TheOtherTabsFollowTheFullPathWhenTheyAreLoadedTheNextTime) {
    OpenThree();
    InWindow([](frmSettings& f) { f.chkYesShowFullPath.Press(); });
    p.AddTable(u"C:\\Data\\d.tbx", {"d"});
    p.Open(u"C:\\Data\\d.tbx");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx", u"C:\\Data\\c.tbx", u"C:\\Data\\d.tbx"}));
}

TEST_F(SettingsWindowTest, WhatWasChosenInTheListerIsStillThereWhenTheWindowHasClosed) {
    p.StartWith({});
    InWindow([this](frmSettings& f) {
        p.user.ChooseFile(u"C:\\browser.exe");
        f.cmdCustomBrowser.Press();
    });
    EXPECT_EQ(p.app.Settings.CustomBrowserPath, u"C:\\browser.exe");
}

TEST_F(SettingsWindowTest, ACancelledListerChangesNothing) {
    Settings settings;
    settings.CustomBrowserPath = u"C:\\b.exe";
    settings.PdfViewerPath = u"C:\\p.exe";
    p.StartWith(settings);
    InWindow([this](frmSettings& f) {
        p.user.CancelChooser();
        f.cmdCustomBrowser.Press();
        p.user.CancelChooser();
        f.cmdBrannockLocation.Press();
        EXPECT_EQ(f.txtBrowserLocation.Text.Get(), u"C:\\b.exe");
        EXPECT_EQ(f.txtBrannockLocation.Text.Get(), u"C:\\p.exe");
    });
    EXPECT_EQ(p.app.Settings.PdfViewerPath, u"C:\\p.exe");
}

TEST_F(SettingsWindowTest, ThePasswordIsStoredAsItIsTyped) {
    p.StartWith({});
    InWindow([this](frmSettings& f) {
        f.txtReturnPassword.Type(u"open");
        EXPECT_EQ(p.app.Settings.ReturnPassword, u"open");
    });
}

TEST_F(SettingsWindowTest, FontsReachTheMainWindowAtOnce) {
    FakeFontPicker fonts(p.app);
    p.StartWith({});
    InWindow([this, &fonts](frmSettings& f) {
        fonts.answer = FontSpec{u"Arial", 12, true};
        f.cmdMenuFont.Press();
        EXPECT_EQ(p.Main().OfficeMenu1.Font.Get(), (FontSpec{u"Arial", 12, true}));
        fonts.answer = FontSpec{u"Cambria", 10, false};
        f.cmdSidebarFont.Press();
        EXPECT_EQ(p.Main().iGridListBar.Font.Get(), (FontSpec{u"Cambria", 10, false}));
    });
    EXPECT_EQ(p.app.Settings.MenuFontName, u"Arial");
    EXPECT_EQ(p.app.Settings.MenuFontSize, 12);
    EXPECT_EQ(p.app.Settings.MenuFontBold, -1);
    EXPECT_EQ(p.app.Settings.SideBarFontName, u"Cambria");
    EXPECT_EQ(p.app.Settings.SideBarFontSize, 10);
    EXPECT_EQ(p.app.Settings.SideBarFontBold, 0);
}

TEST_F(SettingsWindowTest, WhatTheFontDialogLeavesOpenStaysAsItWas) {
    FakeFontPicker fonts(p.app);
    Settings settings;
    settings.MenuFontName = u"Verdana";
    settings.MenuFontSize = 10;
    p.StartWith(settings);
    InWindow([&fonts](frmSettings& f) {
        fonts.answer = FontSpec{u"", 0, true};
        f.cmdMenuFont.Press();
    });
    EXPECT_EQ(fonts.starts.at(0), (FontSpec{u"Verdana", 10, false}));
    EXPECT_EQ(p.Main().OfficeMenu1.Font.Get(), (FontSpec{u"Verdana", 10, true}));
    EXPECT_EQ(p.app.Settings.MenuFontName, u"Verdana");
    EXPECT_EQ(p.app.Settings.MenuFontSize, 10);
    EXPECT_EQ(p.app.Settings.MenuFontBold, -1);
}

TEST_F(SettingsWindowTest, ACancelledFontChangesNothing) {
    const FakeFontPicker fonts(p.app);
    p.StartWith({});
    const std::string before = SettingsBytes(p.app.Settings);
    InWindow([](frmSettings& f) {
        f.cmdMenuFont.Press();
        f.cmdSidebarFont.Press();
    });
    EXPECT_EQ(SettingsBytes(p.app.Settings), before);
}

TEST_F(SettingsWindowTest, LeadsToTheOtherWindows) {
    p.StartWith({});
    int shown = 0;
    InWindow([this, &shown](frmSettings& f) {
        p.user.On<frmCtrlRet>([&shown](frmCtrlRet& inner) {
            ++shown;
            inner.cmdOK.Press();
        });
        f.cmdStringsForKeys.Press();
        p.user.On<frmProgramLocations>([&shown](frmProgramLocations& inner) {
            ++shown;
            inner.cmdClose.Press();
        });
        f.cmdOffice.Press();
    });
    EXPECT_EQ(shown, 2);
}

} // namespace
} // namespace korvane
