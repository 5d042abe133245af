#pragma once

#include "context/ports/PictureFiles.h"
#include "platform/Screen.h"

namespace korvane {

/// How a picture is shown in a window.
struct WallpaperFit {
    Rect place;
    /// How much of the picture is beyond the right and the lower edge of the window and has to be scrolled
    /// to.
    Twips beyondRight, beyondBottom;

    bool operator==(const WallpaperFit&) const = default;
};

/// Neither size is empty.
WallpaperFit FitWallpaper(const PictureSize& picture, const PictureSize& window, bool stretch);

} // namespace korvane
