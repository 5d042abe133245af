#include "controls/CommandButton.h"
#include "controls/Label.h"
#include "controls/Slider.h"
#include "controls/TextBox.h"

namespace korvane {

Label::Label(Form& owner, std::string_view name, TextView caption) : Control(owner, name) {
    Caption = Text(caption);
}

CommandButton::CommandButton(Form& owner, std::string_view name, TextView caption, TextView toolTip)
    : Control(owner, name) {
    Caption = Text(caption);
    ToolTipText = Text(toolTip);
}

void CommandButton::Press() {
    if (Enabled && Visible && Click) Click();
}

TextBox::TextBox(Form& owner, std::string_view name, TextView text, TextView toolTip) : Control(owner, name) {
    Text = korvane::Text(text);
    ToolTipText = korvane::Text(toolTip);
}

void TextBox::SelectAll() {
    SelStart = 0;
    SelLength = static_cast<int>(Text.Get().size());
}

void TextBox::Type(TextView text) {
    if (Enabled && !Locked) Text = korvane::Text(text);
}

void TextBox::Changed(Aspect aspect) {
    if (aspect == Aspect::Text && Change) Change();
}

Slider::Slider(Form& owner, std::string_view name, int min, int max, TextView toolTip)
    : Control(owner, name) {
    Min = min;
    Max = max;
    ToolTipText = Text(toolTip);
}

void Slider::Changed(Aspect aspect) {
    if (aspect == Aspect::Value && Change) Change();
}

} // namespace korvane
