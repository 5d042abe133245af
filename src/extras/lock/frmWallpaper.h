#pragma once

#include "context/ports/PictureFiles.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/views/PictureBox.h"
#include "controls/views/Slider.h"

namespace korvane {

class App;

/// Covers the desk with a picture until the user's password is given. Modal. It hides what is on the screen
/// and keeps nobody out who means harm.
class frmWallpaper : public Form {
public:
    explicit frmWallpaper(App& app);

    Menu OfficeMenu1;
    PictureBox Image1{*this, "Image1"};
    Slider HScroll1{*this, "HScroll1", 0, 0};
    Slider VScroll1{*this, "VScroll1", 0, 0};

    void Load() override;
    bool QueryUnload() override;
    void KeyDown(KeyEvent& key) override;
    void Clicked() override { Close(); }

private:
    struct Tables;

    void mnuStretch_Click();
    void mnuImage_Click();
    void ShowPicture();
    void FitPicture();
    void ShowBars(Twips beyondRight, Twips beyondBottom);
    void PlacePicture();
    bool PasswordGiven();

    App& app_;
    PictureSize window_{};
    /// Empty while there is no picture.
    PictureSize picture_{};
    Rect place_{};
    bool asking_ = false;
};

} // namespace korvane
