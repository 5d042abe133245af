#pragma once

#include "table/model/TableModel.h"

#include <memory>

namespace korvane {

/// A table as it is now. Another thread may read it while the table changes.
class TableSnapshot {
public:
    explicit TableSnapshot(const TableModel& table);

    const TableModel& Table() const { return table_; }

private:
    std::unique_ptr<Grid> grid_;
    TableModel table_;
};

} // namespace korvane
