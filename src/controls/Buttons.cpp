#include "controls/Buttons.h"

#include "controls/Form.h"

namespace korvane {

CheckBox::CheckBox(Form& owner, std::string_view name, TextView caption, TextView toolTip)
    : Control(owner, name) {
    Caption = Text(caption);
    ToolTipText = Text(toolTip);
}

void CheckBox::Press() {
    if (Enabled && Visible) Value = static_cast<std::int16_t>(Value == 1 ? 0 : 1);
}

void CheckBox::Changed(Aspect aspect) {
    if (aspect == Aspect::Value && Click) Click();
}

OptionButton::OptionButton(Form& owner, std::string_view name, std::string_view group, TextView caption)
    : Control(owner, name), group_(group) {
    Caption = Text(caption);
}

void OptionButton::Press() {
    if (Enabled && Visible) Value = true;
}

void OptionButton::Changed(Aspect aspect) {
    if (aspect != Aspect::Value || !Value) return;
    for (Control* control : Owner().Controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        if (other != nullptr && other != this && other->group_ == group_) other->Value = false;
    }
    if (Click) Click();
}

} // namespace korvane
