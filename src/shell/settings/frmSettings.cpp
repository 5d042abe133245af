#include "shell/settings/frmSettings.h"

#include "context/App.h"
#include "context/FileChooser.h"
#include "context/ProgramPicker.h"
#include "context/ports/FontPicker.h"
#include "context/ports/SystemFileDialog.h"
#include "platform/FileSystem.h"
#include "shell/settings/SettingsFile.h"
#include "shell/settings/frmCtrlRet.h"
#include "shell/settings/frmProgramLocations.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmMDIChild.h"

#include <array>

namespace korvane {

namespace {

struct Option {
    CheckBox frmSettings::*box;
    std::int16_t Settings::*field;
};

constexpr std::array<Option, 5> kOptions{{
    {&frmSettings::chkYesShowFullPath, &Settings::ShowFullPath},
    {&frmSettings::chkAllowSorting, &Settings::AllowSorting},
    {&frmSettings::chkShowFileInfoAfterSave, &Settings::ShowFileInfoAfterSave},
    {&frmSettings::chkUseSmartQuotes, &Settings::SmartQuotes},
    {&frmSettings::chkUseCustomBrowser, &Settings::UseCustomBrowser},
}};

/// The settings that make up one font.
struct FontFields {
    Text& name;
    std::int16_t& size;
    std::int16_t& bold;
};

/// Lets the user choose a font and stores it. What isn't chosen stays as it was.
void ChooseFont(const App& app, const FontFields& fields, Control& control) {
    auto* fontPicker = app.Port<FontPicker>();
    if (fontPicker == nullptr) return;
    const auto font = fontPicker->Choose({fields.name, fields.size, fields.bold != 0});
    if (!font) return;
    if (!font->name.empty()) fields.name = font->name;
    if (font->size > 0) fields.size = static_cast<std::int16_t>(font->size);
    fields.bold = font->bold ? -1 : 0;
    control.Font = FontSpec{fields.name, fields.size, fields.bold != 0};
}

} // namespace

frmSettings::frmSettings(App& app, Tabs& tabs, Control& menuBar, Control& sideBar)
    : Form(app.Forms(), "frmSettings", u"Settings"),
      app_(app),
      tabs_(tabs),
      menuBar_(menuBar),
      sideBar_(sideBar) {
    txtBrannockLocation.Locked = true;
    txtWallpaper.Locked = true;
    WireButtons();
}

void frmSettings::WireButtons() {
    cmdCustomBrowser.Click = [this] { cmdCustomBrowser_Click(); };
    cmdBrannockLocation.Click = [this] { cmdBrannockLocation_Click(); };
    cmdGetWallpaperFile.Click = [this] { cmdGetWallpaperFile_Click(); };
    cmdMenuFont.Click = [this] { cmdMenuFont_Click(); };
    cmdSidebarFont.Click = [this] { cmdSidebarFont_Click(); };
    cmdStringsForKeys.Click = [this] { frmCtrlRet(app_).ShowModal(); };
    cmdOffice.Click = [this] { frmProgramLocations(app_).ShowModal(); };
    cmdExit.Click = [this] { Close(); };
    cmdExit.Cancel = true;
}

void frmSettings::Load() {
    const Settings& settings = app_.Settings;
    for (const Option& option : kOptions)
        (this->*option.box).Value = settings.*option.field;
    txtBrowserLocation.Text = settings.CustomBrowserPath;
    txtBrannockLocation.Text = settings.PdfViewerPath;
    txtWallpaper.Text = settings.WallpaperFile;
    txtReturnPassword.Text = settings.ReturnPassword;
    WireFields();
}

void frmSettings::WireFields() {
    for (const Option& option : kOptions) {
        CheckBox& box = this->*option.box;
        box.Click = [this, &box, field = option.field] { app_.Settings.*field = box.Value; };
    }
    chkYesShowFullPath.Click = [this] { chkYesShowFullPath_Click(); };
    txtReturnPassword.Change = [this] {
        app_.Settings.ReturnPassword = txtReturnPassword.Text;
        HoldPassword(app_);
    };
}

void frmSettings::Unload() {
    app_.Settings.CustomBrowserPath = txtBrowserLocation.Text;
}

void frmSettings::chkYesShowFullPath_Click() {
    app_.Settings.ShowFullPath = chkYesShowFullPath.Value;
    // The captions of the other tabs change when their files are loaded the next time. Kept for
    // compatibility: full-path-active-tab-only.
    frmMDIChild* tab = tabs_.Active();
    if (tab == nullptr) return;
    const Text& path = tabs_.TabState[tab->Slot()].Path;
    tab->Caption = app_.Settings.ShowFullPath == 1 ? path : Text(app_.Files().Style().NamePart(path));
}

void frmSettings::cmdCustomBrowser_Click() {
    Text& location = app_.Settings.CustomBrowserPath;
    if (PickProgram(app_, u"Select your browser", location)) txtBrowserLocation.Text = location;
}

void frmSettings::cmdBrannockLocation_Click() {
    Text& location = app_.Settings.PdfViewerPath;
    if (PickProgram(app_, u"Select your PDF viewer", location)) txtBrannockLocation.Text = location;
}

void frmSettings::cmdGetWallpaperFile_Click() {
    auto* systemFileDialog = app_.Port<SystemFileDialog>();
    if (systemFileDialog == nullptr) return;
    const KeepCurrentDir keep(app_);
    const auto file = systemFileDialog->Choose(
        {.filter = u"Image files (*.jpg;*.png;*.bmp;*.gif)|*.jpg;*.jpeg;*.png;*.bmp;*.gif",
         .title = u"Get image file for wallpaper"});
    if (!file || file->empty()) return;
    app_.Settings.WallpaperFile = *file;
    txtWallpaper.Text = *file;
}

void frmSettings::cmdMenuFont_Click() {
    Settings& settings = app_.Settings;
    ChooseFont(app_, {settings.MenuFontName, settings.MenuFontSize, settings.MenuFontBold}, menuBar_);
}

void frmSettings::cmdSidebarFont_Click() {
    Settings& settings = app_.Settings;
    ChooseFont(app_, {settings.SideBarFontName, settings.SideBarFontSize, settings.SideBarFontBold},
               sideBar_);
}

} // namespace korvane
