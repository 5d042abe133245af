#include "QtSupport.h"
#include "controls/Form.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "controls/TreeView.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/Icons.h"
#include "platform/qt/binder/QtFormHost.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTreeWidget>

namespace korvane {
namespace {

class frmLists : public Form {
public:
    explicit frmLists(FormHost& host) : Form(host, "frmLists", u"") {
        for (const TextView text : {u"one", u"two", u"three"}) {
            List1.AddItem(text);
            lstChecks.AddItem(text);
            lstPicks.AddItem(text);
            cboOne.AddItem(text);
        }
    }

    ListBox List1{*this, "List1"};
    ListBox lstChecks{*this, "lstChecks"};
    ListBox lstPicks{*this, "lstPicks"};
    ComboBox cboOne{*this, "cboOne"};
    ListView ListView1{*this, "ListView1", {{u"Name", Twips{3000}}, {u"Size", Twips{1500}}}};
    TreeView FileTree{*this, "FileTree"};
};

template <class WidgetT>
WidgetT& Add(QWidget& window, const char* name) {
    auto* widget = new WidgetT(&window);
    widget->setObjectName(name);
    widget->setAccessibleName(name);
    widget->resize(300, 120);
    return *widget;
}

std::unique_ptr<QWidget> MakeLists() {
    auto window = std::make_unique<QDialog>();
    window->resize(400, 300);
    Add<QListWidget>(*window, "List1");
    Add<QListWidget>(*window, "lstChecks").setProperty("checkBoxes", true);
    Add<QListWidget>(*window, "lstPicks").setSelectionMode(QAbstractItemView::ExtendedSelection);
    Add<QComboBox>(*window, "cboOne");
    Add<QTreeWidget>(*window, "ListView1").setProperty("rowImages", QStringList{"fileFound", "fileLost"});
    Add<QTreeWidget>(*window, "FileTree");
    return window;
}

constexpr FormEntry kForms[] = {{"frmLists", MakeLists}};

class ListsTest : public testing::Test {
protected:
    void SetUp() override {
        form.Show();
        test::Settle();
    }

    template <class WidgetT>
    WidgetT& Widget(const char* name) {
        return *host.WidgetOf(form)->findChild<WidgetT*>(name);
    }
    QTreeWidgetItem& Row(int index) { return *Widget<QTreeWidget>("ListView1").topLevelItem(index); }
    void Click(QAbstractItemView& view, const QModelIndex& index, Qt::KeyboardModifiers modifiers = {}) {
        view.raise();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(index).center());
    }

    QtFormHost host{kForms};
    frmLists form{host};
};

TEST_F(ListsTest, EverythingFits) {
    EXPECT_EQ(FormProblems(form, *host.WidgetOf(form)), std::vector<std::string>());
}

QImage ImageOf(const QTreeWidgetItem& item) {
    return item.icon(0).pixmap(16, 16).toImage();
}

TEST_F(ListsTest, ARowHasTheImageThatItNames) {
    for (const int image : {1, 2, 1, 0}) {
        ListRow row;
        row.texts = {u"file"};
        row.image = image;
        form.ListView1.Add(row);
    }
    test::Settle();
    EXPECT_FALSE(Row(0).icon(0).isNull());
    EXPECT_NE(ImageOf(Row(0)), ImageOf(Row(1)));
    EXPECT_EQ(ImageOf(Row(0)), ImageOf(Row(2)));
    EXPECT_TRUE(Row(3).icon(0).isNull());
}

TEST_F(ListsTest, TheImageOfAChosenRowStandsOutFromItsHighlight) {
    const QIcon icon = TintedIcon("fileFound");
    const QColor text = QApplication::palette().color(QPalette::HighlightedText);
    const QImage chosen = icon.pixmap(QSize(24, 24), QIcon::Selected).toImage();
    EXPECT_EQ(QColor(chosen.pixelColor(5, 12).rgb()), text);
    EXPECT_NE(chosen, icon.pixmap(QSize(24, 24)).toImage());
}

TEST_F(ListsTest, AListHasTheColourThatItIsGiven) {
    form.ListView1.BackColor = Colour{0x401000};
    const auto& list = Widget<QTreeWidget>("ListView1");
    EXPECT_EQ(list.palette().color(QPalette::Base), ToQColor(Colour{0x401000}));
    EXPECT_EQ(list.palette().color(QPalette::Text), QColor(Qt::white));
}

TEST_F(ListsTest, ANodeOfATreeShowsWhetherItIsOpen) {
    form.FileTree.Add({}, u"root", u"Root");
    form.FileTree.Add(u"root", u"a", u"A");
    form.FileTree.Add(u"root", u"b", u"B");
    form.FileTree.SetExpanded(u"root", true);
    form.FileTree.Select(u"a");
    test::Settle();
    QTreeWidgetItem& root = *Widget<QTreeWidget>("FileTree").topLevelItem(0);
    EXPECT_EQ(ImageOf(root), ImageOf(*root.child(0)));
    EXPECT_NE(ImageOf(root), ImageOf(*root.child(1)));
    Click(Widget<QTreeWidget>("FileTree"),
          Widget<QTreeWidget>("FileTree")
              .model()
              ->index(1, 0, Widget<QTreeWidget>("FileTree").model()->index(0, 0)));
    EXPECT_EQ(ImageOf(root), ImageOf(*root.child(1)));
    EXPECT_NE(ImageOf(root), ImageOf(*root.child(0)));
}

TEST_F(ListsTest, ATreeTakesItsPicturesFromTheirFilesWhereThereAreAny) {
    const QTemporaryDir folder;
    QPixmap red(16, 16);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.filePath("closed.png")));
    form.FileTree.Images = TreeImages{ToText(folder.filePath("closed.png")), u"/no/such/file.ico"};
    form.FileTree.Add({}, u"root", u"Root");
    form.FileTree.Add({}, u"other", u"Other");
    form.FileTree.Select(u"other");
    test::Settle();
    auto& tree = Widget<QTreeWidget>("FileTree");
    EXPECT_EQ(QColor(ImageOf(*tree.topLevelItem(0)).pixel(8, 8)), QColor(Qt::red));
    EXPECT_FALSE(tree.topLevelItem(1)->icon(0).isNull());
}

TEST_F(ListsTest, AListFollowsItsItems) {
    auto& list = Widget<QListWidget>("List1");
    ASSERT_EQ(list.count(), 3);
    form.List1.InsertItem(1, u"between");
    form.List1.SetList(0, u"first");
    form.List1.SetListIndex(2);
    EXPECT_EQ(list.item(0)->text(), QString("first"));
    EXPECT_EQ(list.item(1)->text(), QString("between"));
    EXPECT_EQ(list.currentRow(), 2);
    form.List1.Clear();
    test::Settle();
    EXPECT_EQ(list.count(), 0);
}

TEST_F(ListsTest, AClickInAListIsItsIndex) {
    auto& list = Widget<QListWidget>("List1");
    int clicks = 0;
    int doubleClicks = 0;
    form.List1.Click = [&clicks] { ++clicks; };
    form.List1.DblClick = [&doubleClicks] { ++doubleClicks; };
    Click(list, list.model()->index(1, 0));
    EXPECT_EQ(form.List1.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(doubleClicks, 1);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(form.List1.ListIndex(), 2);
}

TEST_F(ListsTest, AnIndexWithoutAnItemShowsNone) {
    form.List1.SetListIndex(1);
    form.List1.SetListIndex(-1);
    EXPECT_EQ(Widget<QListWidget>("List1").currentRow(), -1);
}

TEST_F(ListsTest, CheckMarksGoBothWays) {
    auto& list = Widget<QListWidget>("lstChecks");
    std::vector<int> told;
    form.lstChecks.ItemCheck = [&told](int index) { told.push_back(index); };
    form.lstChecks.SetSelected(2, true);
    EXPECT_EQ(list.item(2)->checkState(), Qt::Checked);
    EXPECT_EQ(list.item(0)->checkState(), Qt::Unchecked);
    list.setFocus();
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_TRUE(form.lstChecks.Selected(0));
    EXPECT_EQ(told, (std::vector<int>{2, 0}));
}

TEST_F(ListsTest, PicksGoBothWays) {
    auto& list = Widget<QListWidget>("lstPicks");
    form.lstPicks.SetSelected(2, true);
    EXPECT_TRUE(list.item(2)->isSelected());
    Click(list, list.model()->index(0, 0), Qt::ControlModifier);
    EXPECT_TRUE(form.lstPicks.Selected(0));
    EXPECT_TRUE(form.lstPicks.Selected(2));
    Click(list, list.model()->index(1, 0));
    EXPECT_FALSE(form.lstPicks.Selected(0));
    EXPECT_TRUE(form.lstPicks.Selected(1));
}

TEST_F(ListsTest, AComboBoxFollowsAndLeads) {
    auto& combo = Widget<QComboBox>("cboOne");
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.currentIndex(), -1);
    form.cboOne.SetListIndex(1);
    EXPECT_EQ(combo.currentText(), QString("two"));
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(form.cboOne.Chosen(), u"three");
}

TEST_F(ListsTest, AListWithColumnsShowsItsRows) {
    auto& list = Widget<QTreeWidget>("ListView1");
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_EQ(list.headerItem()->text(1), QString("Size"));
    EXPECT_EQ(list.columnWidth(0), 200);
    form.ListView1.CheckBoxes = true;
    form.ListView1.Add({u"a", {u"a.txt", u"12"}});
    form.ListView1.Add({.key = u"b", .texts = {u"b.txt", u"7"}, .checked = true});
    form.ListView1.SetCurrent(2);
    ASSERT_EQ(list.topLevelItemCount(), 2);
    EXPECT_EQ(Row(0).text(1), QString("12"));
    EXPECT_EQ(Row(1).checkState(0), Qt::Checked);
    EXPECT_TRUE(Row(1).isSelected());
    EXPECT_EQ(list.currentItem(), &Row(1));
}

TEST_F(ListsTest, LinesAreDrawnAroundTheCellsWhereTheyAreWanted) {
    form.ListView1.Add({u"a", {u"a.txt", u"12"}});
    test::Settle();
    auto& list = Widget<QTreeWidget>("ListView1");
    const QRect cell = list.visualItemRect(&Row(0));
    const auto borderAndInside = [&] {
        const QImage picture = list.viewport()->grab().toImage();
        return std::pair(picture.pixel(cell.center().x(), cell.bottom()),
                         picture.pixel(cell.center().x(), cell.bottom() - 1));
    };
    const auto plain = borderAndInside();
    EXPECT_EQ(plain.first, plain.second);
    form.ListView1.GridLines = true;
    const auto lined = borderAndInside();
    EXPECT_NE(lined.first, plain.first);
    EXPECT_EQ(lined.second, plain.second);
}

TEST_F(ListsTest, AListWithColumnsTellsWhatTheUserDoes) {
    auto& list = Widget<QTreeWidget>("ListView1");
    form.ListView1.CheckBoxes = true;
    form.ListView1.MultiSelect = true;
    for (const TextView name : {u"a", u"b", u"c"})
        form.ListView1.Add({Text(name), {Text(name)}});
    test::Settle();
    std::vector<int> checks;
    int column = 0;
    form.ListView1.ItemCheck = [&checks](int index) { checks.push_back(index); };
    form.ListView1.ColumnClick = [&column](int index) { column = index; };

    Click(list, list.model()->index(0, 1));
    EXPECT_EQ(form.ListView1.Current(), 1);
    Click(list, list.model()->index(2, 1), Qt::ControlModifier);
    EXPECT_EQ(form.ListView1.Current(), 3);
    EXPECT_TRUE(form.ListView1.RowAt(3).selected);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(checks, (std::vector<int>{3}));
    const int x = list.header()->sectionViewportPosition(1) + 5;
    QTest::mouseClick(list.header()->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
    EXPECT_EQ(column, 2);
}

TEST_F(ListsTest, ATreeFollowsAndLeads) {
    auto& tree = Widget<QTreeWidget>("FileTree");
    form.FileTree.Add(u"", u"root", u"Root");
    form.FileTree.Add(u"root", u"leaf", u"Leaf");
    form.FileTree.SetExpanded(u"root", true);
    form.FileTree.Select(u"leaf");
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    QTreeWidgetItem& root = *tree.topLevelItem(0);
    EXPECT_TRUE(root.isExpanded());
    EXPECT_EQ(tree.currentItem(), root.child(0));

    Click(tree, tree.model()->index(0, 0));
    EXPECT_EQ(form.FileTree.Selected(), u"root");
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Left);
    EXPECT_FALSE(form.FileTree.Node(u"root")->expanded);
    form.FileTree.Remove(u"root");
    test::Settle();
    EXPECT_EQ(tree.topLevelItemCount(), 0);
}

TEST_F(ListsTest, ManyItemsComeInOneGo) {
    auto& list = Widget<QListWidget>("List1");
    for (int i = 0; i < 1000; ++i)
        form.List1.AddItem(NumberText(i));
    EXPECT_EQ(list.count(), 3);
    test::Settle();
    EXPECT_EQ(list.count(), 1003);
}

} // namespace
} // namespace korvane
