#include "controls/lists/Tiles.h"

namespace korvane {

Tiles::Tiles(Form& owner, std::string_view name, int columns) : Control(owner, name), columns_(columns) {}

int Tiles::Rows() const {
    return (static_cast<int>(Items.Get().size()) + columns_ - 1) / columns_;
}

void Tiles::SetCurrent(int tile) {
    if (tile == current_ || (tile != -1 && !Holds(tile))) return;
    current_ = tile;
    Notify(Aspect::Selection);
    if (Click) Click();
}

void Tiles::DoubleClick(int tile) {
    Select(tile);
    if (DblClick) DblClick();
}

void Tiles::PointAt(int tile) {
    if (Holds(tile) && PointedAt) PointedAt(tile);
}

} // namespace korvane
