#include "context/WindowFitting.h"

#include "context/App.h"
#include "controls/Form.h"

namespace korvane {

namespace {

constexpr Twips kDefaultWidth{4800};
constexpr Twips kDefaultHeight{3200};

Twips operator+(Twips a, Twips b) {
    return a + b.Number();
}

Twips Less(Twips a, Twips b) {
    return Twips{a - b};
}

/// One direction of the fitting: from left to right, or from top to bottom.
struct Axis {
    Property<Twips>& start;
    Property<Twips>& length;
    Twips& storedStart;
    Twips& storedLength;
    Twips areaStart;
    Twips areaLength;
    Twips defaultLength;
};

/// Gives defaults for what was never stored. The stored values stay 0. Kept for compatibility:
/// fit-keeps-stored-zeros.
void GiveDefaults(const Axis& axis, Twips gap) {
    if (axis.storedStart == Twips{0}) axis.start = axis.areaStart + gap;
    if (axis.storedLength == Twips{0}) axis.length = axis.defaultLength;
}

void Shrink(const Axis& axis, Twips gap) {
    if (axis.storedLength <= axis.areaLength) return;
    axis.start = axis.areaStart + gap;
    axis.length = Less(axis.areaLength, gap + gap);
    axis.storedStart = axis.start;
    axis.storedLength = axis.length;
}

void MoveBack(const Axis& axis, Twips gap) {
    // Kept for compatibility: fit-without-area-start.
    if (axis.storedStart + axis.storedLength <= axis.areaLength) return;
    axis.start = Less(Less(axis.areaStart + axis.areaLength, axis.storedLength), gap);
}

} // namespace

void FitWindowToWorkArea(const Rect& workArea, Form& window, Rect& place, Twips gap) {
    const Axis across{window.Left,   window.Width,   place.left,   place.width,
                      workArea.left, workArea.width, kDefaultWidth};
    const Axis down{window.Top,   window.Height,   place.top,     place.height,
                    workArea.top, workArea.height, kDefaultHeight};
    for (const auto step : {&GiveDefaults, &Shrink, &MoveBack}) {
        step(across, gap);
        step(down, gap);
    }
}

void RestorePlace(const App& app, Form& window, const StoredPlace& stored) {
    const Settings& settings = app.Settings;
    Rect place{Twips{settings.*stored.left}, Twips{settings.*stored.top}, Twips{settings.*stored.width},
               Twips{settings.*stored.height}};
    window.Left = place.left;
    window.Top = place.top;
    window.Width = place.width;
    window.Height = place.height;
    FitWindowToWorkArea(app.Screen().WorkArea(), window, place);
}

void RestoreCorner(const App& app, Form& window, const StoredCorner& stored) {
    const Rect area = app.Screen().WorkArea();
    const Twips left{app.Settings.*stored.left};
    const Twips top{app.Settings.*stored.top};
    const bool seen = left >= area.left && left < area.left + area.width.Number() && top >= area.top &&
                      top < area.top + area.height.Number();
    window.Left = seen ? left : Twips{0};
    window.Top = seen ? top : Twips{0};
}

void StoreCorner(App& app, const Form& window, const StoredCorner& stored) {
    app.Settings.*stored.left = window.Left.Get().Number();
    app.Settings.*stored.top = window.Top.Get().Number();
}

void StorePlace(App& app, const Form& window, const StoredPlace& stored) {
    app.Settings.*stored.left = window.Left.Get().Number();
    app.Settings.*stored.top = window.Top.Get().Number();
    app.Settings.*stored.width = window.Width.Get().Number();
    app.Settings.*stored.height = window.Height.Get().Number();
}

} // namespace korvane
