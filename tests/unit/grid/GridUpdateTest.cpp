#include "grid/GridUpdate.h"

#include "GridFixtures.h"
#include "support/HandlerFailure.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

/// A view that can't show a change, until it is told that it can.
class FailingView final : public GridListener {
public:
    void RowsChanged(Row, Row) override { Show(); }
    void TableChanged() override { Show(); }
    void ColumnChanged(Col) override { Show(); }
    void LookChanged() override { Show(); }
    void CurrentCellChanged() override { Show(); }
    void FocusWanted() override { Show(); }
    void RowWantedInView(Row) override { Show(); }

    bool fails = true;
    int shown = 0;

private:
    void Show() {
        if (fails) FailInHandler();
        ++shown;
    }
};

class GridUpdateTest : public GridTest {
protected:
    GridUpdateTest() {
        Resize(3, 2);
        grid.SetListener(&view);
    }
    ~GridUpdateTest() override { grid.SetListener(nullptr); }

    FailingView view;
};

TEST_F(GridUpdateTest, EndsTheBracketAlsoWhereTheViewFails) {
    {
        const GridUpdate update(grid);
        grid.SetCellValue(Row{1}, Col{1}, u"x");
    }
    view.fails = false;
    grid.SetCellValue(Row{2}, Col{1}, u"y");
    EXPECT_EQ(view.shown, 1);
    EXPECT_EQ(grid.CellText(Row{1}, Col{1}), u"x");
}

TEST_F(GridUpdateTest, LetsTheFailureOfACommandThrough) {
    const auto command = [this] {
        const GridUpdate update(grid);
        grid.SetCellValue(Row{1}, Col{1}, u"x");
        FailInHandler();
    };
    EXPECT_THROW(command(), HandlerFailure);
}

TEST_F(GridUpdateTest, ShowsTheGridAgainAlsoWhereTheViewFails) {
    view.fails = false;
    {
        const GridHidden hidden(grid);
        view.fails = true;
    }
    EXPECT_TRUE(grid.GridVisible());
}

} // namespace
} // namespace korvane
