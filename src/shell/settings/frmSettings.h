#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"

namespace korvane {

class App;
class Tabs;

/// The general options. Modal, without a Cancel: each control acts when it is touched.
class frmSettings : public Form {
public:
    /// `menuBar` and `sideBar` are those of the main window, whose fonts are chosen here. All outlive the
    /// window.
    frmSettings(App& app, Tabs& tabs, Control& menuBar, Control& sideBar);

    CheckBox chkYesShowFullPath{*this, "chkYesShowFullPath", u"Show path + file name in tab"};
    CheckBox chkAllowSorting{*this, "chkAllowSorting", u"Allow sorting on column header click"};
    CheckBox chkShowFileInfoAfterSave{*this, "chkShowFileInfoAfterSave", u"Show info after saving database"};
    CheckBox chkUseSmartQuotes{*this, "chkUseSmartQuotes", u"Use &smart quotes when typing in editor"};
    /// It has no effect. Kept for compatibility: confirm-exit-inert.
    CheckBox chkConfirmExit{*this, "chkConfirmExit", u"Confirm exit of program"};
    TextBox txtBrowserLocation{*this, "txtBrowserLocation"};
    CommandButton cmdCustomBrowser{*this, "cmdCustomBrowser", u"Specify your browser"};
    CheckBox chkUseCustomBrowser{*this, "chkUseCustomBrowser", u"Use this browser"};
    TextBox txtBrannockLocation{*this, "txtBrannockLocation"};
    // Kept for compatibility: pdf-caption-misspelt.
    CommandButton cmdBrannockLocation{*this, "cmdBrannockLocation", u"Specify program for viewng PDFs"};
    TextBox txtWallpaper{*this, "txtWallpaper"};
    CommandButton cmdGetWallpaperFile{*this, "cmdGetWallpaperFile", u"...", u"Get image file for wallpaper"};
    TextBox txtReturnPassword{*this, "txtReturnPassword"};
    CommandButton cmdMenuFont{*this, "cmdMenuFont", u"&Menu font"};
    CommandButton cmdSidebarFont{*this, "cmdSidebarFont", u"&SideBar font"};
    CommandButton cmdStringsForKeys{*this, "cmdStringsForKeys", u"&String for keys"};
    CommandButton cmdOffice{*this, "cmdOffice", u"&Office files location"};
    CommandButton cmdExit{*this, "cmdExit", u"E&xit"};

    void Load() override;
    void Unload() override;

private:
    void WireButtons();
    void WireFields();
    void chkYesShowFullPath_Click();
    void cmdCustomBrowser_Click();
    void cmdBrannockLocation_Click();
    void cmdGetWallpaperFile_Click();
    void cmdMenuFont_Click();
    void cmdSidebarFont_Click();

    App& app_;
    Tabs& tabs_;
    Control& menuBar_;
    Control& sideBar_;
};

} // namespace korvane
