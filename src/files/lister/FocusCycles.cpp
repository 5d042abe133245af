#include "files/lister/FocusCycles.h"

#include "controls/Control.h"

#include <utility>

namespace korvane {

FocusCycles::FocusCycles(Parts parts) : parts_(std::move(parts)) {}

void FocusCycles::StepA() {
    stateA_ = stateA_ == 0 ? 1 : 0;
    if (stateA_ == 1) {
        parts_.pattern.SetFocus();
    } else {
        parts_.toListWithName();
    }
}

void FocusCycles::StepB() {
    if (stateB_ == 0) {
        stateB_ = 1;
        parts_.toList();
    } else if (stateB_ == 1 && parts_.name.Enabled) {
        stateB_ = 2;
        parts_.name.SetFocus();
    } else {
        stateB_ = 0;
        parts_.tree.SetFocus();
    }
}

} // namespace korvane
