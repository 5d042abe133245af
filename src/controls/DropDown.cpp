#include "controls/DropDown.h"

namespace korvane {

void DropDown::Choose(int index) {
    const auto at = static_cast<std::size_t>(index);
    if (index < 0 || at >= Items.Get().size() || !Enabled || Locked) return;
    Type(Items.Get()[at]);
    if (Click) Click();
}

} // namespace korvane
