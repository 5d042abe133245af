#include "ListsFixture.h"
#include "controls/UpdateScope.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/FinishTyping.h"
#include "platform/qt/look/Icons.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>

namespace korvane {
namespace {

using Texts = std::vector<Text>;

class ListViewsTest : public test::ListsFixture {
protected:
    ListView& list = form.ListView1;

    QTreeView& View() { return Widget<QTreeView>("ListView1"); }
    QModelIndex At(int row, int column = 0) { return View().model()->index(row, column); }
    void AddRows(int count) {
        const UpdateScope update(list);
        for (int number = 1; number <= count; ++number)
            list.Add({.key = u"K_" + NumberText(number), .texts = {u"row " + NumberText(number), u"7"}});
    }
    bool IsSeen(int row) { return View().viewport()->rect().contains(View().visualRect(At(row))); }
};

TEST_F(ListViewsTest, ShowsItsColumnsAndRows) {
    list.Add({.key = u"a", .texts = {u"a.txt", u"12"}});
    list.Add({.key = u"b", .texts = {u"b.txt"}});
    const QAbstractItemModel& model = *View().model();
    EXPECT_EQ(Lines(View()), (QStringList{"a.txt 12", "b.txt"}));
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), QString("Size"));
    EXPECT_EQ(View().columnWidth(0), 200);
}

TEST_F(ListViewsTest, ShowsCheckMarksAndTheCurrentRow) {
    list.CheckBoxes = true;
    list.Add({.key = u"a", .texts = {u"a.txt", u"12"}});
    list.Add({.key = u"b", .texts = {u"b.txt", u"7"}, .checked = true});
    list.SetCurrent(2);
    EXPECT_TRUE(IsTicked(View(), 1));
    EXPECT_FALSE(IsTicked(View(), 0));
    EXPECT_EQ(ShownPicks(View()), std::vector<int>{1});
    EXPECT_EQ(View().currentIndex(), At(1));
}

TEST_F(ListViewsTest, HasNoCheckMarksUnlessTheyAreWanted) {
    AddRows(1);
    EXPECT_FALSE(At(0).data(Qt::CheckStateRole).isValid());
    list.CheckBoxes = true;
    EXPECT_TRUE(At(0).data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(At(0, 1).data(Qt::CheckStateRole).isValid());
}

TEST_F(ListViewsTest, AColumnIsAlignedAsItWants) {
    AddRows(1);
    list.Columns = std::vector<ListColumn>{{u"Name", Twips{1500}},
                                           {u"Size", Twips{1500}, ColumnAlign::Right},
                                           {u"Kind", Twips{1500}, ColumnAlign::Centre}};
    const auto alignment = [this](int column) {
        return At(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(alignment(0), Qt::AlignLeft);
    EXPECT_EQ(alignment(1), Qt::AlignRight);
    EXPECT_EQ(alignment(2), Qt::AlignHCenter);
    EXPECT_EQ(View().model()->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>(),
              Qt::AlignRight | Qt::AlignVCenter);
}

TEST_F(ListViewsTest, AColumnThatTheUserDragsHasItsNewWidth) {
    View().header()->resizeSection(0, 123);
    EXPECT_EQ(list.ColumnWidth(1), ToTwips(123));
    EXPECT_EQ(list.ColumnWidth(2), Twips{1500});
    list.SetColumnWidth(1, Twips{1800});
    EXPECT_EQ(View().columnWidth(0), 120);
}

TEST_F(ListViewsTest, ALastColumnThatFillsTheListKeepsItsOwnWidth) {
    View().resize(600, 120);
    EXPECT_GT(View().columnWidth(1), 300);
    EXPECT_EQ(list.ColumnWidth(2), Twips{1500});
}

TEST_F(ListViewsTest, ARowHasTheIconThatItNames) {
    for (const TextView icon : {u"fileFound", u"fileLost", u"fileFound", u""})
        list.Add({.texts = {u"file"}, .icon = Text(icon)});
    EXPECT_FALSE(ImageOf(At(0)).isNull());
    EXPECT_NE(ImageOf(At(0)), ImageOf(At(1)));
    EXPECT_EQ(ImageOf(At(0)), ImageOf(At(2)));
    EXPECT_FALSE(At(3).data(Qt::DecorationRole).isValid());
    list.SetIcon(1, u"fileLost");
    EXPECT_EQ(ImageOf(At(0)), ImageOf(At(1)));
}

TEST_F(ListViewsTest, AnIconCanBeAPictureFile) {
    const QTemporaryDir folder;
    QPixmap red(16, 16);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.filePath("red.png")));
    list.Add({.texts = {u"file"}, .icon = ToText(folder.filePath("red.png"))});
    list.Add({.texts = {u"file"}, .icon = u"/no/such/file.png"});
    EXPECT_EQ(QColor(ImageOf(At(0)).pixel(8, 8)), QColor(Qt::red));
    EXPECT_TRUE(ImageOf(At(1)).isNull());
}

TEST_F(ListViewsTest, TheImageOfAChosenRowStandsOutFromItsHighlight) {
    const QIcon icon = TintedIcon("fileFound");
    const QColor text = QApplication::palette().color(QPalette::HighlightedText);
    const QImage chosen = icon.pixmap(QSize(24, 24), QIcon::Selected).toImage();
    EXPECT_EQ(QColor(chosen.pixelColor(5, 12).rgb()), text);
    EXPECT_NE(chosen, icon.pixmap(QSize(24, 24)).toImage());
}

TEST_F(ListViewsTest, HasTheColourThatItIsGiven) {
    list.BackColor = Colour{0x401000};
    EXPECT_EQ(View().palette().color(QPalette::Base), ToQColor(Colour{0x401000}));
    EXPECT_EQ(View().palette().color(QPalette::Text), QColor(Qt::white));
}

TEST_F(ListViewsTest, LinesAreDrawnAroundTheCellsWhereTheyAreWanted) {
    AddRows(1);
    const QRect cell = View().visualRect(At(0));
    const auto borderAndInside = [&] {
        const QImage picture = View().viewport()->grab().toImage();
        return std::pair(picture.pixel(cell.center().x(), cell.bottom()),
                         picture.pixel(cell.center().x(), cell.bottom() - 1));
    };
    const auto plain = borderAndInside();
    EXPECT_EQ(plain.first, plain.second);
    list.GridLines = true;
    const auto lined = borderAndInside();
    EXPECT_NE(lined.first, plain.first);
    EXPECT_EQ(lined.second, plain.second);
}

TEST_F(ListViewsTest, FollowsRowsThatComeGoAndChange) {
    AddRows(4);
    EXPECT_EQ(Lines(View()), (QStringList{"row 1 7", "row 2 7", "row 3 7", "row 4 7"}));
    list.SetCurrent(3);
    list.Insert(2, {.texts = {u"new"}});
    EXPECT_EQ(Lines(View()), (QStringList{"row 1 7", "new", "row 2 7", "row 3 7", "row 4 7"}));
    EXPECT_EQ(View().currentIndex(), At(3));
    list.Remove(1);
    EXPECT_EQ(Lines(View()), (QStringList{"new", "row 2 7", "row 3 7", "row 4 7"}));
    EXPECT_EQ(View().currentIndex(), At(2));
    EXPECT_EQ(ShownPicks(View()), std::vector<int>{2});
    list.SetText(2, 2, u"8");
    list.SortBy(2, SortOrder::Descending);
    EXPECT_EQ(Lines(View()), (QStringList{"row 2 8", "row 3 7", "row 4 7", "new"}));
    EXPECT_EQ(View().currentIndex(), At(1));
}

TEST_F(ListViewsTest, OneRowThatComesOrGoesIsToldAsSuch) {
    AddRows(4);
    QStringList told;
    const QObject untilTheEnd;
    const QAbstractItemModel& model = *View().model();
    const auto note = [&told](const char* what) {
        return [&told, what](const QModelIndex&, int first, int last) {
            told << QString("%1 %2-%3").arg(what).arg(first).arg(last);
        };
    };
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &untilTheEnd, note("in"));
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &untilTheEnd, note("out"));
    QObject::connect(&model, &QAbstractItemModel::modelReset, &untilTheEnd, [&told] { told << "reset"; });
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &untilTheEnd,
                     [&told](const QModelIndex& first, const QModelIndex& last) {
                         told << QString("data %1-%2").arg(first.row()).arg(last.row());
                     });
    const auto heard = [&told] {
        test::Settle();
        return std::exchange(told, {});
    };
    list.Insert(2, {});
    EXPECT_EQ(heard(), QStringList{"in 1-1"});
    list.Remove(2);
    EXPECT_EQ(heard(), QStringList{"out 1-1"});
    list.SetText(3, 1, u"x");
    EXPECT_EQ(heard(), QStringList{"data 2-2"});
    list.SetText(2, 1, u"x");
    list.SetText(4, 1, u"x");
    EXPECT_EQ(heard(), QStringList{"data 1-3"});
    list.Insert(5, {});
    list.Insert(6, {});
    EXPECT_EQ(heard(), QStringList{"in 4-5"});
    list.SetText(1, 1, u"y");
    list.Insert(1, {});
    list.Remove(4);
    EXPECT_EQ(heard(), (QStringList{"reset", "data 0-5"}));
    list.SetSelected(1, true);
    EXPECT_EQ(heard(), QStringList());
}

TEST_F(ListViewsTest, AnUpdateComesInOneGo) {
    AddRows(2);
    QTreeView& view = View();
    {
        const UpdateScope update(list);
        list.Clear();
        AddRows(3);
        list.SetCurrent(3);
        test::Settle();
        EXPECT_EQ(view.model()->rowCount(), 2);
    }
    test::Settle();
    EXPECT_EQ(Lines(view), (QStringList{"row 1 7", "row 2 7", "row 3 7"}));
    EXPECT_EQ(view.currentIndex(), At(2));
}

TEST_F(ListViewsTest, CanBePaintedWhileAnUpdateHasTakenItsRows) {
    AddRows(50);
    list.CheckBoxes = true;
    QTreeView& view = View();
    const UpdateScope update(list);
    list.Clear();
    EXPECT_FALSE(view.grab().isNull());
    EXPECT_EQ(view.model()->index(7, 0).data(), QVariant());
}

TEST_F(ListViewsTest, ShowsThePicksOfTheProgram) {
    list.MultiSelect = true;
    AddRows(6);
    for (const int index : {1, 2, 4, 6})
        list.SetSelected(index, true);
    EXPECT_EQ(ShownPicks(View()), (std::vector<int>{0, 1, 3, 5}));
    list.SetSelected(2, false);
    EXPECT_EQ(ShownPicks(View()), (std::vector<int>{0, 3, 5}));
    list.SetAllSelected(true);
    EXPECT_EQ(ShownPicks(View()), (std::vector<int>{0, 1, 2, 3, 4, 5}));
    list.SetCurrent(3);
    EXPECT_EQ(ShownPicks(View()), std::vector<int>{2});
}

TEST_F(ListViewsTest, TellsWhatTheUserDoes) {
    list.CheckBoxes = true;
    list.MultiSelect = true;
    AddRows(3);
    std::vector<int> checks;
    int column = 0;
    list.ItemCheck = [&checks](int index) { checks.push_back(index); };
    list.ColumnClick = [&column](int index) { column = index; };
    Click(View(), At(0, 1));
    EXPECT_EQ(list.Current(), 1);
    Click(View(), At(2, 1), Qt::ControlModifier);
    EXPECT_EQ(list.Current(), 3);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 3}));
    Key(View(), Qt::Key_Space);
    EXPECT_EQ(checks, std::vector<int>{3});
    const int x = View().header()->sectionViewportPosition(1) + 5;
    QTest::mouseClick(View().header()->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
    EXPECT_EQ(column, 2);
}

TEST_F(ListViewsTest, TellsOfADoubleClick) {
    AddRows(3);
    int row = 0;
    list.DblClick = [&] { row = list.Current(); };
    Click(View(), At(1));
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, View().visualRect(At(1)).center());
    EXPECT_EQ(row, 2);
}

TEST_F(ListViewsTest, TheUserMarksWithTheShiftAndControlKeys) {
    list.MultiSelect = true;
    AddRows(6);
    Click(View(), At(1));
    Click(View(), At(3), Qt::ShiftModifier);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{2, 3, 4}));
    EXPECT_EQ(list.Current(), 4);
    Click(View(), At(2), Qt::ControlModifier);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{2, 4}));
    Key(View(), Qt::Key_Down);
    EXPECT_EQ(list.SelectedRows(), std::vector<int>{4});
    Key(View(), Qt::Key_Down, Qt::ShiftModifier);
    Key(View(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{4, 5, 6}));
    EXPECT_EQ(list.Current(), 6);
    EXPECT_EQ(ShownPicks(View()), (std::vector<int>{3, 4, 5}));
}

TEST_F(ListViewsTest, TheUserAddsToWhatTheProgramMarked) {
    list.MultiSelect = true;
    AddRows(6);
    list.SetSelected(1, true);
    list.SetSelected(4, true);
    Click(View(), At(2), Qt::ControlModifier);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 3, 4}));
}

TEST_F(ListViewsTest, ADragWithTheControlKeyAddsToTheMarks) {
    list.MultiSelect = true;
    AddRows(6);
    Click(View(), At(0));
    QTreeView& view = View();
    const auto place = [&](int row) { return view.visualRect(At(row)).center(); };
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::ControlModifier, place(2));
    test::Settle();
    for (const int row : {3, 4}) {
        QMouseEvent move(QEvent::MouseMove, place(row), view.viewport()->mapToGlobal(place(row)),
                         Qt::NoButton, Qt::LeftButton, Qt::ControlModifier);
        QApplication::sendEvent(view.viewport(), &move);
        test::Settle();
    }
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::ControlModifier, place(4));
    test::Settle();
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 3, 4, 5}));
}

TEST_F(ListViewsTest, ARowInAListOfSinglePicksIsPickedAlone) {
    AddRows(3);
    Click(View(), At(0));
    Click(View(), At(2), Qt::ControlModifier);
    EXPECT_EQ(list.SelectedRows(), std::vector<int>{3});
}

TEST_F(ListViewsTest, ALetterGoesToTheRowThatBeginsWithIt) {
    for (const TextView name : {u"alpha", u"beta", u"gamma"})
        list.Add({.texts = {Text(name)}});
    Key(View(), Qt::Key_G);
    EXPECT_EQ(list.Current(), 3);
}

TEST_F(ListViewsTest, AKeyThatTheWindowTakesDoesNotReachTheList) {
    AddRows(3);
    list.SetCurrent(1);
    list.KeyDown = [](KeyEvent& key) { key.consumed = key.code == Key::Down; };
    Key(View(), Qt::Key_Down);
    EXPECT_EQ(list.Current(), 1);
}

TEST_F(ListViewsTest, AHandlerMayRemoveTheRowThatIsClicked) {
    list.MultiSelect = true;
    AddRows(4);
    list.ItemClick = [this] { list.Remove(list.Current()); };
    Click(View(), At(1));
    EXPECT_EQ(Lines(View()), (QStringList{"row 1 7", "row 3 7", "row 4 7"}));
    EXPECT_EQ(list.Current(), 2);
    EXPECT_EQ(list.SelectedRows(), std::vector<int>());
    EXPECT_EQ(ShownPicks(View()), std::vector<int>());
}

TEST_F(ListViewsTest, TheRowThatIsMadeTheCurrentOneIsBroughtIntoView) {
    AddRows(100);
    EXPECT_FALSE(IsSeen(60));
    list.SetCurrent(61);
    EXPECT_TRUE(IsSeen(60));
}

TEST_F(ListViewsTest, ARowCanBeBroughtIntoViewWithoutBecomingTheCurrentOne) {
    AddRows(100);
    list.SetCurrent(1);
    EXPECT_FALSE(IsSeen(60));
    list.EnsureVisible(61);
    list.Insert(1, {});
    EXPECT_TRUE(IsSeen(61));
    EXPECT_EQ(list.Current(), 2);
}

TEST_F(ListViewsTest, TheRowOfAListThatIsNotShownYetIsBroughtIntoViewWhenItIs) {
    form.Close();
    test::Settle();
    AddRows(100);
    list.SetCurrent(61);
    form.Show();
    EXPECT_TRUE(IsSeen(60));
}

TEST_F(ListViewsTest, StaysWhereItIsScrolledToWhenRowsChangeComeOrGo) {
    AddRows(100);
    list.SetCurrent(1);
    QScrollBar& bar = *View().verticalScrollBar();
    bar.setValue(50);
    list.SetText(3, 1, u"other");
    list.Insert(80, {});
    test::Settle();
    EXPECT_EQ(bar.value(), 50);
    list.Remove(80);
    list.SetSelected(3, true);
    test::Settle();
    EXPECT_EQ(bar.value(), 50);
    {
        const UpdateScope update(list);
        list.SetText(7, 1, u"other");
    }
    test::Settle();
    EXPECT_EQ(bar.value(), 50);
    EXPECT_EQ(View().currentIndex(), At(0));
}

TEST_F(ListViewsTest, AScreenReaderHearsItsRows) {
    AddRows(2);
    list.SetCurrent(2);
    test::Settle();
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&View());
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->role(), QAccessible::Tree);
    EXPECT_EQ(view->text(QAccessible::Name), QString("ListView1"));
    ASSERT_NE(view->tableInterface(), nullptr);
    EXPECT_EQ(view->tableInterface()->rowCount(), 2);
    QAccessibleInterface* cell = view->tableInterface()->cellAt(1, 0);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), QString("row 2"));
    EXPECT_TRUE(cell->state().selected);
}

// ---- Typing into a row --------------------------------------------------------------------------------

class ListTypingTest : public ListViewsTest {
protected:
    void SetUp() override {
        ListViewsTest::SetUp();
        AddRows(3);
        list.EditColumn = 2;
        list.TextTyped = [this](int index, TextView text) { list.SetText(index, 2, text); };
        list.SetCurrent(1);
        View().activateWindow();
        View().raise();
        View().setFocus();
        test::Settle();
    }
    void Type(const char* text) {
        for (const char* c = text; *c != '\0'; ++c)
            QTest::keyClick(QApplication::focusWidget(), *c);
    }
    void Key(int key) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        test::Settle();
    }
    Texts Typed() { return {Text(list.TextAt(1, 2)), Text(list.TextAt(2, 2)), Text(list.TextAt(3, 2))}; }
    QLineEdit* Field() { return View().findChild<QLineEdit*>(); }
};

TEST_F(ListTypingTest, ReturnAndDownGoOnToTheNextRow) {
    Type("Name");
    Key(Qt::Key_Return);
    Type("Town");
    Key(Qt::Key_Down);
    EXPECT_EQ(Typed(), (Texts{u"Name", u"Town", u"7"}));
    EXPECT_EQ(list.Current(), 3);
    EXPECT_EQ(Field(), nullptr);
    EXPECT_TRUE(View().hasFocus());
}

TEST_F(ListTypingTest, TheLastRowKeepsTheSelection) {
    list.SetCurrent(3);
    test::Settle();
    Type("x");
    Key(Qt::Key_Return);
    EXPECT_EQ(Typed(), (Texts{u"7", u"7", u"x"}));
    EXPECT_EQ(list.Current(), 3);
}

TEST_F(ListTypingTest, EscGivesTheOldTextBack) {
    Type("x");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Typed(), (Texts{u"7", u"7", u"7"}));
    EXPECT_EQ(Field(), nullptr);
    EXPECT_TRUE(form.Shown());
}

TEST_F(ListTypingTest, AClickElsewhereOrACommandTakesTheText) {
    Type("x");
    FinishTyping();
    EXPECT_EQ(Typed(), (Texts{u"x", u"7", u"7"}));
    test::Settle();
    Key(Qt::Key_F2);
    ASSERT_NE(Field(), nullptr);
    EXPECT_EQ(Field()->selectedText(), QString("x"));
    Type("y");
    Widget<QListView>("List1").setFocus();
    EXPECT_EQ(Typed(), (Texts{u"y", u"7", u"7"}));
}

TEST_F(ListTypingTest, AListThatTakesNoTextIsNotEdited) {
    list.EditColumn = 0;
    test::Settle();
    Type("x");
    Key(Qt::Key_F2);
    EXPECT_EQ(Field(), nullptr);
}

TEST_F(ListViewsTest, TellsThatTheRightButtonIsLetGo) {
    AddRows(3);
    list.SetCurrent(1);
    std::vector<int> rows;
    list.RightClick = [&] { rows.push_back(list.Current()); };
    QTest::mouseClick(View().viewport(), Qt::RightButton, {}, View().visualRect(At(2)).center());
    EXPECT_EQ(rows, std::vector<int>{3});
}

TEST_F(ListViewsTest, ATextWithLineEndsStaysOnItsLine) {
    list.Add({.key = u"a", .texts = {u"two\nlines\r.txt"}});
    EXPECT_EQ(At(0).data().toString(), QString::fromUtf8("two␊lines␍.txt"));
}

TEST_F(ListViewsTest, OfAVeryLongTextNoMoreIsPaintedThanCanBeSeen) {
    const auto picture = [this](const Text& text) {
        list.Clear();
        list.Add({.key = u"a", .texts = {text}});
        test::Settle();
        return View().viewport()->grab().toImage();
    };
    const QImage longText = picture(Text(2000, u'x'));
    EXPECT_NE(longText, picture(u"x"));
    EXPECT_EQ(longText, picture(Text(1'000'000, u'x')));
}

} // namespace
} // namespace korvane
