#include "platform/qt/tiles/TilesView.h"

#include "QtSupport.h"
#include "controls/Form.h"
#include "controls/lists/Tiles.h"
#include "platform/qt/binder/QtFormHost.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDialog>
#include <QImage>
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
    auto* view = new TilesView(window.get());
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
    TilesView& View() { return *host.WidgetOf(form)->findChild<TilesView*>("Tiles1"); }
    QPoint Centre(int tile) { return View().PlaceOf(tile).center(); }
    /// How many pixels of the place aren't of the ground.
    int Inked(const QRect& place) {
        const QImage shot = View().grab(place).toImage();
        const QRgb ground = View().palette().color(QPalette::Base).rgb();
        int inked = 0;
        for (int y = 0; y < shot.height(); ++y) {
            for (int x = 0; x < shot.width(); ++x)
                inked += shot.pixel(x, y) == ground ? 0 : 1;
        }
        return inked;
    }
    /// Where the text of a tile is drawn, and no line.
    QRect TextPlace(int tile) { return View().PlaceOf(tile).adjusted(4, 4, -4, -4); }

    QtFormHost host{kTileForms};
    frmTiles form{host};
};

TEST_F(TilesViewTest, TheTilesFillTheFrameInRows) {
    const QRect all = View().contentsRect();
    EXPECT_EQ(View().PlaceOf(0).topLeft(), all.topLeft());
    EXPECT_EQ(View().PlaceOf(2).right(), all.right());
    EXPECT_EQ(View().PlaceOf(7).bottom(), all.bottom());
    for (int tile = 0; tile < 8; ++tile)
        EXPECT_EQ(View().TileAt(Centre(tile)), tile);
    EXPECT_EQ(View().TileAt(all.bottomRight()), -1);
    EXPECT_EQ(View().TileAt({-1, -1}), -1);
    form.Tiles1.Items = std::vector<Tiles::Tile>();
    EXPECT_EQ(View().TileAt({20, 20}), -1);
}

TEST_F(TilesViewTest, EachPixelOfTheFrameBelongsToTheTileThatIsThere) {
    View().resize(101, 97);
    const QRect all = View().contentsRect();
    for (int y = all.top(); y <= all.bottom(); ++y) {
        for (int x = all.left(); x <= all.right(); ++x) {
            const int tile = View().TileAt({x, y});
            if (tile >= 0) {
                EXPECT_TRUE(View().PlaceOf(tile).contains(x, y)) << x << " " << y;
            } else {
                // The last tile of the last row is missing.
                EXPECT_TRUE(x > View().PlaceOf(7).right() && y > View().PlaceOf(5).bottom());
            }
        }
    }
}

TEST_F(TilesViewTest, HeadersTakeRoomAboveTheTiles) {
    const int top = View().PlaceOf(0).top();
    form.Tiles1.Headers = std::vector<Text>{u"x", u"y", u"z"};
    EXPECT_GT(View().PlaceOf(0).top(), top + View().fontMetrics().height());
    EXPECT_EQ(View().TileAt({20, top + 2}), -1);
    EXPECT_EQ(View().TileAt(Centre(0)), 0);
    EXPECT_GT(Inked({0, top, 100, 20}), 20);
    EXPECT_GT(Inked(TextPlace(0)), 10);
}

TEST_F(TilesViewTest, DrawsTheTextsAndWhatIsMarkedBold) {
    form.Tiles1.Items = std::vector<Tiles::Tile>{{u"M"}, {u"M", {}, true}, {u""}, {u"\u4E2D"}, {u"e\u0301"}};
    EXPECT_GT(Inked(TextPlace(0)), 10);
    EXPECT_GT(Inked(TextPlace(1)), Inked(TextPlace(0)));
    EXPECT_EQ(Inked(TextPlace(2)), 0);
    EXPECT_GT(Inked(TextPlace(3)), 0);
    EXPECT_GT(Inked(TextPlace(4)), 0);
    form.Tiles1.SetCurrent(2);
    EXPECT_GT(Inked(TextPlace(2)), TextPlace(2).width() * TextPlace(2).height() - 1);
}

TEST_F(TilesViewTest, ADifferentFontIsDrawn) {
    const int before = Inked(TextPlace(0));
    form.Tiles1.Font = FontSpec{u"", 30};
    EXPECT_GT(Inked(TextPlace(0)), before);
}

TEST_F(TilesViewTest, TheMouseSelectsPointsAndDoubleClicks) {
    int pointed = -1;
    int doubleClicks = 0;
    form.Tiles1.PointedAt = [&pointed](int tile) { pointed = tile; };
    form.Tiles1.DblClick = [&doubleClicks] { ++doubleClicks; };
    QTest::mouseMove(&View(), Centre(5));
    test::Settle();
    EXPECT_EQ(pointed, 5);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, Centre(4));
    EXPECT_EQ(form.Tiles1.Current(), 4);
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, Centre(4));
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

TEST_F(TilesViewTest, EachKeyLeadsToItsTile) {
    struct Way {
        int from;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int to;
    };
    static const Way kWays[] = {
        {-1, Qt::Key_Down, {}, 0},
        {4, Qt::Key_Left, {}, 3},
        {3, Qt::Key_Left, {}, 3},
        {4, Qt::Key_Right, {}, 5},
        {5, Qt::Key_Right, {}, 5},
        {7, Qt::Key_Right, {}, 7},
        {4, Qt::Key_Up, {}, 1},
        {1, Qt::Key_Up, {}, 1},
        {4, Qt::Key_Down, {}, 7},
        {5, Qt::Key_Down, {}, 5},
        {7, Qt::Key_PageUp, {}, 1},
        {1, Qt::Key_PageDown, {}, 7},
        {2, Qt::Key_PageDown, {}, 5},
        {4, Qt::Key_Home, {}, 3},
        {3, Qt::Key_End, {}, 5},
        {6, Qt::Key_End, {}, 7},
        {4, Qt::Key_Home, Qt::ControlModifier, 0},
        {4, Qt::Key_End, Qt::ControlModifier, 7},
    };
    View().setFocus();
    for (const Way& way : kWays) {
        form.Tiles1.SetCurrent(way.from);
        QTest::keyClick(&View(), way.key, way.modifiers);
        EXPECT_EQ(form.Tiles1.Current(), way.to) << way.from << " " << way.key;
    }
}

TEST_F(TilesViewTest, ShowsTheCurrentTileOfTheProgram) {
    form.Tiles1.SetCurrent(7);
    EXPECT_EQ(View().Current(), 7);
    form.Tiles1.SetCurrent(-1);
    EXPECT_EQ(View().Current(), -1);
    form.Tiles1.SetCurrent(4);
    form.Tiles1.Items = std::vector<Tiles::Tile>(3);
    EXPECT_EQ(View().Current(), -1);
    View().grab();
}

TEST_F(TilesViewTest, AScreenReaderHearsWhatATileIs) {
    View().setFocus();
    form.Tiles1.SetCurrent(2);
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&View());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->text(QAccessible::Name), "Letters");
    EXPECT_EQ(list->childCount(), 8);
    QAccessibleInterface* tile = list->child(1);
    EXPECT_EQ(tile->text(QAccessible::Name), "letter b");
    EXPECT_EQ(tile->role(), QAccessible::ListItem);
    EXPECT_EQ(list->indexOfChild(tile), 1);
    EXPECT_FALSE(tile->state().selected);
    EXPECT_TRUE(list->child(2)->state().selected);
    const QPoint centre = View().mapToGlobal(Centre(1));
    EXPECT_EQ(list->childAt(centre.x(), centre.y()), tile);
    EXPECT_TRUE(tile->rect().contains(centre));
    tile->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(form.Tiles1.Current(), 1);
}

TEST_F(TilesViewTest, ATileThatIsGoneIsInvalidForAScreenReader) {
    QAccessibleInterface* tile = QAccessible::queryAccessibleInterface(&View())->child(7);
    EXPECT_TRUE(tile->isValid());
    form.Tiles1.Items = std::vector<Tiles::Tile>(3);
    EXPECT_FALSE(tile->isValid());
    EXPECT_TRUE(tile->state().invalid);
    EXPECT_EQ(tile->text(QAccessible::Name), "");
}

TEST_F(TilesViewTest, AClosedWindowIsHeardNoMore) {
    form.Close();
    form.Tiles1.SetCurrent(2);
    EXPECT_EQ(form.Tiles1.Current(), 2);
}

} // namespace
} // namespace korvane
