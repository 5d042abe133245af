#include "controls/Observed.h"

namespace korvane {

Observed::~Observed() {
    if (view_ != nullptr) view_->Gone();
}

void Observed::Notify(Aspect aspect) {
    // The view comes first, because a handler may look at the screen and may even close the window that it
    // belongs to.
    if (view_ != nullptr) view_->Follow(*this, aspect);
    Changed(aspect);
}

} // namespace korvane
