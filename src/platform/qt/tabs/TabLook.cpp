#include "platform/qt/tabs/TabLook.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Contrast.h"
#include "platform/qt/look/Palettes.h"

namespace korvane {

TabColours ColoursOf(const TabStyle& style, const QPalette& palette) {
    const TabStyleColours& own = style.Colours(IsDark(palette));
    const bool filled = style.mark == TabMark::Filled;
    TabColours colours;
    colours.strip = ToQColor(own.strip);
    colours.mark = ToQColor(own.second);
    colours.rest = Blend(palette.color(QPalette::Window), colours.strip, style.tint / 100.0);
    colours.restText = TextFor(colours.rest, palette);
    colours.hover = Blend(colours.rest, palette.color(QPalette::Base), 0.5);
    colours.edge = Blend(colours.rest, colours.restText, 0.2);
    colours.frame = Blend(colours.strip, colours.restText, 0.4);
    colours.active = filled ? colours.mark : palette.color(QPalette::Base);
    colours.activeText = filled ? BlackOrWhite(colours.active) : palette.color(QPalette::Text);
    return colours;
}

} // namespace korvane
