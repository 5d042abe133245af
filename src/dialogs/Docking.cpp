#include "dialogs/Docking.h"

#include "context/App.h"
#include "controls/Form.h"
#include "controls/KeyEvent.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr int kRoomNeeded = 5000;

bool HasRoom(App& app, int room) {
    if (room > kRoomNeeded) return true;
    // The number is in twips, whatever the text says. Kept for compatibility: docking-needs-5000.
    app.Messages().Show({u"Not enough space to move window as requested.\r\n\r\n"
                         u"Minimum required: 5,000 pixels.",
                         MessageIcon::Exclamation});
    return false;
}

void AlignTo(const Form& owner, Form& window) {
    window.Top = owner.Top;
    window.Height = owner.Height;
}

using Dock = void (*)(App&, const Form&, Form&, Stretch);

struct DockKey {
    int code;
    int mask;
    Dock dock;
    Stretch stretch;
};

constexpr std::array<DockKey, 6> kDockKeys{{
    {'L', Mask::Ctrl, DockLeftOf, Stretch::FillSpace},
    {'L', Mask::Ctrl | Mask::Alt, DockLeftOf, Stretch::FillSpace},
    {'L', Mask::Ctrl | Mask::Shift, DockLeftOf, Stretch::KeepWidth},
    {'R', Mask::Ctrl, DockRightOf, Stretch::FillSpace},
    {'R', Mask::Ctrl | Mask::Alt, DockRightOf, Stretch::FillSpace},
    {'R', Mask::Ctrl | Mask::Shift, DockRightOf, Stretch::KeepWidth},
}};

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

bool DockByKey(App& app, const Form& owner, Form& window, KeyEvent& key) {
    const auto* found =
        std::ranges::find_if(kDockKeys, [&key](const DockKey& each) { return key.Is(each.code, each.mask); });
    if (found == kDockKeys.end()) return false;
    key.consumed = true;
    found->dock(app, owner, window, found->stretch);
    return true;
}

} // namespace korvane
