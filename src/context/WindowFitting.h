#pragma once

#include "common/number/Units.h"
#include "common/settings/Settings.h"
#include "platform/Screen.h"

#include <cstdint>

namespace korvane {

class App;
class Form;

/// The distance from the edge of the work area at which the main window, or any other one, opens.
inline constexpr Twips kMainWindowGap{300};
inline constexpr Twips kWindowGap{600};

/// Moves a window to where it can be seen. `place` is its stored place, all or part of which may be 0; it
/// gets the new values when the window has to become smaller. The window has the place already.
void FitWindowToWorkArea(const Rect& workArea, Form& window, Rect& place, Twips gap = kWindowGap);

/// The settings in which a window keeps its place.
struct StoredPlace {
    std::int32_t Settings::*left;
    std::int32_t Settings::*top;
    std::int32_t Settings::*width;
    std::int32_t Settings::*height;
};

/// Gives a window, but not the main one, its stored place, and moves it to where it can be seen.
void RestorePlace(const App& app, Form& window, const StoredPlace& stored);

/// Stores the window's place for its next opening.
void StorePlace(App& app, const Form& window, const StoredPlace& stored);

/// The settings in which a window of fixed size keeps its place.
struct StoredCorner {
    std::int32_t Settings::*left;
    std::int32_t Settings::*top;
};

/// Gives the window its stored place if that can be seen. Otherwise the desktop chooses one.
void RestoreCorner(const App& app, Form& window, const StoredCorner& stored);

void StoreCorner(App& app, const Form& window, const StoredCorner& stored);

} // namespace korvane
