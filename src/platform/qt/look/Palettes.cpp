#include "platform/qt/look/Palettes.h"

#include "platform/qt/look/DesktopPrefersDark.h"

#include <QGuiApplication>

namespace korvane {

namespace {

struct RoleColour {
    QPalette::ColorRole role;
    QRgb colour;
};

constexpr RoleColour kDark[] = {
    {QPalette::Window, 0xff24272c},
    {QPalette::WindowText, 0xffe4e7eb},
    {QPalette::Base, 0xff1b1d21},
    {QPalette::AlternateBase, 0xff212429},
    {QPalette::Text, 0xffe4e7eb},
    {QPalette::PlaceholderText, 0xff8b939e},
    {QPalette::Button, 0xff3a4049},
    {QPalette::ButtonText, 0xffe4e7eb},
    {QPalette::BrightText, 0xffff6b6b},
    {QPalette::ToolTipBase, 0xff32363d},
    {QPalette::ToolTipText, 0xffe4e7eb},
    {QPalette::Highlight, 0xff3575bd},
    {QPalette::HighlightedText, 0xffffffff},
    {QPalette::Link, 0xff6fb1f5},
    {QPalette::LinkVisited, 0xffb59af0},
    {QPalette::Light, 0xff3a3f47},
    {QPalette::Midlight, 0xff33373e},
    {QPalette::Mid, 0xff1d2024},
    {QPalette::Dark, 0xff17191c},
    {QPalette::Shadow, 0xff0c0d0f},
};

constexpr QRgb kDisabled = 0xff767d87;

} // namespace

QPalette DarkPalette() {
    QPalette palette;
    for (const RoleColour& entry : kDark)
        palette.setColor(entry.role, QColor::fromRgb(entry.colour));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(kDisabled));
    }
    return palette;
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

void FollowDesktopPalette() {
    const bool dark = DesktopPrefersDark();
    // An empty palette gives way to that of the desktop.
    if (dark != IsDark(QGuiApplication::palette()))
        QGuiApplication::setPalette(dark ? DarkPalette() : QPalette());
}

} // namespace korvane
