#include "shell/settings/frmWindowSize.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "platform/Screen.h"

#include <array>

namespace korvane {

namespace {

constexpr std::int16_t kLayoutPicked = 1;
constexpr std::int16_t kPercentPicked = 2;

/// Where a window is placed in one direction of the screen.
enum class Place : std::uint8_t { Whole, FirstHalf, SecondHalf, Centre };

struct Layout {
    TextView entry;
    Place down;
    Place across;
};

constexpr std::array<Layout, 7> kLayouts{{
    {u" Same size as screen", Place::Whole, Place::Whole},
    {u" Vertical half, left", Place::Whole, Place::FirstHalf},
    {u" Horizontal half, top", Place::FirstHalf, Place::Whole},
    {u" Vertical half, right", Place::Whole, Place::SecondHalf},
    {u" Horizontal half, below", Place::SecondHalf, Place::Whole},
    {u" Centre on screen", Place::Centre, Place::Centre},
    {u" Centre with max height", Place::Whole, Place::Centre},
}};

struct Percentage {
    TextView entry;
    /// The size in tenths of the work area; 0 leaves the size alone.
    double tenths;
};

// From 85 on, the sizes are one entry ahead of their names. Kept for compatibility: window-sizes-one-ahead.
constexpr std::array<Percentage, 9> kPercentages{{
    {u"  30%", 3},
    {u"  40%", 4},
    {u"  50%", 5},
    {u"  60%", 6},
    {u"  70%", 7},
    {u"  80%", 8},
    {u"  85%", 9},
    {u"  90%", 9.5},
    {u"  95%", 0},
}};

/// nullptr when no entry has this index, as in a list without a selection.
template <class Table>
auto Entry(const Table& table, int index) -> const typename Table::value_type* {
    const bool known = index >= 0 && index < static_cast<int>(table.size());
    return known ? &table[static_cast<std::size_t>(index)] : nullptr;
}

Twips Nearest(double twips) {
    return Twips{static_cast<int>(RoundHalfEven(twips))};
}

/// One direction of the screen and of the window.
struct Axis {
    int areaStart;
    int areaLength;
    Property<Twips>& start;
    Property<Twips>& length;

    void Centre() const { start = Twips{areaStart + (areaLength - length.Get().Number()) / 2}; }

    void Put(Place place) const {
        if (place == Place::Centre) return Centre();
        // The start of the area is added to the half, so that the window leaves an area that doesn't start at
        // 0. Kept for compatibility: half-sizes-overshoot.
        const double half = (areaLength - areaStart) / 2.0 + areaStart;
        start = place == Place::SecondHalf ? Nearest(half) : Twips{areaStart};
        length = place == Place::Whole ? Twips{areaLength} : Nearest(half);
    }
};

Axis Down(Form& window, const Rect& area) {
    return {area.top.Number(), area.height.Number(), window.Top, window.Height};
}

Axis Across(Form& window, const Rect& area) {
    return {area.left.Number(), area.width.Number(), window.Left, window.Width};
}

} // namespace

struct frmWindowSize::Tables {
    static constexpr WindowKey<frmWindowSize> kLayoutKeys[] = {{"Any+Return", &frmWindowSize::cmdOk}};
    static constexpr WindowKey<frmWindowSize> kPercentKeys[] = {{"Any+Return", &frmWindowSize::cmdPercent}};
};

frmWindowSize::frmWindowSize(App& app, WindowSizeChoice& choice)
    : Form(app.Forms(), "frmWindowSize", u"Program window size"), app_(app), choice_(choice) {
    List1.DblClick = [this] { cmdOk.Press(); };
    List1.KeyDown = KeysOf(*this, Tables::kLayoutKeys);
    lstSize.DblClick = [this] { cmdPercent.Press(); };
    lstSize.KeyDown = KeysOf(*this, Tables::kPercentKeys);
    List1.Click = [this] { choice_.WindowLayoutChoice = static_cast<std::int16_t>(List1.ListIndex()); };
    lstSize.Click = [this] { choice_.WindowPercentChoice = static_cast<std::int16_t>(lstSize.ListIndex()); };
    cmdOk.Click = [this] { CloseWith(kLayoutPicked); };
    cmdPercent.Click = [this] { CloseWith(kPercentPicked); };
    cmdCancel.Click = [this] { CloseWith(0); };
    cmdCancel.Cancel = true;
}

void frmWindowSize::Load() {
    for (const Layout& layout : kLayouts)
        List1.AddItem(layout.entry);
    for (const Percentage& percentage : kPercentages)
        lstSize.AddItem(percentage.entry);
    List1.SetListIndex(choice_.WindowLayoutChoice);
    lstSize.SetListIndex(choice_.WindowPercentChoice);
    List1.SetFocus();
}

void frmWindowSize::CloseWith(std::int16_t result) {
    app_.DialogResult = result;
    Close();
}

bool ChooseWindowSize(App& app, WindowSizeChoice& choice, Form& window) {
    frmWindowSize form(app, choice);
    const std::int16_t result = ShowForResult(app, form);
    if (result != kLayoutPicked && result != kPercentPicked) return false;
    window.State = FormState::Normal;
    const Rect area = app.Screen().WorkArea();
    if (result == kLayoutPicked) {
        ApplyWindowLayout(window, area, choice.WindowLayoutChoice);
    } else {
        ApplyWindowPercent(window, area, choice.WindowPercentChoice);
    }
    return true;
}

void ApplyWindowLayout(Form& window, const Rect& workArea, int layout) {
    const Layout* chosen = Entry(kLayouts, layout);
    if (chosen == nullptr) return;
    Down(window, workArea).Put(chosen->down);
    Across(window, workArea).Put(chosen->across);
}

void ApplyWindowPercent(Form& window, const Rect& workArea, int percentEntry) {
    const Percentage* chosen = Entry(kPercentages, percentEntry);
    if (chosen == nullptr) return;
    const double tenths = chosen->tenths;
    for (const Axis& axis : {Down(window, workArea), Across(window, workArea)}) {
        if (tenths > 0) axis.length = Nearest(axis.areaLength / 10.0 * tenths);
        axis.Centre();
    }
}

} // namespace korvane
