#include "platform/qt/grid/GridAccess.h"

#include "HeardEvents.h"
#include "QtSupport.h"
#include "controls/Form.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/grid/SideBarView.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMainWindow>

namespace korvane {
namespace {

class frmHeard : public Form {
public:
    explicit frmHeard(FormHost& host)
        : Form(host, "frmHeard", u""),
          iGrid1(*this, "iGrid1", test::MakeStore(4, 3)),
          iBar(*this, "iBar", test::MakeStore(2, 1)) {
        iBar.CellClick = [this](Row row, Col) { pressed.push_back(row); };
    }

    GridBox iGrid1;
    GridBox iBar;
    std::vector<Row> pressed;
};

std::unique_ptr<QWidget> MakeWindow() {
    auto window = std::make_unique<QMainWindow>();
    auto* both = new QWidget(window.get());
    auto* bar = new SideBarView(both);
    bar->setObjectName("iBar");
    bar->setGeometry(0, 0, 100, 400);
    auto* view = new GridView(both);
    view->setObjectName("iGrid1");
    view->setGeometry(100, 0, 800, 400);
    window->setCentralWidget(both);
    window->resize(900, 400);
    return window;
}

constexpr FormEntry kForms[] = {{"frmHeard", MakeWindow}};

class GridAccessTest : public testing::Test {
protected:
    void SetUp() override {
        Store().SetCellValue(Row{2}, Col{1}, u"Anna");
        Store().SetCellValue(Row{2}, Col{2}, u"Berlin");
        for (Row row{1}; row <= Row{4}; row = row + 1)
            Store().SetCellCheckShown(row, true);
        form.Show();
        view = host.WidgetOf(form)->findChild<GridView*>("iGrid1");
        bar = host.WidgetOf(form)->findChild<GridView*>("iBar");
        view->Voice().SetEars(heard);
        bar->Voice().SetEars(heard);
        ASSERT_TRUE(QTest::qWaitForWindowActive(host.WidgetOf(form)));
        view->setFocus();
        test::Settle();
        heard.Clear();
    }

    Grid& Store() { return form.iGrid1.Store(); }
    static QAccessibleInterface& Of(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    QAccessibleInterface& Cell(int row, int column) {
        return *Of(*view).tableInterface()->cellAt(row, column);
    }

    test::HeardEvents heard;
    QtFormHost host{kForms};
    frmHeard form{host};
    GridView* view = nullptr;
    GridView* bar = nullptr;
};

TEST_F(GridAccessTest, ACellTellsItsTextItsCaptionItsRowAndItsTick) {
    QAccessibleInterface& cell = Cell(1, 1);
    EXPECT_EQ(cell.role(), QAccessible::Cell);
    EXPECT_EQ(cell.text(QAccessible::Name), "Berlin");
    EXPECT_EQ(cell.text(QAccessible::Description), "Column 2, row 2, not ticked");
    Store().SetCellCheck(Row{2}, 1);
    EXPECT_EQ(cell.text(QAccessible::Description), "Column 2, row 2, ticked");
    ASSERT_NE(cell.tableCellInterface(), nullptr);
    const auto captions = cell.tableCellInterface()->columnHeaderCells();
    ASSERT_EQ(captions.size(), 1);
    EXPECT_EQ(captions.front()->text(QAccessible::Name), "Column 2");
    EXPECT_EQ(captions.front()->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(view->visualRect(view->model()->index(1, 1)).size(), cell.rect().size());
    EXPECT_EQ(Of(*view).childAt(cell.rect().center().x(), cell.rect().center().y()), &cell);
}

TEST_F(GridAccessTest, OnlyCellsWithABoxCanBeTicked) {
    EXPECT_TRUE(Cell(0, 0).state().checkable);
    EXPECT_FALSE(Cell(0, 1).state().checkable);
    EXPECT_TRUE(
        Cell(0, 0).actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    EXPECT_FALSE(
        Cell(0, 1).actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    Cell(2, 0).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(Store().CellCheck(Row{3}), 1);
    EXPECT_TRUE(Cell(2, 0).state().checked);
    Cell(2, 1).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(Store().CellCheck(Row{3}), 1);
}

TEST_F(GridAccessTest, ATickIsTold) {
    form.iGrid1.ClickCell(Row{2}, Col{2});
    test::Settle();
    heard.Clear();
    form.iGrid1.ClickCheck(Row{2});
    test::Settle();
    EXPECT_EQ(heard.Of(QAccessible::StateChanged), QStringList{"Anna"});
    EXPECT_EQ(heard.Of(QAccessible::DescriptionChanged), QStringList{"Berlin"});
    Store().SetCellValue(Row{2}, Col{3}, u"other");
    test::Settle();
    EXPECT_EQ(heard.Of(QAccessible::StateChanged), QStringList{"Anna"});
}

TEST_F(GridAccessTest, TheCellThatACommandComesToIsToldOnce) {
    Store().SetCurRow(Row{2});
    Store().SetCurCol(Col{2});
    Store().GridSetFocus();
    test::Settle();
    EXPECT_EQ(heard.Of(QAccessible::Focus), QStringList{"Berlin"});
    EXPECT_TRUE(heard.Of(QAccessible::SelectionAdd).isEmpty());
}

TEST_F(GridAccessTest, WhileADialogHasTheKeyboardItTellsOfTheCellThatItComesTo) {
    QDialog dialog(host.WidgetOf(form));
    auto* field = new QLineEdit(&dialog);
    dialog.show();
    dialog.activateWindow();
    field->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([field] { return field->hasFocus(); }));
    heard.Clear();
    Store().SetCurRow(Row{2});
    Store().SetCurCol(Col{2});
    test::Settle();
    EXPECT_EQ(field->accessibleDescription(), "Column 2, row 2, not ticked: Berlin");
    EXPECT_TRUE(heard.Of(QAccessible::Focus).isEmpty());
}

TEST_F(GridAccessTest, TheCurrentCellIsToldLastWhenTheKeyboardComesBack) {
    form.iGrid1.ClickCell(Row{2}, Col{2});
    bar->setFocus();
    test::Settle();
    heard.Clear();
    view->setFocus();
    test::Settle();
    ASSERT_FALSE(heard.Of(QAccessible::Focus).isEmpty());
    EXPECT_EQ(heard.Of(QAccessible::Focus).last(), "Berlin");
    EXPECT_TRUE(Cell(1, 1).state().focused);
    EXPECT_EQ(Of(*view).focusChild(), &Cell(1, 1));
}

TEST_F(GridAccessTest, TheCurrentRowOfTheSideBarIsToldToo) {
    form.iBar.Store().SetCellValue(Row{2}, Col{1}, u"File info");
    form.iBar.Store().SetCurRow(Row{2});
    test::Settle();
    heard.Clear();
    bar->setFocus();
    test::Settle();
    ASSERT_FALSE(heard.Of(QAccessible::Focus).isEmpty());
    EXPECT_EQ(heard.Of(QAccessible::Focus).last(), "File info");
}

TEST_F(GridAccessTest, TheSideBarIsAListWhoseEntriesCanBePressed) {
    form.iBar.Store().SetCellValue(Row{2}, Col{1}, u"Settings");
    EXPECT_EQ(Of(*bar).role(), QAccessible::List);
    EXPECT_EQ(Of(*bar).childCount(), 2);
    bar->setFocus();
    form.iBar.Store().SetCurRow(Row{2});
    test::Settle();
    EXPECT_EQ(heard.Of(QAccessible::Focus).last(), "Settings");
    QAccessibleInterface* entry = Of(*bar).focusChild();
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->role(), QAccessible::ListItem);
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(form.pressed, std::vector{Row{2}});
}

TEST_F(GridAccessTest, ACaptionSortsWhenItIsPressed) {
    Store().SetSortOnHeaderClick(true);
    QAccessibleInterface* caption = Of(*view).child(GridAccess::ChildOf(*view, -1, 0));
    caption->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(form.iGrid1.SortedBy(), Col{1});
    EXPECT_EQ(Store().CellText(Row{4}, Col{1}), u"");
    EXPECT_EQ(Store().CellText(Row{1}, Col{1}), u"Anna");
}

TEST_F(GridAccessTest, ACellThatIsGoneIsNoLongerValid) {
    ASSERT_TRUE(Cell(3, 0).isValid());
    Store().SetRowCount(Row{1});
    EXPECT_EQ(Of(*view).tableInterface()->cellAt(3, 0), nullptr);
    EXPECT_EQ(Of(*view).tableInterface()->rowCount(), 1);
    EXPECT_EQ(Of(*view).childCount(), 8);
}

TEST_F(GridAccessTest, NothingIsToldWhileNobodyListens) {
    heard.listens = false;
    form.iGrid1.ClickCell(Row{3}, Col{2});
    form.iGrid1.ClickCheck(Row{3});
    test::Settle();
    EXPECT_TRUE(heard.All().isEmpty());
}

} // namespace
} // namespace korvane
