#include "controls/Control.h"

#include "controls/Form.h"

namespace korvane {

Control::Control(Form& owner, std::string_view name) : owner_(owner), name_(name) {
    owner.Adopt(*this);
}

void Control::SetFocus() {
    owner_.FocusMoved(*this);
    Notify(Aspect::Focus);
}

} // namespace korvane
