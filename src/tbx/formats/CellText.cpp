#include "tbx/formats/CellText.h"

#include "grid/Grid.h"

namespace korvane {

CellText::CellText(const Grid& grid, Row row, Col col) : page_(grid.Page()) {
    if (const auto bytes = grid.CellBytes(row, col))
        bytes_ = *bytes;
    else
        own_ = grid.CellText(row, col);
}

Text CellText::Beginning(std::size_t count) const {
    if (!bytes_.empty()) return page_->ToText(bytes_.substr(0, count));
    return Text(Characters().substr(0, count));
}

} // namespace korvane
