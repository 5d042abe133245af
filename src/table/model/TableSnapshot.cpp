#include "table/model/TableSnapshot.h"

namespace korvane {

TableSnapshot::TableSnapshot(const TableModel& table) : grid_(table.GridStore().Snapshot()), table_(*grid_) {
    static_cast<TableAttributes&>(table_) = table;
    table_.TxtDbFile = table.TxtDbFile;
}

} // namespace korvane
