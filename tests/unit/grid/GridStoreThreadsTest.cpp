#include "GridFixtures.h"

#include <thread>

namespace korvane {
namespace {

class GridStoreThreadsTest : public GridTest {};

/// The thread sanitizer finds what they might change and read at the same time.
TEST_F(GridStoreThreadsTest, ASnapshotMayBeReadWhileTheTableChanges) {
    Resize(200, 3);
    for (Row row{1}; row <= grid.RowCount(); ++row)
        grid.SetCellValue(row, Col{1}, row == Row{7} ? u"Яю" : u"before");
    std::size_t units = 0;
    std::thread reader([&units, snapshot = grid.Snapshot()]() mutable {
        for (Row row{1}; row <= snapshot->RowCount(); ++row)
            for (Col col{1}; col <= snapshot->ColCount(); ++col) {
                units += snapshot->CellValue(row, col).size();
                units += static_cast<std::size_t>(snapshot->CellCheck(row));
                if (snapshot->CellFontFlag(row, col, CellFlag::Bold)) ++units;
            }
        snapshot.reset();
    });
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        grid.SetCellValue(row, Col{1}, u"after");
        grid.SetCellValue(row, Col{2}, u"Яюя");
        grid.SetCellCheck(row, 1);
        grid.SetRowFontFlag(row, CellFlag::Bold, true);
    }
    grid.SortByColumn(Col{1}, SortOrder::Descending);
    reader.join();
    EXPECT_EQ(units, 199 * 6 + 2u);
}

} // namespace
} // namespace korvane
