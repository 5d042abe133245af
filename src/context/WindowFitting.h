#pragma once

#include "common/number/Units.h"
#include "common/settings/Settings.h"
#include "platform/Screen.h"

#include <cstdint>

namespace korvane {

class App;
class Form;

/// How far inside the work area the main window and any other one come up.
inline constexpr Twips kMainWindowGap{300};
inline constexpr Twips kWindowGap{600};

/// Puts a window whose stored place is `place` (all or part of it may be 0) where it is seen, and gives
/// `place` the new values where it had to become smaller. The window already has the place.
void FitWindowToWorkArea(const Rect& workArea, Form& window, Rect& place, Twips gap = kWindowGap);

/// The settings in which a window keeps its place.
struct StoredPlace {
    std::int32_t Settings::*left;
    std::int32_t Settings::*top;
    std::int32_t Settings::*width;
    std::int32_t Settings::*height;
};

/// Gives a window, not the main one, its stored place, where it is seen.
void RestorePlace(const App& app, Form& window, const StoredPlace& stored);

/// Keeps the window's place for its next opening.
void StorePlace(App& app, const Form& window, const StoredPlace& stored);

} // namespace korvane
