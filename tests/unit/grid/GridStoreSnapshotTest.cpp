#include "GridFixtures.h"

namespace korvane {
namespace {

/// What stays as it was is compared with the plain table in GridStoreAgainstModelTest.
class GridStoreSnapshotTest : public GridTest {};

TEST_F(GridStoreSnapshotTest, HasCaptionsWidthsAndLookOfItsTime) {
    Resize(1, 1);
    grid.SetColHeaderText(Col{1}, u"Title");
    grid.SetColWidth(Col{1}, 77);
    grid.SetGridFontName(u"Calibri");
    grid.SetGridBackColor(Colour{5});
    grid.SetCurRow(Row{1});
    const auto snapshot = grid.Snapshot();
    grid.SetColHeaderText(Col{1}, u"Author");
    grid.SetColWidth(Col{1}, 78);
    grid.SetGridFontName(u"Arial");
    grid.SetGridBackColor(Colour{6});
    EXPECT_EQ(snapshot->ColHeaderText(Col{1}), u"Title");
    EXPECT_EQ(snapshot->ColWidth(Col{1}), 77);
    EXPECT_EQ(snapshot->GridFontName(), u"Calibri");
    EXPECT_EQ(snapshot->GridBackColor(), Colour{5});
    EXPECT_EQ(snapshot->CurRow(), Row{1});
}

TEST_F(GridStoreSnapshotTest, CopiesNoText) {
    Resize(1, 2);
    grid.SetCellValue(Row{1}, Col{1}, u"typed");
    const SharedBytes file = BytesOf("of a file");
    grid.AdoptBytes(file);
    grid.SetCellSlice(Row{1}, Col{2}, 0, 9);
    const auto snapshot = grid.Snapshot();
    for (const Col col : {Col{1}, Col{2}})
        EXPECT_EQ(snapshot->CellBytes(Row{1}, col)->data(), grid.CellBytes(Row{1}, col)->data());
}

TEST_F(GridStoreSnapshotTest, OutlivesItsTable) {
    auto table = std::make_unique<GridStore>(CodePage::Windows1252());
    table->SetColCount(Col{1});
    table->SetRowCount(Row{1});
    table->SetCellValue(Row{1}, Col{1}, u"typed");
    const auto snapshot = table->Snapshot();
    table.reset();
    EXPECT_EQ(snapshot->CellValue(Row{1}, Col{1}), u"typed");
}

TEST_F(GridStoreSnapshotTest, OfASnapshotIsThatOfItsTable) {
    Resize(1, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"typed");
    const auto first = grid.Snapshot();
    const auto second = first->Snapshot();
    grid.SetCellValue(Row{1}, Col{1}, u"typed again");
    EXPECT_EQ(second->CellValue(Row{1}, Col{1}), u"typed");
}

TEST_F(GridStoreSnapshotTest, ItsTableMayTakeTextsThatItHasItself) {
    Resize(2, 1);
    grid.SetCellBytes(Row{1}, Col{1}, "a text that is copied within the table");
    for (int copy = 1; copy <= 20; ++copy) {
        const auto snapshot = grid.Snapshot();
        grid.SetCellBytes(Row{2}, Col{1}, {});
        grid.SetCellBytes(Row{2}, Col{1}, *grid.CellBytes(Row{1}, Col{1}));
        EXPECT_EQ(*grid.CellBytes(Row{2}, Col{1}), "a text that is copied within the table");
    }
}

} // namespace
} // namespace korvane
