// The whole text of a cell that is too narrow for it.

#include "ListsFixture.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

namespace korvane {
namespace {

class CutTextTest : public test::ListsFixture {
protected:
    void SetUp() override {
        ListsFixture::SetUp();
        form.ListView1.Add({.texts = {u"a name that is much longer than its column", u"7"}});
        form.ListView1.SetColumnWidth(1, Twips{900});
        form.FileTree.Add({}, u"root",
                          u"a folder with a name that is wider than the whole tree can show of it");
    }
    /// What is shown while the mouse rests there. A tip that goes is still seen for a moment.
    static QString TipAt(QAbstractItemView& view, const QPoint& place) {
        const QPoint onScreen = view.viewport()->mapToGlobal(place);
        QToolTip::showText(onScreen, "(the last one)", &view);
        QHelpEvent help(QEvent::ToolTip, place, onScreen);
        QApplication::sendEvent(view.viewport(), &help);
        return QToolTip::text() == "(the last one)" ? QString() : QToolTip::text();
    }
    QString TipAt(QAbstractItemView& view, const QModelIndex& index) {
        return TipAt(view, view.visualRect(index).topLeft() + QPoint(3, 3));
    }
    QString TipAt(const char* name, int row, int column = 0) {
        auto& view = Widget<QAbstractItemView>(name);
        return TipAt(view, view.model()->index(row, column));
    }
};

TEST_F(CutTextTest, IsShownForTheCellThatCutsIt) {
    EXPECT_EQ(TipAt("ListView1", 0), "a name that is much longer than its column");
    EXPECT_EQ(TipAt("ListView1", 0, 1), "");
}

TEST_F(CutTextTest, IsShownNoMoreWhenTheColumnIsWideEnough) {
    Widget<QTreeView>("ListView1").header()->resizeSection(0, 600);
    Widget<QTreeView>("ListView1").resize(800, 120);
    EXPECT_EQ(TipAt("ListView1", 0), "");
}

TEST_F(CutTextTest, IsShownForACellThatTheEdgeOfTheListCuts) {
    auto& view = Widget<QTreeView>("ListView1");
    view.header()->resizeSection(0, 600);
    view.resize(100, 120);
    EXPECT_EQ(TipAt("ListView1", 0), "a name that is much longer than its column");
}

TEST_F(CutTextTest, IsShownInListsWithoutColumnsAndInTrees) {
    form.List1.AddItem(u"an item that is wider than the whole list can ever show of it, however it scrolls");
    EXPECT_EQ(TipAt("List1", 3),
              "an item that is wider than the whole list can ever show of it, however it scrolls");
    EXPECT_EQ(TipAt("List1", 0), "");
    EXPECT_EQ(TipAt("FileTree", 0), "a folder with a name that is wider than the whole tree can show of it");
}

TEST_F(CutTextTest, LooksAsItStandsEvenIfItReadsLikeMarkup) {
    form.ListView1.SetText(1, 1, u"<b>bold</b> and quite a bit more to make it too long");
    EXPECT_EQ(TipAt("ListView1", 0),
              "<qt>&lt;b&gt;bold&lt;/b&gt; and quite a bit more to make it too long</qt>");
}

TEST_F(CutTextTest, WhereThereIsNoCellThereIsNone) {
    auto& view = Widget<QTreeView>("ListView1");
    EXPECT_EQ(TipAt(view, QPoint(5, view.viewport()->height() - 2)), "");
}

} // namespace
} // namespace korvane
