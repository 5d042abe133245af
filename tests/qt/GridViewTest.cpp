#include "platform/qt/grid/GridView.h"

#include "QtSupport.h"
#include "controls/Form.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/PopupPlace.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/grid/CellEditor.h"
#include "platform/qt/grid/CellLook.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QHeaderView>
#include <QMainWindow>
#include <QMimeData>
#include <QScrollBar>

namespace korvane {
namespace {

/// Ctrl, Alt and Shift are reported too, before the key that they are pressed with.
bool IsModifier(const KeyEvent& key) {
    return key.code >= 16 && key.code <= 18;
}

class frmGrid : public Form {
public:
    explicit frmGrid(FormHost& host)
        : Form(host, "frmGrid", u""), iGrid1(*this, "iGrid1", test::MakeStore(5, 3)) {
        iGrid1.AfterEdit = [this](Row row, Col col) { edited.push_back({row, col}); };
        iGrid1.KeyDown = [this](KeyEvent& key) {
            if (!IsModifier(key)) keys.push_back(key);
            key.consumed = key.code == consumes;
        };
        iGrid1.MouseUp = [this](MouseButton button) { buttons.push_back(button); };
        iGrid1.CellClick = [this](Row row, Col col) { clicked.push_back({row, col}); };
    }

    GridBox iGrid1;
    std::vector<CellPosition> edited;
    std::vector<CellPosition> clicked;
    std::vector<KeyEvent> keys;
    std::vector<MouseButton> buttons;
    int consumes = -1;
};

std::unique_ptr<QWidget> MakeGrid() {
    auto window = std::make_unique<QMainWindow>();
    auto* view = new GridView(window.get());
    view->setObjectName("iGrid1");
    window->setCentralWidget(view);
    window->resize(900, 400);
    return window;
}

constexpr FormEntry kForms[] = {{"frmGrid", MakeGrid}};

class GridViewTest : public testing::Test {
protected:
    void SetUp() override {
        for (int row = 1; row <= 5; ++row) {
            for (int col = 1; col <= 3; ++col) {
                Store().SetCellValue(Row{row}, Col{col}, NumberText(row) + u"/" + NumberText(col));
            }
        }
        Store().SetCurRow(Row{1});
        Store().SetCurCol(Col{1});
        form.Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(host.WidgetOf(form)));
        View().setFocus();
        test::Settle();
        form.clicked.clear();
    }

    Grid& Store() { return form.iGrid1.Store(); }
    GridView& View() { return *host.WidgetOf(form)->findChild<GridView*>(); }
    CellEditor* Editor() { return View().findChild<CellEditor*>(); }
    QRect Cell(int row, int col) { return View().visualRect(View().Model()->IndexOf(Row{row}, Col{col})); }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
        test::Settle();
    }
    void Type(const char* text) {
        // The keys are sent one at a time, because the first one opens the editor and the editor takes the
        // others.
        for (const char* c = text; *c != '\0'; ++c)
            QTest::keyClick(QApplication::focusWidget(), *c);
        test::Settle();
    }
    void Click(const QPoint& place, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(View().viewport(), button, {}, place);
        test::Settle();
    }
    void ClickHeader(int col) {
        QHeaderView& header = *View().horizontalHeader();
        const int x = header.sectionViewportPosition(col - 1) + 20;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(x, header.height() / 2));
        test::Settle();
    }
    Text At(int row, int col) { return Store().CellValue(Row{row}, Col{col}); }
    CellPosition Current() { return {Store().CurRow(), Store().CurCol()}; }
    QImage Picture(int row, int col) { return View().viewport()->grab(Cell(row, col)).toImage(); }
    QColor Pixel(const QPoint& place) { return View().viewport()->grab().toImage().pixelColor(place); }

    QtFormHost host{kForms};
    frmGrid form{host};
};

// ---- Editing ------------------------------------------------------------------------------------------

TEST_F(GridViewTest, TypingReplacesTheCellAndReturnCommits) {
    Type("new");
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(At(1, 1), u"1/1");
    Key(Qt::Key_Return);
    EXPECT_EQ(At(1, 1), u"new");
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(form.edited, (std::vector<CellPosition>{{Row{1}, Col{1}}}));
    EXPECT_EQ(Current(), (CellPosition{Row{1}, Col{1}}));
    EXPECT_TRUE(View().hasFocus());
}

TEST_F(GridViewTest, WhatIsTypedIsToldBeforeItIsCommitted) {
    int told = 0;
    form.iGrid1.Typing = [&told] { ++told; };
    Key(Qt::Key_F2);
    EXPECT_FALSE(form.iGrid1.FieldAltered);
    Type("xy");
    EXPECT_GE(told, 2);
    EXPECT_TRUE(form.iGrid1.FieldAltered);
    const auto typed = form.iGrid1.ReadField();
    ASSERT_TRUE(typed);
    EXPECT_EQ(typed->cell, (CellPosition{Row{1}, Col{1}}));
    EXPECT_EQ(typed->text, u"1/1xy");
    EXPECT_EQ(At(1, 1), u"1/1");
    told = 0;
    Key(Qt::Key_Escape);
    EXPECT_GE(told, 1);
    EXPECT_FALSE(form.iGrid1.FieldAltered);
    EXPECT_FALSE(form.iGrid1.ReadField());
}

TEST_F(GridViewTest, AFieldThatIsDeletedIsNoLongerRead) {
    Type("xy");
    std::vector<bool> open;
    const QObject untilTheEnd;
    form.iGrid1.Typing = [&] { open.push_back(form.iGrid1.ReadField().has_value()); };
    QObject::connect(qApp, &QGuiApplication::focusObjectChanged, &untilTheEnd,
                     [this] { form.iGrid1.Typing(); });
    delete Editor();
    EXPECT_FALSE(open.empty());
    EXPECT_TRUE(std::ranges::none_of(open, std::identity()));
    EXPECT_FALSE(form.iGrid1.FieldAltered);
    form.iGrid1.Typing = nullptr;
}

TEST_F(GridViewTest, ACellTakesNothingFromAnEmptyClipboard) {
    QGuiApplication::clipboard()->setMimeData(new QMimeData);
    Key(Qt::Key_F2);
    Key(Qt::Key_V, Qt::ControlModifier);
    Key(Qt::Key_Return);
    EXPECT_EQ(At(1, 1), u"1/1");
}

TEST_F(GridViewTest, F2EditsBehindTheText) {
    Key(Qt::Key_F2);
    Type("x");
    Key(Qt::Key_Return);
    EXPECT_EQ(At(1, 1), u"1/1x");
}

TEST_F(GridViewTest, ADoubleClickEdits) {
    Click(Cell(2, 2).center());
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, Cell(2, 2).center());
    test::Settle();
    ASSERT_NE(Editor(), nullptr);
    Type("!");
    Key(Qt::Key_Return);
    EXPECT_EQ(At(2, 2), u"2/2!");
}

TEST_F(GridViewTest, EscTakesTheChangeBack) {
    Type("new");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(At(1, 1), u"1/1");
    EXPECT_TRUE(form.edited.empty());
}

TEST_F(GridViewTest, ShiftOrAltWithReturnBeginsALine) {
    Type("a");
    Key(Qt::Key_Return, Qt::ShiftModifier);
    Type("b");
    Key(Qt::Key_Return, Qt::AltModifier);
    Type("c");
    Key(Qt::Key_Return);
    EXPECT_EQ(At(1, 1), u"a\r\nb\r\nc");
}

TEST_F(GridViewTest, TextOfSeveralLinesSurvivesAnEdit) {
    Store().SetCellValue(Row{1}, Col{1}, u"one\r\n\r\n  three\r\n");
    Key(Qt::Key_F2);
    Type("x");
    Key(Qt::Key_Return);
    EXPECT_EQ(At(1, 1), u"one\r\n\r\n  three\r\nx");
}

TEST_F(GridViewTest, AnUntouchedCellIsNotEdited) {
    Store().SetCellValue(Row{1}, Col{1}, u"a\nb\rc");
    Key(Qt::Key_F2);
    Key(Qt::Key_Return);
    EXPECT_EQ(At(1, 1), u"a\nb\rc");
    EXPECT_TRUE(form.edited.empty());
}

TEST_F(GridViewTest, TabCommitsAndGoesOn) {
    Type("new");
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(1, 1), u"new");
    EXPECT_EQ(Current(), (CellPosition{Row{1}, Col{2}}));
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridViewTest, TabInTheLastColumnCommitsAndGoesToTheNextRow) {
    Store().SetCurCol(Col{3});
    Type("new");
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(1, 3), u"new");
    EXPECT_EQ(Current(), (CellPosition{Row{2}, Col{1}}));
    Type("back");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(At(2, 1), u"back");
    EXPECT_EQ(Current(), (CellPosition{Row{1}, Col{3}}));
}

TEST_F(GridViewTest, NothingIsLostWhereTypingGoesOnPastTheLastRow) {
    form.iGrid1.PastEnd = [this] {
        Store().SetRowCount(Store().RowCount() + 1);
        form.iGrid1.StepCell(1);
    };
    Store().SetCurRow(Row{5});
    for (const char* text : {"a", "b", "c", "d", "e", "f", "g", "h", "i"}) {
        Type(text);
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ(At(5, 1) + At(5, 2) + At(5, 3), u"abc");
    EXPECT_EQ(At(6, 1) + At(6, 2) + At(6, 3), u"def");
    EXPECT_EQ(At(7, 1) + At(7, 2) + At(7, 3), u"ghi");
    EXPECT_EQ(Current(), (CellPosition{Row{8}, Col{1}}));
    EXPECT_TRUE(View().viewport()->rect().intersects(Cell(8, 1)));
}

TEST_F(GridViewTest, AClickElsewhereCommits) {
    Type("new");
    Click(Cell(3, 2).center());
    EXPECT_EQ(At(1, 1), u"new");
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridViewTest, ACommandFindsWhatWasTyped) {
    Type("new");
    FinishTyping();
    EXPECT_EQ(At(1, 1), u"new");
}

TEST_F(GridViewTest, TheEditorOfALongTextGrowsWithinTheGrid) {
    Text text;
    for (int line = 0; line < 100; ++line)
        text += u"line\r\n";
    Store().SetCellValue(Row{2}, Col{1}, text);
    Store().SetCurRow(Row{2});
    Key(Qt::Key_F2);
    EXPECT_EQ(Editor()->geometry().top(), Cell(2, 1).top());
    EXPECT_EQ(Editor()->geometry().bottom(), View().viewport()->rect().bottom());
}

TEST_F(GridViewTest, TheEditorGrowsWhileItIsTypedInto) {
    Key(Qt::Key_F2);
    const int before = Editor()->height();
    for (int line = 0; line < 4; ++line)
        Key(Qt::Key_Return, Qt::AltModifier);
    EXPECT_GE(Editor()->height(), before + 3 * Editor()->fontMetrics().lineSpacing());
    EXPECT_EQ(Editor()->verticalScrollBar()->value(), 0);
    EXPECT_FALSE(Editor()->verticalScrollBar()->isVisible());
}

TEST_F(GridViewTest, ATextThatWrapsIsSeenFromItsBeginning) {
    Store().SetGridFontName(u"DejaVu Serif");
    Store().SetGridFontSize(12);
    Store().SetColWidth(Col{1}, 120);
    Key(Qt::Key_F2);
    for (int word = 0; word < 8; ++word)
        Type(" words");
    EXPECT_GT(Editor()->height(), 3 * Editor()->fontMetrics().lineSpacing());
    EXPECT_EQ(Editor()->verticalScrollBar()->value(), 0);
}

TEST_F(GridViewTest, AShortTextKeepsTheEditorAtItsCell) {
    Key(Qt::Key_F2);
    EXPECT_EQ(Editor()->geometry(), Cell(1, 1));
}

// ---- Moving -------------------------------------------------------------------------------------------

TEST_F(GridViewTest, TheCurrentCellGoesBothWays) {
    Store().SetCurRow(Row{3});
    Store().SetCurCol(Col{2});
    EXPECT_EQ(View().currentIndex(), View().Model()->IndexOf(Row{3}, Col{2}));
    Click(Cell(4, 1).center());
    EXPECT_EQ(Current(), (CellPosition{Row{4}, Col{1}}));
    EXPECT_EQ(form.clicked, (std::vector<CellPosition>{{Row{4}, Col{1}}}));
}

TEST_F(GridViewTest, KeysMoveAsInASpreadsheet) {
    struct Move {
        int key;
        Qt::KeyboardModifiers modifiers;
        CellPosition to;
    };
    const Move moves[] = {
        {Qt::Key_Down, {}, {Row{2}, Col{1}}},
        {Qt::Key_Right, {}, {Row{2}, Col{2}}},
        {Qt::Key_Up, {}, {Row{1}, Col{2}}},
        {Qt::Key_Left, {}, {Row{1}, Col{1}}},
        {Qt::Key_Tab, {}, {Row{1}, Col{2}}},
        {Qt::Key_Backtab, Qt::ShiftModifier, {Row{1}, Col{1}}},
        {Qt::Key_End, {}, {Row{1}, Col{3}}},
        {Qt::Key_Tab, {}, {Row{2}, Col{1}}},
        {Qt::Key_End, Qt::ControlModifier, {Row{5}, Col{3}}},
        {Qt::Key_Home, {}, {Row{5}, Col{1}}},
        {Qt::Key_Home, Qt::ControlModifier, {Row{1}, Col{1}}},
        {Qt::Key_PageDown, {}, {Row{5}, Col{1}}},
        {Qt::Key_PageUp, {}, {Row{1}, Col{1}}},
        {Qt::Key_Return, {}, {Row{2}, Col{1}}},
    };
    for (const Move& move : moves) {
        Key(move.key, move.modifiers);
        EXPECT_EQ(Current(), move.to) << "key " << std::hex << move.key;
    }
}

TEST_F(GridViewTest, ARowIsScrolledIntoView) {
    Store().SetRowCount(Row{500});
    Store().EnsureRowVisible(Row{400});
    EXPECT_TRUE(View().viewport()->rect().intersects(Cell(400, 1)));
    EXPECT_EQ(Current(), (CellPosition{Row{1}, Col{1}}));
}

TEST_F(GridViewTest, TheKeyboardComesWhenTheStoreWantsIt) {
    View().clearFocus();
    Store().GridSetFocus();
    EXPECT_TRUE(View().hasFocus());
}

// ---- The pop-up menu ----------------------------------------------------------------------------------

TEST_F(GridViewTest, TheMenuKeyOpensThePopUpAtTheCurrentCell) {
    Store().SetCurRow(Row{3});
    Store().SetCurCol(Col{2});
    QPoint place;
    form.iGrid1.MouseUp = [&place](MouseButton) { place = PopupPlace::Wanted(); };
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&View(), &menuKey);
    EXPECT_EQ(place, View().viewport()->mapToGlobal(Cell(3, 2).bottomLeft()));
    EXPECT_EQ(PopupPlace::Wanted(), QCursor::pos());
}

// ---- Keys and buttons ---------------------------------------------------------------------------------

TEST_F(GridViewTest, AConsumedKeyDoesNotReachTheGrid) {
    form.consumes = Key::F(4);
    Key(Qt::Key_F4);
    form.consumes = 'Q';
    Type("q");
    EXPECT_EQ(Editor(), nullptr);
    ASSERT_EQ(form.keys.size(), 2u);
    EXPECT_TRUE(form.keys[0].Is(Key::F(4), Mask::None));
}

TEST_F(GridViewTest, AChordThatNobodyConsumesDoesNotType) {
    Key(Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(Editor(), nullptr);
    ASSERT_EQ(form.keys.size(), 1u);
    EXPECT_TRUE(form.keys[0].Is('Q', Mask::Ctrl | Mask::Alt));
}

TEST_F(GridViewTest, KeysOfTheEditorAreItsOwn) {
    Key(Qt::Key_F2);
    form.keys.clear();
    Type("xy");
    EXPECT_TRUE(form.keys.empty());
}

TEST_F(GridViewTest, TheRightButtonMakesTheCellCurrentAndIsTold) {
    Click(Cell(2, 3).center(), Qt::RightButton);
    EXPECT_EQ(Current(), (CellPosition{Row{2}, Col{3}}));
    EXPECT_EQ(form.buttons, (std::vector<MouseButton>{MouseButton::Right}));
    EXPECT_TRUE(form.clicked.empty());
}

TEST_F(GridViewTest, TheMenuKeyStandsForTheRightButton) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(&View(), &event);
    EXPECT_EQ(form.buttons, (std::vector<MouseButton>{MouseButton::Right}));
}

// ---- Check boxes --------------------------------------------------------------------------------------

class GridCheckTest : public GridViewTest {
protected:
    QPoint Box(int row) { return CellDelegate::CheckRect(Cell(row, 1), View()).center(); }
};

TEST_F(GridCheckTest, AClickOnTheBoxTicks) {
    Store().SetCellCheckShown(Row{2}, true);
    Click(Box(2));
    EXPECT_EQ(Store().CellCheck(Row{2}), 1);
    EXPECT_EQ(form.edited, (std::vector<CellPosition>{{Row{2}, Col{1}}}));
    EXPECT_EQ(Current().row, Row{2});
    Click(Box(2));
    EXPECT_EQ(Store().CellCheck(Row{2}), 0);
}

TEST_F(GridCheckTest, ADoubleClickOnTheBoxIsTwoClicks) {
    Store().SetCellCheckShown(Row{2}, true);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, Box(2));
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, Box(2));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Store().CellCheck(Row{2}), form.edited.size() % 2);
}

TEST_F(GridCheckTest, WhereNoBoxIsShownAClickIsAClick) {
    Click(Box(2));
    EXPECT_EQ(Store().CellCheck(Row{2}), 0);
    EXPECT_EQ(form.clicked.size(), 1u);
}

TEST_F(GridCheckTest, BesideTheBoxTheCellIsClicked) {
    Store().SetCellCheckShown(Row{2}, true);
    Click(Cell(2, 1).center());
    EXPECT_EQ(Store().CellCheck(Row{2}), 0);
}

TEST_F(GridCheckTest, SpaceTicksTheCurrentRow) {
    Store().SetCellCheckShown(Row{1}, true);
    Key(Qt::Key_Space);
    EXPECT_EQ(Store().CellCheck(Row{1}), 1);
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridCheckTest, ATickIsSeen) {
    Store().SetCellCheckShown(Row{2}, true);
    const QImage without = View().viewport()->grab(Cell(2, 1)).toImage();
    Store().SetCellCheck(Row{2}, 1);
    EXPECT_NE(View().viewport()->grab(Cell(2, 1)).toImage(), without);
}

// ---- Columns ------------------------------------------------------------------------------------------

TEST_F(GridViewTest, ADraggedWidthGoesToTheStoreAndAlarmsNobody) {
    QHeaderView& header = *View().horizontalHeader();
    const int edge = header.sectionViewportPosition(1) - 1;
    const int y = header.height() / 2;
    const int before = Store().ColWidth(Col{1});
    int changes = 0;
    form.iGrid1.AfterChange = [&changes] { ++changes; };
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, QPoint(edge, y));
    QTest::mouseMove(header.viewport(), QPoint(edge + 20, y));
    QTest::mouseMove(header.viewport(), QPoint(edge + 40, y));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, QPoint(edge + 40, y));
    EXPECT_EQ(Store().ColWidth(Col{1}), before + 40);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(form.edited.empty());
}

TEST_F(GridViewTest, TheStoresWidthsAndCaptionsAreShown) {
    Store().SetColWidth(Col{2}, 77);
    Store().SetColHeaderText(Col{2}, u"Title");
    EXPECT_EQ(View().columnWidth(1), 77);
    EXPECT_EQ(View().model()->headerData(1, Qt::Horizontal).toString(), QString("Title"));
    Store().AddCol(u"4no", u"Fourth");
    EXPECT_EQ(View().model()->columnCount(), 4);
    EXPECT_EQ(View().columnWidth(1), 77);
    EXPECT_EQ(Store().ColWidth(Col{2}), 77);
}

TEST_F(GridViewTest, AWidthOutsideWhatCanBeDraggedIsKeptInTheStore) {
    Store().SetColWidth(Col{2}, 3);
    Store().SetRowCount(Row{6});
    EXPECT_EQ(Store().ColWidth(Col{2}), 3);
}

TEST_F(GridViewTest, AHeaderSortsAndTurnsTheOrderRound) {
    int asked = 0;
    form.iGrid1.HeaderClick = [this, &asked](Col) {
        ++asked;
        Store().SetSortOnHeaderClick(true);
    };
    ClickHeader(2);
    EXPECT_EQ(At(1, 2), u"1/2");
    EXPECT_TRUE(View().horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    ClickHeader(2);
    EXPECT_EQ(At(1, 2), u"5/2");
    EXPECT_EQ(View().model()->index(0, 1).data().toString(), QString("5/2"));
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(asked, 2);
}

TEST_F(GridViewTest, AHeaderThatMayNotSortOnlyTells) {
    ClickHeader(2);
    EXPECT_EQ(At(1, 2), u"1/2");
    EXPECT_FALSE(View().horizontalHeader()->isSortIndicatorShown());
}

// ---- Rows ---------------------------------------------------------------------------------------------

TEST_F(GridViewTest, RowsAreAsHighAsTheStoreSays) {
    Store().SetRowHeight(Row{1}, 40);
    Store().SetRowHeight(Row{3}, 90);
    EXPECT_EQ(Cell(1, 1).height(), 40);
    EXPECT_EQ(Cell(3, 1).height(), 90);
    EXPECT_EQ(Cell(2, 1).height(), GridStore::kDefaultRowHeight);
    for (int row = 1; row <= 5; ++row)
        Store().SetRowHeight(Row{row}, 31);
    EXPECT_EQ(Cell(3, 1).height(), 31);
}

TEST_F(GridViewTest, ARowOfHeightNoneIsNotSeen) {
    Store().SetRowHeight(Row{2}, 0);
    EXPECT_EQ(View().rowHeight(1), 0);
    Store().SetRowHeight(Row{2}, -7);
    EXPECT_EQ(View().rowHeight(1), 0);
    for (int row = 1; row <= 5; ++row)
        Store().SetRowHeight(Row{row}, 0);
    EXPECT_EQ(View().rowHeight(4), 0);
}

TEST_F(GridViewTest, HiddenRowsAreNotShownAndComeBack) {
    Store().SetCurRow(Row{3});
    Store().SetRowVisible(Row{2}, false);
    EXPECT_EQ(View().model()->rowCount(), 4);
    EXPECT_EQ(View().currentIndex().row(), 1);
    EXPECT_EQ(Current().row, Row{3});
    Store().SetRowVisible(Row{2}, true);
    EXPECT_EQ(View().currentIndex().row(), 2);
}

TEST_F(GridViewTest, TheCurrentRowCanBeHidden) {
    Store().SetRowVisible(Row{1}, false);
    EXPECT_FALSE(View().currentIndex().isValid());
    EXPECT_EQ(Current().row, Row{1});
}

TEST_F(GridViewTest, TheScrolledPlaceSurvivesAChangeOfTheRows) {
    Store().SetRowCount(Row{1000});
    test::Settle();
    View().verticalScrollBar()->setValue(777);
    Store().SetRowCount(Row{1001});
    EXPECT_EQ(View().verticalScrollBar()->value(), 777);
}

TEST_F(GridViewTest, AHiddenGridCatchesUpWhenItIsShown) {
    Store().SetGridVisible(false);
    Store().SetRowCount(Row{9});
    EXPECT_EQ(View().model()->rowCount(), 5);
    Store().SetGridVisible(true);
    EXPECT_EQ(View().model()->rowCount(), 9);
}

// ---- Look ---------------------------------------------------------------------------------------------

TEST_F(GridViewTest, ColoursOfRowsAndTableAreShown) {
    const QPoint corner(4, 3);
    Store().SetRowBackColor(Row{3}, Colour{0x00FFFF});
    EXPECT_EQ(Pixel(Cell(3, 2).bottomRight() - corner), QColor(255, 255, 0));
    Store().SetGridBackColor(Colour{0xFFE0C0});
    EXPECT_EQ(Pixel(Cell(4, 2).bottomRight() - corner), QColor(0xC0, 0xE0, 0xFF));
    EXPECT_EQ(Pixel(View().viewport()->rect().bottomRight() - corner), QColor(0xC0, 0xE0, 0xFF));
}

TEST_F(GridViewTest, FontFlagsAreSeen) {
    QImage plain = View().viewport()->grab(Cell(3, 2)).toImage();
    for (const CellFlag flag : {CellFlag::Italic, CellFlag::Bold, CellFlag::Strikethrough}) {
        Store().SetRowFontFlag(Row{3}, flag, true);
        EXPECT_NE(View().viewport()->grab(Cell(3, 2)).toImage(), plain);
        Store().SetRowFontFlag(Row{3}, flag, false);
        EXPECT_EQ(View().viewport()->grab(Cell(3, 2)).toImage(), plain);
    }
}

TEST_F(GridViewTest, TheTablesFontIsUsedAndTheHeadersKeepTheirs) {
    const QFont header = View().horizontalHeader()->font();
    Store().SetGridFontName(u"DejaVu Serif");
    Store().SetGridFontSize(19);
    EXPECT_EQ(View().font().family(), QString("DejaVu Serif"));
    EXPECT_EQ(View().font().pointSize(), 19);
    EXPECT_EQ(View().horizontalHeader()->font(), header);
}

TEST_F(GridViewTest, FurtherLinesAreShownWhereTheRowHasRoom) {
    Store().SetRowHeight(Row{3}, 60);
    Store().SetCellValue(Row{3}, Col{2}, u"a");
    const QImage one = View().viewport()->grab(Cell(3, 2)).toImage();
    Store().SetCellValue(Row{3}, Col{2}, u"a\r\nb");
    EXPECT_NE(View().viewport()->grab(Cell(3, 2)).toImage(), one);
}

TEST_F(GridViewTest, ALongTextStaysInItsCell) {
    const QImage neighbour = View().viewport()->grab(Cell(3, 3)).toImage();
    const QImage below = View().viewport()->grab(Cell(4, 2)).toImage();
    Store().SetCellValue(Row{3}, Col{2}, Text(5000, u'W') + u"\r\nmore");
    EXPECT_EQ(View().viewport()->grab(Cell(3, 3)).toImage(), neighbour);
    EXPECT_EQ(View().viewport()->grab(Cell(4, 2)).toImage(), below);
}

TEST_F(GridViewTest, TellsHowWideItIsOnTheScreen) {
    EXPECT_EQ(form.iGrid1.ShownWidth, ToTwips(View().width()));
    View().setMinimumWidth(View().width() + 100);
    test::Settle();
    EXPECT_EQ(form.iGrid1.ShownWidth, ToTwips(View().width()));
    EXPECT_GT(form.iGrid1.ShownWidth, Twips{0});
}

TEST_F(GridViewTest, ADetachedViewIsEmptyAndDeaf) {
    View().Detach();
    Store().SetRowCount(Row{9});
    EXPECT_EQ(View().model(), nullptr);
    Click(QPoint(5, 5));
    EXPECT_TRUE(form.buttons.empty());
}

// ---- The limit ----------------------------------------------------------------------------------------

TEST_F(GridViewTest, ATableAtTheLimitCanBeWalkedToItsEnd) {
    Store().GridBeginUpdate();
    Store().SetRowCount(kMaxRows);
    for (Row row{2}; row <= kMaxRows; row += 2)
        Store().SetRowHeight(row, 30);
    Store().SetCellValue(kMaxRows, Col{3}, u"the end");
    Store().GridEndUpdate();
    Key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Current(), (CellPosition{kMaxRows, Col{3}}));
    EXPECT_TRUE(View().viewport()->rect().contains(Cell(kMaxRows.Number(), 3).center()));
    EXPECT_EQ(View().verticalHeader()->length(), 16383 * 30 + 16384 * GridStore::kDefaultRowHeight);
}

// ---- Marked text --------------------------------------------------------------------------------------

TEST_F(GridViewTest, EveryCellThatHoldsTheMarkedTextShowsItWithCaseCounting) {
    Store().SetCellValue(Row{2}, Col{1}, u"an abc here");
    Store().SetCellValue(Row{2}, Col{2}, u"an ABC here");
    const QImage without = Picture(2, 1);
    const QImage otherCase = Picture(2, 2);
    form.iGrid1.MarkedText = u"abc";
    EXPECT_NE(Picture(2, 1), without);
    EXPECT_EQ(Picture(2, 2), otherCase);
    form.iGrid1.MarkedText = u"";
    EXPECT_EQ(Picture(2, 1), without);
}

TEST_F(GridViewTest, AMarkedTextThatIsCutOffMarksTheEllipsis) {
    const Text longText = Text(400, u'x') + u"abc";
    Store().SetCellValue(Row{2}, Col{1}, longText);
    Store().SetCellValue(Row{3}, Col{1}, u"first\r\nabc");
    const QImage cut = Picture(2, 1);
    const QImage below = Picture(3, 1);
    form.iGrid1.MarkedText = u"abc";
    EXPECT_NE(Picture(2, 1), cut);
    EXPECT_NE(Picture(3, 1), below);
    const QImage mark = Picture(2, 1);
    form.iGrid1.MarkedText = u"abcd";
    EXPECT_NE(Picture(2, 1), mark);
    EXPECT_EQ(Picture(2, 1), cut);
}

TEST_F(GridViewTest, AllThatIsMarkedInALineIsPaintedBehindItsText) {
    Store().SetCellValue(Row{2}, Col{1}, u"iiiiii");
    form.iGrid1.MarkedText = u"iiiiii";
    const QColor mark = MarkBack(ColoursOf(Store(), Row{2}, Col{1}, View().palette()), Mark::Soft);
    const QImage picture = Picture(2, 1);
    int marked = 0;
    for (int x = 0; x < picture.width(); ++x)
        marked += picture.pixelColor(x, 8) == mark ? 1 : 0;
    EXPECT_GT(marked, 5);
}

// ---- What can be seen ---------------------------------------------------------------------------------

TEST_F(GridViewTest, TheHeaderHasRoomForItsLetters) {
    const QHeaderView& header = *View().horizontalHeader();
    const int margins = 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
    EXPECT_GT(header.height(), header.fontMetrics().height() + margins);
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(20);
    QApplication::setFont(large);
    View().ReadLook();
    EXPECT_GT(header.height(), QFontMetrics(large).height() + margins);
    QApplication::setFont(before);
}

TEST_F(GridViewTest, ARowThatIsMarkedForDeletionIsFaded) {
    const QImage before = Picture(2, 2);
    form.iGrid1.FadedMark = u"---";
    EXPECT_EQ(Picture(2, 2), before);
    Store().SetCellValue(Row{2}, Col{1}, u"---");
    test::Settle();
    EXPECT_NE(Picture(2, 2), before);
    EXPECT_EQ(Picture(3, 2).size(), before.size());
    form.iGrid1.FadedMark = u"";
    EXPECT_EQ(Picture(2, 2), before);
}

TEST_F(GridViewTest, TellsWhatIsSeenOfTheTable) {
    int seen = 0;
    form.iGrid1.Seen = [&seen] { ++seen; };
    Store().SetCurRow(Row{2});
    EXPECT_EQ(seen, 1);
    Store().SetCellCheck(Row{2}, 1);
    EXPECT_EQ(seen, 2);
    Store().SetRowVisible(Row{3}, false);
    EXPECT_EQ(seen, 3);
    Key(Qt::Key_Down);
    EXPECT_EQ(seen, 4);
}

} // namespace
} // namespace korvane
