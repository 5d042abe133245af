#include "controls/CommandButton.h"

namespace korvane {

CommandButton::CommandButton(Form& owner, std::string_view name, TextView caption, TextView toolTip)
    : Control(owner, name) {
    Caption = Text(caption);
    ToolTipText = Text(toolTip);
}

void CommandButton::Press() {
    if (Enabled && Visible && Click) Click();
}

} // namespace korvane
