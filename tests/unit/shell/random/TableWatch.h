#pragma once

#include "RandomUser.h"
#include "shell/tabs/frmMDIChild.h"

#include <string_view>
#include <vector>

namespace korvane {

/// The state of a table at a moment, as far as the invariants need it.
struct TableMoment {
    explicit TableMoment(frmMDIChild& tab);

    int Rows() const { return static_cast<int>(texts.size()); }
    int Visible() const;

    Row curRow;
    Col curCol;
    int cols = 0;
    std::vector<std::vector<Text>> texts;
    std::vector<bool> visible;
    std::vector<bool> ticked;
    int altered = 0;
};

/// Tells the test of each way in which a command did what it must not.
void CheckCommand(std::string_view command, const TableMoment& before, const TableMoment& after,
                  const std::vector<Message>& messages);

/// The same for a sort by the header of a column.
void CheckSort(Col col, const TableMoment& before, const TableMoment& after);

} // namespace korvane
