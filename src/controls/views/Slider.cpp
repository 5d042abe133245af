#include "controls/views/Slider.h"

namespace korvane {

Slider::Slider(Form& owner, std::string_view name, int min, int max, TextView toolTip)
    : Control(owner, name) {
    Min = min;
    Max = max;
    ToolTipText = Text(toolTip);
}

void Slider::MoveTo(int value) {
    if (!Enabled || !Visible || value == Value) return;
    Value = value;
    if (Scroll) Scroll();
}

void Slider::Release() {
    if (Enabled && Visible && Released) Released();
}

void Slider::Changed(Aspect aspect) {
    if (aspect == Aspect::Value && Change) Change();
}

} // namespace korvane
