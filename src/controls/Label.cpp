#include "controls/Label.h"

namespace korvane {

Label::Label(Form& owner, std::string_view name, TextView caption) : Control(owner, name) {
    Caption = Text(caption);
}

} // namespace korvane
