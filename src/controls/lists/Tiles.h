#pragma once

#include "controls/Control.h"

#include <functional>
#include <vector>

namespace korvane {

/// A field of short texts in rows and columns, of which one is the current one. They count from 0, row by
/// row; -1 is none.
class Tiles : public Control {
public:
    struct Tile {
        Text text{};
        /// What a screen reader says instead of the text.
        Text spoken{};
        /// It is drawn bold.
        bool marked = false;
        bool operator==(const Tile&) const = default;
    };

    Tiles(Form& owner, std::string_view name, int columns);

    int Columns() const { return columns_; }
    /// One above each column; no headers are shown while there are none.
    Property<std::vector<Text>> Headers{*this, Aspect::Range};
    Property<std::vector<Tile>> Items{*this, Aspect::Items};
    int Rows() const;

    int Current() const { return current_; }
    /// Fires `Click` when the current tile becomes another one. A number without a tile has no effect.
    void SetCurrent(int tile);

    std::function<void()> Click;
    std::function<void()> DblClick;
    /// The mouse pointer came over the tile.
    std::function<void(int tile)> PointedAt;

    // What the user does.
    void Select(int tile) { SetCurrent(Reachable(tile)); }
    void DoubleClick(int tile);
    void PointAt(int tile);

protected:
    /// The tile to which the user comes who goes to this one.
    virtual int Reachable(int tile) const { return tile; }

private:
    bool Holds(int tile) const { return tile >= 0 && tile < static_cast<int>(Items.Get().size()); }

    int columns_;
    int current_ = -1;
};

} // namespace korvane
