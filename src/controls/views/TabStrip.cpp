#include "controls/views/TabStrip.h"

#include "controls/Form.h"

#include <algorithm>

namespace korvane {

void TabStrip::Add(Form& child) {
    children_.push_back(&child);
    Notify(Aspect::Items);
    Select(child);
}

void TabStrip::Remove(Form& child) {
    const auto found = std::find(children_.begin(), children_.end(), &child);
    if (found == children_.end()) return;
    const auto next = children_.erase(found);
    const bool wasActive = active_ == &child;
    if (wasActive) active_ = nullptr;
    Notify(Aspect::Items);
    if (children_.empty()) {
        if (Emptied) Emptied();
    } else if (wasActive) {
        Select(next == children_.end() ? *children_.back() : **next);
    }
}

void TabStrip::Select(Form& child) {
    const bool mine = std::find(children_.begin(), children_.end(), &child) != children_.end();
    if (!mine) return;
    const bool changed = active_ != &child;
    active_ = &child;
    if (changed) Notify(Aspect::Selection);
    child.Activate();
}

} // namespace korvane
