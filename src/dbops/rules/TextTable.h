#pragma once

#include "common/number/Units.h"
#include "document/model/Document.h"
#include "document/model/Reading.h"
#include "grid/Grid.h"

#include <functional>
#include <optional>
#include <vector>

namespace korvane {

/// How a formatted table of a database looks. Lengths are in twips.
struct TextTableLook {
    /// Whether the first row has the titles of the columns.
    bool titles = false;
    bool firstRowColoured = false;
    Colour firstRowBack{};
    Colour firstRowText{};
    bool alternateRowsColoured = false;
    Colour alternateBack{};
    int leftMargin = 0;
    int border = 0;
    int gap = 0;
};

/// A document with the taken rows as a table, or nothing if it is more than these limits allow. With titles
/// the first row is taken in any case. A row that is marked for deletion is an empty row.
std::optional<doc::Document> MakeTextTable(const Grid& grid, const std::vector<Text>& titles,
                                           const std::function<bool(Row)>& takes, const TextTableLook& look,
                                           const doc::Limits& limits);

} // namespace korvane
