#include "QtSupport.h"
#include "controls/Form.h"
#include "controls/Tiles.h"
#include "platform/qt/binder/QtFormHost.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDialog>
#include <QHeaderView>
#include <QTableView>
#include <QTest>

namespace korvane {
namespace {

class frmTiles : public Form {
public:
    explicit frmTiles(FormHost& host) : Form(host, "frmTiles", u"") {
        std::vector<Tiles::Tile> items;
        for (const char16_t letter : std::u16string_view(u"abcdefgh"))
            items.push_back({Text(1, letter), u"letter " + Text(1, letter), letter == u'c'});
        Tiles1.Items = std::move(items);
    }
    Tiles Tiles1{*this, "Tiles1", 3};
};

std::unique_ptr<QWidget> MakeTiles() {
    auto window = std::make_unique<QDialog>();
    window->resize(300, 300);
    auto* view = new QTableView(window.get());
    view->setObjectName("Tiles1");
    view->setAccessibleName("Letters");
    view->resize(300, 300);
    return window;
}

constexpr FormEntry kTileForms[] = {{"frmTiles", MakeTiles}};

class TilesViewTest : public testing::Test {
protected:
    TilesViewTest() {
        form.Show();
        test::Settle();
    }
    QTableView& View() { return *host.WidgetOf(form)->findChild<QTableView*>("Tiles1"); }
    QPoint Centre(int tile) { return View().visualRect(View().model()->index(tile / 3, tile % 3)).center(); }

    QtFormHost host{kTileForms};
    frmTiles form{host};
};

TEST_F(TilesViewTest, ShowsTheTilesInRowsThatFillTheTable) {
    const QAbstractItemModel& model = *View().model();
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.columnCount(), 3);
    EXPECT_EQ(model.index(1, 1).data().toString(), "e");
    EXPECT_TRUE(model.index(0, 2).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(model.flags(model.index(2, 2)), Qt::NoItemFlags);
    const QRect last = View().visualRect(model.index(2, 2));
    EXPECT_GT(last.bottom(), View().viewport()->height() - 4);
    EXPECT_TRUE(View().horizontalHeader()->isHidden());
    form.Tiles1.Headers = std::vector<Text>{u"x", u"y", u"z"};
    EXPECT_FALSE(View().horizontalHeader()->isHidden());
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "y");
}

TEST_F(TilesViewTest, TheMouseSelectsPointsAndDoubleClicks) {
    int pointed = -1;
    int doubleClicks = 0;
    form.Tiles1.PointedAt = [&pointed](int tile) { pointed = tile; };
    form.Tiles1.DblClick = [&doubleClicks] { ++doubleClicks; };
    QTest::mouseMove(View().viewport(), Centre(5));
    test::Settle();
    EXPECT_EQ(pointed, 5);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, Centre(4));
    EXPECT_EQ(form.Tiles1.Current(), 4);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, Centre(4));
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(TilesViewTest, TheArrowKeysGoFromTileToTileAndTabLeaves) {
    View().setFocus();
    form.Tiles1.SetCurrent(0);
    test::Settle();
    QTest::keyClick(&View(), Qt::Key_Down);
    QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_EQ(form.Tiles1.Current(), 4);
    QTest::keyClick(&View(), Qt::Key_End);
    EXPECT_EQ(form.Tiles1.Current(), 5);
    QTest::keyClick(&View(), Qt::Key_Tab);
    EXPECT_EQ(form.Tiles1.Current(), 5);
}

TEST_F(TilesViewTest, ShowsTheCurrentTileOfTheProgram) {
    form.Tiles1.SetCurrent(7);
    EXPECT_EQ(View().currentIndex(), View().model()->index(2, 1));
    form.Tiles1.SetCurrent(-1);
    EXPECT_FALSE(View().selectionModel()->hasSelection());
    form.Tiles1.SetCurrent(1);
    form.Tiles1.Items = std::vector<Tiles::Tile>(3);
    EXPECT_EQ(View().model()->rowCount(), 1);
    EXPECT_EQ(View().currentIndex(), View().model()->index(0, 1));
    EXPECT_EQ(form.Tiles1.Current(), 1);
}

TEST_F(TilesViewTest, AScreenReaderHearsWhatATileIs) {
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&View());
    ASSERT_NE(table, nullptr);
    ASSERT_NE(table->tableInterface(), nullptr);
    EXPECT_EQ(table->tableInterface()->cellAt(0, 1)->text(QAccessible::Name), "letter b");
}

TEST_F(TilesViewTest, AClosedWindowIsHeardNoMore) {
    form.Close();
    form.Tiles1.SetCurrent(2);
    EXPECT_EQ(form.Tiles1.Current(), 2);
}

} // namespace
} // namespace korvane
