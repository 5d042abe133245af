#include "platform/qt/TabLook.h"

#include "platform/qt/CellLook.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

/// How the tabs of a style look: the colour of the active tab's mark, how much of it tints the tabs, and how
/// round their corners are, in pixels.
struct TabLook {
    int style;
    QRgb accent;
    double tint;
    int radius;
};

constexpr QRgb kBlue = 0xff2f74c0;
constexpr QRgb kGrey = 0xff7a8490;
constexpr QRgb kOrange = 0xffe08a2c;
constexpr QRgb kBlueGrey = 0xff5b7a99;
constexpr QRgb kGreen = 0xff3d8f6b;

constexpr std::array kLooks{
    TabLook{0, kBlue, 0.00, 0},      TabLook{1, kBlue, 0.06, 0},      TabLook{5, kGrey, 0.10, 0},
    TabLook{6, kOrange, 0.08, 0},    TabLook{7, kOrange, 0.16, 3},    TabLook{10, kOrange, 0.12, 5},
    TabLook{11, kGreen, 0.10, 5},    TabLook{12, kBlue, 0.00, 4},     TabLook{13, kBlue, 0.12, 7},
    TabLook{14, kGrey, 0.12, 7},     TabLook{20, kBlueGrey, 0.08, 0}, TabLook{25, kBlueGrey, 0.20, 4},
    TabLook{30, kGreen, 0.14, 0},    TabLook{31, kGreen, 0.18, 7},    TabLook{32, kBlue, 0.20, 0},
    TabLook{33, kBlueGrey, 0.24, 9}, TabLook{40, kBlue, 0.18, 9},
};

const TabLook& LookOf(int style) {
    const auto found = std::find_if(kLooks.begin(), kLooks.end(),
                                    [style](const TabLook& look) { return look.style == style; });
    return found == kLooks.end() ? kLooks.front() : *found;
}

constexpr auto kSheet = R"(
QTabBar { background: transparent; }
QTabBar::tab {
    background: %1; color: palette(window-text); border: none; border-bottom: 2px solid transparent;
    border-top-left-radius: %4px; border-top-right-radius: %4px;
    padding: 6px 10px; margin-right: 1px; min-width: 4em; max-width: 22em;
}
QTabBar::close-button { image: url(:/icons/tabClose.svg); subcontrol-position: right; }
QTabBar::close-button:hover { image: url(:/icons/tabCloseHover.svg); }
QTabBar::tab:hover { background: %2; }
QTabBar::tab:selected { background: palette(base); color: palette(text); border-bottom: 2px solid %3; }
)";

} // namespace

void ApplyTabLook(QTabBar& tabs, int style) {
    const TabLook& look = LookOf(style);
    const QColor window = tabs.palette().color(QPalette::Window);
    const QColor accent = QColor::fromRgb(look.accent);
    const QColor rest = Blend(window, accent, look.tint);
    const QColor hover = Blend(window, accent, look.tint + 0.10);
    tabs.setStyleSheet(
        QString::fromLatin1(kSheet).arg(rest.name(), hover.name(), accent.name()).arg(look.radius));
}

} // namespace korvane
