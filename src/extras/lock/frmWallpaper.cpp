#include "extras/lock/frmWallpaper.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/StandardMessages.h"
#include "context/ports/SystemFileDialog.h"
#include "dialogs/Questions.h"
#include "dialogs/frmMyInputBox.h"
#include "extras/lock/WallpaperFit.h"
#include "platform/FileSystem.h"

namespace korvane {

namespace {

/// How thick a scroll bar is. It covers the edge of the picture.
constexpr Twips kBar{255};

void ShowBar(Slider& bar, Twips beyond, Twips page) {
    bar.Visible = beyond > Twips{0};
    bar.Value = 0;
    bar.Max = beyond.Number();
    bar.LargeChange = page.Number();
}

} // namespace

struct frmWallpaper::Tables {
    static constexpr MenuRow<frmWallpaper> kMenu[] = {
        {0, "mnuExit", u"E&xit", "", &frmWallpaper::Close},
        {0, "mnuStretch", u"&Stretch", "", &frmWallpaper::mnuStretch_Click},
        {0, "mnuImage", u"&Image", "", &frmWallpaper::mnuImage_Click},
    };
};

frmWallpaper::frmWallpaper(App& app)
    : Form(app.Forms(), "frmWallpaper", u"Wallpaper"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app) {
    HScroll1.Height = kBar;
    VScroll1.Width = kBar;
    HScroll1.Change = [this] { PlacePicture(); };
    VScroll1.Change = [this] { PlacePicture(); };
    Image1.Resized = [this](Twips width, Twips height) {
        window_ = {width, height};
        FitPicture();
    };
}

void frmWallpaper::Load() {
    const Rect area = app_.Screen().WorkArea();
    Left = area.left;
    Top = area.top;
    Width = area.width;
    Height = area.height;
    window_ = {area.width, area.height};
    ShowPicture();
}

void frmWallpaper::ShowPicture() {
    Text file = app_.Settings.WallpaperFile;
    picture_ = {};
    Image1.File = Text();
    if (file.empty() || !app_.Files().FileExists(file)) {
        ShowCannotLocate(app_, file);
    } else if (auto* pictures = app_.Port<PictureFiles>()) {
        picture_ = pictures->NaturalSize(file).value_or(PictureSize{});
        if (picture_ != PictureSize{}) Image1.File = file;
    }
    FitPicture();
}

void frmWallpaper::FitPicture() {
    WallpaperFit fit;
    const bool sizesKnown = picture_ != PictureSize{} && window_ != PictureSize{};
    if (sizesKnown) fit = FitWallpaper(picture_, window_, app_.Settings.WallpaperNumber == u"1");
    place_ = fit.place;
    ShowBars(fit.beyondRight, fit.beyondBottom);
    PlacePicture();
}

void frmWallpaper::ShowBars(Twips beyondRight, Twips beyondBottom) {
    const bool both = beyondRight > Twips{0} && beyondBottom > Twips{0};
    // Each bar covers a strip of the picture, which the other one has to scroll to as well.
    const int covered = both ? kBar.Number() : 0;
    ShowBar(HScroll1, beyondRight + covered, window_.width);
    ShowBar(VScroll1, beyondBottom + covered, window_.height);
}

void frmWallpaper::PlacePicture() {
    Rect place = place_;
    place.left -= HScroll1.Value;
    place.top -= VScroll1.Value;
    Image1.Place = place;
}

void frmWallpaper::mnuStretch_Click() {
    Text& stretch = app_.Settings.WallpaperNumber;
    stretch = stretch == u"1" ? u"0" : u"1";
    FitPicture();
}

void frmWallpaper::mnuImage_Click() {
    auto* systemFileDialog = app_.Port<SystemFileDialog>();
    if (systemFileDialog == nullptr) return;
    const auto file =
        systemFileDialog->Choose({.filter = u"Image files (*.jpg;*.png;*.bmp;*.gif)|*.jpg;*.png;*.bmp;*.gif",
                                  .title = u"Select wallpaper image",
                                  .name = app_.Settings.WallpaperFile});
    if (!file || !app_.Files().FileExists(*file)) return;
    app_.Settings.WallpaperFile = *file;
    ShowPicture();
}

void frmWallpaper::KeyDown(KeyEvent& key) {
    key.consumed = true;
    // The letters of the bar are typed while Alt is held. Kept for compatibility:
    // modifiers-alone-are-no-keys.
    if (!key.IsModifier()) Close();
}

bool frmWallpaper::QueryUnload() {
    if (asking_) return false;
    const ScopedValue asking(asking_, true);
    return PasswordGiven();
}

bool frmWallpaper::PasswordGiven() {
    // The box of the question is the one of all windows, with its buttons for the desk and the file manager.
    // Kept for compatibility: lock-question-shows-desktop.
    const Text answer = AskForText(app_, u"Enter password to return to program.");
    const TextView given = Trim(answer);
    // An empty password is never given, so it leaves no way out. Kept for compatibility:
    // empty-password-locks.
    if (!given.empty() && given == app_.Settings.ReturnPassword) return true;
    TellError(app_, u"Wrong password!\r\n\r\n\"" + answer + u"\"");
    return false;
}

} // namespace korvane
