#include "dialogs/Docking.h"

#include "context/App.h"
#include "controls/Form.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "platform/Screen.h"

#include <cmath>

namespace korvane {

namespace {

constexpr int kRoomNeeded = 5000;

bool HasRoom(App& app, int room) {
    if (room > kRoomNeeded) return true;
    // The number is in twips, whatever the text says. Kept for compatibility: docking-needs-5000.
    Warn(app, u"Not enough space to move window as requested.\r\n\r\nMinimum required: 5,000 pixels.");
    return false;
}

void AlignTo(const Form& owner, Form& window) {
    window.Top = owner.Top;
    window.Height = owner.Height;
}

struct Dock {
    void (*beside)(App&, const Form&, Form&, Stretch);
    Stretch stretch;
};

constexpr KeyRow<Dock> kDockKeys[] = {
    {"Ctrl+L", {DockLeftOf, Stretch::FillSpace}},       {"Ctrl+Alt+L", {DockLeftOf, Stretch::FillSpace}},
    {"Ctrl+Shift+L", {DockLeftOf, Stretch::KeepWidth}}, {"Ctrl+R", {DockRightOf, Stretch::FillSpace}},
    {"Ctrl+Alt+R", {DockRightOf, Stretch::FillSpace}},  {"Ctrl+Shift+R", {DockRightOf, Stretch::KeepWidth}},
};

} // namespace

void DockLeftOf(App& app, const Form& owner, Form& window, Stretch stretch) {
    const Twips areaLeft = app.Screen().WorkArea().left;
    const int room = owner.Left.Get() - areaLeft;
    if (!HasRoom(app, room)) return;
    AlignTo(owner, window);
    if (stretch == Stretch::FillSpace) {
        window.Left = areaLeft;
        window.Width = Twips{room};
    } else {
        window.Left = owner.Left.Get() - window.Width.Get().Number();
    }
}

void DockRightOf(App& app, const Form& owner, Form& window, Stretch stretch) {
    const Rect area = app.Screen().WorkArea();
    const Twips right = owner.Left.Get() + owner.Width.Get().Number();
    if (!HasRoom(app, area.width - right)) return;
    AlignTo(owner, window);
    window.Left = right;
    if (stretch == Stretch::FillSpace) window.Width = area.width - (right - area.left);
}

void CentreWithin(const Form& owner, Form& window, int percent) {
    window.State = FormState::Normal;
    const auto centre = [percent](Twips ownerStart, Twips ownerLength, Property<Twips>& start,
                                  Property<Twips>& length) {
        const double exact = ownerLength.Number() * percent / 100.0;
        length = Twips{static_cast<int>(std::lround(exact))};
        start = ownerStart + static_cast<int>(std::lround((ownerLength.Number() - exact) / 2));
    };
    centre(owner.Left, owner.Width, window.Left, window.Width);
    centre(owner.Top, owner.Height, window.Top, window.Height);
}

void CentreOn(const Form& owner, Form& window) {
    window.Left = owner.Left.Get() + (owner.Width.Get() - window.Width.Get()) / 2;
    window.Top = owner.Top.Get() + (owner.Height.Get() - window.Height.Get()) / 2;
}

bool DockByKey(App& app, const Form& owner, Form& window, KeyEvent& key) {
    const KeyRow<Dock>* row = FindKey<Dock>(kDockKeys, key);
    if (row == nullptr) return false;
    key.consumed = true;
    row->starts.beside(app, owner, window, row->starts.stretch);
    return true;
}

} // namespace korvane
