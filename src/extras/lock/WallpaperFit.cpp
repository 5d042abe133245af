#include "extras/lock/WallpaperFit.h"

#include "common/number/Number.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

/// One axis of the picture and of the window.
struct Axis {
    int picture;
    int window;

    int Room() const { return window - picture; }
    double RoomInPercent() const { return 100.0 * Room() / picture; }
};

/// Where the picture begins on an axis, and how long it is.
struct Span {
    int start;
    int length;
};

Span Centred(int length, int window) {
    return {(window - length) / 2, length};
}

int GrownBy(int length, double percent) {
    return static_cast<int>(RoundHalfEven(length / 100.0 * percent));
}

/// The axis that decides is brought to the window's side, and the other one changes by the same percentage.
/// `grows` says whether the picture is smaller than the window.
std::pair<Span, Span> Stretched(const Axis& deciding, const Axis& other, bool grows) {
    const double percent = RoundHalfEven(deciding.RoomInPercent());
    int length = other.picture + GrownBy(other.picture, percent);
    if (grows) length = std::min(length, other.window);
    return {{0, deciding.window}, Centred(length, other.window)};
}

std::pair<Span, Span> Fit(const Axis& across, const Axis& down, bool stretch) {
    const bool grows = across.Room() > 0 && down.Room() > 0;
    if (stretch) {
        const bool acrossDecides =
            grows ? down.Room() >= across.Room() : across.RoomInPercent() <= down.RoomInPercent();
        if (acrossDecides) return Stretched(across, down, grows);
        const auto [vertical, horizontal] = Stretched(down, across, grows);
        return {horizontal, vertical};
    }
    if (grows) return {Centred(across.picture, across.window), Centred(down.picture, down.window)};
    return {{0, across.picture}, {0, down.picture}};
}

} // namespace

WallpaperFit FitWallpaper(const PictureSize& picture, const PictureSize& window, bool stretch) {
    const Axis across{picture.width.Number(), window.width.Number()};
    const Axis down{picture.height.Number(), window.height.Number()};
    const auto [horizontal, vertical] = Fit(across, down, stretch);
    WallpaperFit fit{
        {Twips(horizontal.start), Twips(vertical.start), Twips(horizontal.length), Twips(vertical.length)},
        {},
        {}};
    if (stretch) return fit;
    fit.beyondRight = Twips(std::max(0, -across.Room()));
    fit.beyondBottom = Twips(std::max(0, -down.Room()));
    return fit;
}

} // namespace korvane
