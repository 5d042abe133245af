#include "QtSupport.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FilePicker.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/grid/CellEditor.h"
#include "platform/qt/grid/SideBarView.h"
#include "platform/qt/look/Icons.h"
#include "platform/qt/services/LogOut.h"
#include "platform/qt/tabs/TabLook.h"
#include "platform/qt/tabs/TabPages.h"
#include "shell/commands/Commands.h"
#include "shell/commands/MainRoutines.h"
#include "shell/main/frmMDIParent.h"
#include "shell/tabs/frmMDIChild.h"
#include "support/ScriptedPickers.h"
#include "support/TableBytes.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <array>
#include <cstdlib>
#include <utility>

namespace korvane {
namespace {

const Text kFile = u"C:\\data\\people.tbx";

/// Runs the program with its real windows on an in-memory platform.
class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() {
        Settings settings;
        settings.SideBarVisible = 1;
        settings.MainLeft = 300;
        settings.MainTop = 300;
        settings.MainWidth = 15000;
        settings.MainHeight = 9000;
        settings.AllowSorting = 1;
        outside.files.AddDir(outside.files.ProgramDir());
        outside.files.AddFile(outside.files.Style().JoinPath(outside.files.ProgramDir(), u"Korvane.ini"),
                              SettingsBytes(settings));
        outside.files.AddFile(kFile, NameTable(kFile, {"Bert", "Anna"}));
        app.SetPort<FilePicker>(&outside.user.Pickers());
    }

    void SetUp() override {
        main.EnsureLoaded();
        main.Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
        test::Settle();
    }

    void TearDown() override {
        // The program must not ask about the changes that a test made.
        if (frmMDIChild* tab = main.Parts().tabs.Active()) tab->Table().TableAltered = 0;
        main.Close();
    }

    QMainWindow& Window() { return *qobject_cast<QMainWindow*>(host.WidgetOf(main)); }
    template <class T>
    T& Part(const char* name) {
        return *Window().findChild<T*>(name);
    }
    GridView& Table() { return Part<GridView>("iGrid1"); }
    std::string Saved() { return outside.files.Contents(kFile).value_or("(no such file)"); }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
        test::Settle();
    }
    void Type(const char* text) {
        for (const char* c = text; *c != '\0'; ++c)
            QTest::keyClick(QApplication::focusWidget(), *c);
    }
    void ClickSideBar(int row) {
        auto& bar = Part<SideBarView>("iGridListBar");
        const QModelIndex index = bar.model()->index(row - 1, 0);
        bar.scrollTo(index);
        QTest::mouseClick(bar.viewport(), Qt::LeftButton, {}, bar.visualRect(index).center());
        test::Settle();
    }

    TestApp outside;
    QtFormHost host{KorvaneForms()};
    App app{{outside.files, outside.user, outside.clipboard, outside.clock, outside.screen, outside.shell,
             outside.instance, host, [] { return std::make_unique<GridStore>(CodePage::Windows1252()); }}};
    frmMDIParent main{app, kFile};
};

class MainWindowAtStart : public MainWindowTest {
protected:
    void SetUp() override {}
};

TEST_F(MainWindowAtStart, TheTableHasTheKeyboardBeforeTheFirstKeyCanCome) {
    main.EnsureLoaded();
    main.Show();
    EXPECT_EQ(Window().focusWidget(), &Table());
}

TEST_F(MainWindowTest, TheWindowThatComesToTheFrontLeavesTheKeyboardWhereItWas) {
    mnuSwitchFocus_Click(main.Parts());
    ASSERT_EQ(QApplication::focusWidget(), &Part<SideBarView>("iGridListBar"));
    QEvent activated(QEvent::WindowActivate);
    for (QWidget* widget : Window().findChildren<QWidget*>())
        QApplication::sendEvent(widget, &activated);
    test::Settle();
    EXPECT_EQ(QApplication::focusWidget(), &Part<SideBarView>("iGridListBar"));
}

TEST_F(MainWindowTest, EveryEntryStandsInTheMenuBarWithItsKey) {
    for (const MenuEntry& entry : MenuBarEntries()) {
        const QString name = QString::fromLatin1(entry.name.data(), qsizetype(entry.name.size()));
        const auto* menu = Window().findChild<QMenu*>(name);
        const QAction* action = menu != nullptr ? menu->menuAction() : Window().findChild<QAction*>(name);
        ASSERT_NE(action, nullptr) << entry.name;
        EXPECT_EQ(action->text(), ToQString(entry.caption));
        EXPECT_EQ(action->shortcut().toString(QKeySequence::PortableText).toStdString(),
                  entry.shortcut.Name());
        EXPECT_TRUE(action->isEnabled());
    }
}

TEST_F(MainWindowTest, TheToolBarHasItsButtonsInTheirOrderEachWithIconAndTip) {
    QStringList names;
    for (const QAction* action : Part<QToolBar>("picToolbar").actions()) {
        if (action->isSeparator()) continue;
        names << action->objectName();
        EXPECT_FALSE(action->icon().isNull()) << action->objectName().toStdString();
    }
    QStringList wanted;
    for (const ToolBarButton& button : ToolBarButtons()) {
        wanted << QString::fromLatin1(button.name.data(), qsizetype(button.name.size()));
        EXPECT_EQ(Window().findChild<QAction*>(wanted.last())->toolTip(), ToQString(ShownTip(button)));
    }
    EXPECT_EQ(names, wanted);
}

TEST_F(MainWindowTest, EveryRowOfTheSideBarHasAnIcon) {
    const auto& bar = Part<SideBarView>("iGridListBar");
    ASSERT_EQ(bar.model()->rowCount(), 16);
    ASSERT_EQ(bar.RowIcons().size(), 16);
    for (const QString& name : bar.RowIcons())
        EXPECT_FALSE(TintedIcon(name).isNull()) << name.toStdString();
    EXPECT_EQ(bar.rowHeight(3), 64);
}

TEST_F(MainWindowTest, TheTableHasTheKeyboardFromTheStart) {
    EXPECT_EQ(QApplication::focusWidget(), &Table());
    EXPECT_EQ(Window().windowTitle(), QString("Korvane"));
    EXPECT_EQ(Part<TabPages>("MDITabs1").Tabs().tabText(0), QString("people.tbx"));
}

TEST_F(MainWindowTest, ASaveByKeyTakesWhatIsBeingTyped) {
    Key(Qt::Key_Home, Qt::ControlModifier);
    Type("Carla");
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Saved(), NameTable(kFile, {"Carla", "Anna"}));
}

TEST_F(MainWindowTest, ASaveByTheToolBarsNeighbourTakesWhatIsBeingTyped) {
    Key(Qt::Key_Home, Qt::ControlModifier);
    Type("Dora");
    constexpr int saveRow = 4;
    ClickSideBar(saveRow);
    EXPECT_EQ(Saved(), NameTable(kFile, {"Dora", "Anna"}));
    EXPECT_EQ(main.iGridListBar.Store().CurRow(), Row{saveRow});
}

TEST_F(MainWindowTest, SpaceRunsTheRowOfTheSideBar) {
    Key(Qt::Key_Home, Qt::ControlModifier);
    Type("Emil");
    Key(Qt::Key_Return);
    Part<SideBarView>("iGridListBar").setFocus();
    for (int row = 1; row < 4; ++row)
        Key(Qt::Key_Down);
    Key(Qt::Key_Space);
    EXPECT_EQ(Saved(), NameTable(kFile, {"Emil", "Anna"}));
}

TEST_F(MainWindowTest, AKeyOfTheMenuIsTheMenusAlsoWhileACellIsEdited) {
    outside.user.Answer(Answer::No);
    Key(Qt::Key_F2);
    Key(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(Window().findChild<CellEditor*>(), nullptr);
    EXPECT_EQ(outside.user.Messages().size(), 1u);
}

TEST_F(MainWindowTest, AnEditingKeyIsTheCellsWhileItIsEdited) {
    Key(Qt::Key_F2);
    Key(Qt::Key_A, Qt::ControlModifier);
    const auto* editor = Window().findChild<CellEditor*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->textCursor().selectedText(), QString("Bert"));
    Key(Qt::Key_Escape);
    EXPECT_TRUE(outside.user.Messages().empty());
}

TEST_F(MainWindowTest, F10InTheTableOffersANewName) {
    outside.user.CancelChooser();
    Key(Qt::Key_F10, Qt::ControlModifier);
    EXPECT_EQ(outside.user.Requests().size(), 1u);
}

TEST_F(MainWindowTest, AHeaderSortsTheTable) {
    QHeaderView& header = *Table().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(20, header.height() / 2));
    test::Settle();
    EXPECT_EQ(Table().model()->index(0, 0).data().toString(), QString("Anna"));
    EXPECT_EQ(main.Parts().tabs.Active()->Table().TableAltered, 1);
}

TEST_F(MainWindowTest, TheRightButtonOpensTheMenuOfTheTable) {
    Key(Qt::Key_Home, Qt::ControlModifier);
    Type("Fritz");
    Key(Qt::Key_Return);
    QTimer::singleShot(0, [] {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(popup, nullptr);
        EXPECT_EQ(popup->actions().size(), 18);
        popup->setActiveAction(popup->actions().at(6));
        QTest::keyClick(popup, Qt::Key_Return);
    });
    const QRect cell = Table().visualRect(Table().model()->index(1, 0));
    QTest::mouseClick(Table().viewport(), Qt::RightButton, {}, cell.center());
    EXPECT_EQ(Saved(), NameTable(kFile, {"Fritz", "Anna"}));
}

TEST_F(MainWindowTest, AClosedTabLeavesTheHint) {
    Key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(Part<TabPages>("MDITabs1").Count(), 0);
    EXPECT_TRUE(Part<QLabel>("plainHint").isVisible());
    EXPECT_EQ(Window().findChild<GridView*>("iGrid1"), nullptr);
}

TEST_F(MainWindowTest, TheSideBarIsHiddenAndShownByItsEntry) {
    QAction& entry = Part<QAction>("mnuSideBar");
    entry.trigger();
    EXPECT_FALSE(Part<QWidget>("Picture2").isVisible());
    entry.trigger();
    EXPECT_TRUE(Part<QWidget>("Picture2").isVisible());
    EXPECT_EQ(Part<QWidget>("iGridListBar").width(), 146);
    EXPECT_EQ(Part<QWidget>("Picture2").width(), ToPixels(Twips{146 * 15 + 80}));
}

TEST_F(MainWindowTest, TheSideBarIsAHandsThingWhileThePointerIsOverIt) {
    auto& bar = Part<SideBarView>("iGridListBar");
    const auto highlight = [&bar] { return QColor(bar.grab().toImage().pixel(bar.width() / 4, 8)); };
    EXPECT_EQ(highlight(), ToQColor(Colour{10327187}));
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(&bar, &enter);
    EXPECT_EQ(bar.viewport()->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(highlight(), ToQColor(Colour{16252927}));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&bar, &leave);
    EXPECT_EQ(bar.viewport()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(highlight(), ToQColor(Colour{10327187}));
}

TEST_F(MainWindowTest, TheHandIsThePictureOfItsFileWhereThereIsOne) {
    const QTemporaryDir folder;
    QPixmap hand(24, 24);
    hand.fill(Qt::red);
    ASSERT_TRUE(hand.save(folder.filePath("hand.png")));
    main.iGridListBar.HandImage = ToText(folder.filePath("hand.png"));
    main.iGridListBar.MousePointer = Pointer::Hand;
    const QCursor cursor = Part<SideBarView>("iGridListBar").viewport()->cursor();
    EXPECT_EQ(cursor.shape(), Qt::BitmapCursor);
    EXPECT_EQ(cursor.pixmap().size(), QSize(24, 24));
}

TEST_F(MainWindowTest, AChosenStyleColoursToolBarSideBarAndLabel) {
    main.OfficeMenu1.Choose("mnuStyle11");
    test::Settle();
    const QColor strip = ToQColor(TabStyleOf(25).light.strip);
    const auto pixel = [this](const char* name, int x, int y) {
        return QColor(Part<QWidget>(name).grab().toImage().pixel(x, y));
    };
    EXPECT_EQ(pixel("lblListBar", 0, 0), strip);
    EXPECT_EQ(pixel("Picture2", 1, 1), strip);
    EXPECT_EQ(pixel("iGridListBar", 0, 70), strip);
    EXPECT_EQ(Part<QWidget>("picToolbar").palette().color(QPalette::Window), strip);
    EXPECT_EQ(Part<TabPages>("MDITabs1").Tabs().Colours().strip, strip);
}

TEST_F(MainWindowTest, AStepOfTheToolBarChangesTheStripAlone) {
    const QColor before = Part<QWidget>("lblListBar").palette().color(QPalette::Window);
    Part<QAction>("cmdStyleForward").trigger();
    EXPECT_EQ(Part<QWidget>("lblListBar").palette().color(QPalette::Window), before);
    EXPECT_EQ(Part<TabPages>("MDITabs1").Tabs().Colours().strip, ToQColor(TabStyleOf(1).light.strip));
}

/// The visible parts of the strip above the table.
QList<QWidget*> ShownParts(const QWidget& strip) {
    QList<QWidget*> shown;
    for (QWidget* part : strip.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (part->isVisible()) shown << part;
    }
    return shown;
}

TEST_F(MainWindowTest, TheStripAboveTheTableIsWholeWhereItIsWide) {
    Window().resize(1200, 700);
    test::Settle();
    EXPECT_EQ(ShownParts(Part<QWidget>("Picture1")).size(), 9);
    EXPECT_EQ(Part<QToolButton>("cmdWebsites").toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

TEST_F(MainWindowTest, NothingOfTheStripIsCrowdedAtAnyWidth) {
    const int least = Window().minimumSizeHint().width();
    for (int width = least + 900; width >= least; width -= 20) {
        Window().resize(width, 400);
        test::Settle();
        const QWidget& strip = Part<QWidget>("Picture1");
        const QList<QWidget*> parts = ShownParts(strip);
        for (const QWidget* part : parts) {
            EXPECT_TRUE(strip.rect().contains(part->geometry())) << width;
            EXPECT_GE(part->width(), part->minimumSizeHint().width()) << width;
            for (const QWidget* other : parts)
                EXPECT_TRUE(part == other || !part->geometry().intersects(other->geometry())) << width;
        }
        EXPECT_TRUE(Part<QLineEdit>("txtFindString").isVisible());
        EXPECT_GE(Part<QLineEdit>("txtFindString").width(), 84);
    }
}

/// The data of a drag from a file manager.
std::unique_ptr<QMimeData> Dragged(const QList<QUrl>& urls) {
    auto data = std::make_unique<QMimeData>();
    data->setUrls(urls);
    return data;
}

TEST_F(MainWindowTest, DroppedFilesAreLoadedOneAfterTheOther) {
    outside.files.AddFile(u"C:\\data\\a.tbx", NameTable(u"C:\\data\\a.tbx", {"A"}));
    outside.files.AddFile(u"C:\\data\\b.tbx", NameTable(u"C:\\data\\b.tbx", {"B"}));
    main.FilesDropped({u"C:\\data\\a.tbx", u"C:\\data\\lost.tbx", u"C:\\data\\b.tbx"});
    const auto& tabs = Part<TabPages>("MDITabs1").Tabs();
    ASSERT_EQ(tabs.count(), 3);
    EXPECT_EQ(tabs.tabText(1), QString("a.tbx"));
    EXPECT_EQ(tabs.tabText(2), QString("b.tbx"));
    EXPECT_EQ(main.txtCommand.Text.Get(), u"");
}

TEST_F(MainWindowTest, ADropOfFilesReachesTheWindow) {
    // The in-memory platform uses Windows paths, so it takes this computer's paths for relative ones.
    outside.files.AddFile(u"/drop.tbx", NameTable(u"/drop.tbx", {"D"}));
    const auto data = Dragged({QUrl("file:///drop.tbx"), QUrl("https://localhost/page.tbx")});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Window(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Window(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(Part<TabPages>("MDITabs1").Count(), 1) << "before the drop has ended";
    test::Settle();
    EXPECT_EQ(Part<TabPages>("MDITabs1").Count(), 2);
}

TEST_F(MainWindowTest, WhatIsNoFileIsNotTaken) {
    auto text = std::make_unique<QMimeData>();
    text->setText("C:\\data\\people.tbx");
    const auto page = Dragged({QUrl("https://localhost/page.tbx")});
    for (const QMimeData* data : {text.get(), page.get()}) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Window(), &enter);
        EXPECT_FALSE(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Window(), &drop);
        EXPECT_FALSE(drop.isAccepted());
    }
    test::Settle();
    EXPECT_EQ(Part<TabPages>("MDITabs1").Count(), 1);
}

/// Stands in for the session that the desktop ends.
struct Session {
    bool allowsInteraction() const { return interactive; }
    void release() { ++released; }
    void cancel() { cancelled = true; }
    bool interactive = true;
    int released = 0;
    bool cancelled = false;
};

void Unexpected() {
    FAIL() << "The user can be asked";
}

TEST_F(MainWindowTest, ALogOutAsksAboutChangesAndACancelKeepsTheSession) {
    main.Parts().tabs.Active()->Table().TableAltered = 1;
    outside.user.Answer(Answer::Cancel);
    Session session;
    AnswerLogOut(session, main, Unexpected);
    EXPECT_TRUE(session.cancelled);
    EXPECT_EQ(session.released, 1);
    EXPECT_TRUE(main.Shown());
}

TEST_F(MainWindowTest, ALogOutClosesTheProgramAsItsUserWould) {
    main.Parts().tabs.Active()->Table().TableAltered = 1;
    outside.user.Answer(Answer::Yes);
    Session session;
    AnswerLogOut(session, main, Unexpected);
    EXPECT_FALSE(session.cancelled);
    EXPECT_EQ(session.released, 1);
    EXPECT_FALSE(main.Shown());
}

TEST_F(MainWindowTest, ALogOutThatLetsNobodyBeAskedIsNotCancelled) {
    Session session;
    session.interactive = false;
    int unasked = 0;
    AnswerLogOut(session, main, [&] { ++unasked; });
    EXPECT_EQ(unasked, 1);
    EXPECT_FALSE(session.cancelled);
    EXPECT_TRUE(main.Shown());
}

TEST_F(MainWindowTest, TheEndOfTheSessionClosesNothingByItself) {
    main.Parts().tabs.Active()->Table().TableAltered = 1;
    int ended = 0;
    QEvent end(QEvent::Quit);
    {
        QObject whileItRuns;
        EndWithSession([&] { ++ended; }, whileItRuns);
        QApplication::sendEvent(qApp, &end);
        EXPECT_TRUE(main.Shown()) << "nobody is asked";
    }
    EXPECT_EQ(ended, 1);
    outside.user.Answer(Answer::Cancel);
    QApplication::sendEvent(qApp, &end);
    EXPECT_EQ(ended, 1) << "what it called is gone";
    EXPECT_TRUE(main.Shown()) << "the user has cancelled";
}

TEST_F(MainWindowTest, TheCloseBoxAsksAboutChanges) {
    main.Parts().tabs.Active()->Table().TableAltered = 1;
    outside.user.Answer(Answer::Cancel);
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(Window().isVisible());
    outside.user.Answer(Answer::No);
    EXPECT_TRUE(Window().close());
    EXPECT_FALSE(main.Shown());
}

TEST_F(MainWindowTest, CtrlZTakesAnEditOfTheTableBackAndCtrlShiftZMakesItAgain) {
    Grid& store = main.Parts().tabs.Active()->GridStore();
    Table().setFocus();
    Type("Zoe");
    Key(Qt::Key_Return);
    ASSERT_EQ(store.CellText(Row{1}, Col{1}), u"Zoe");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(store.CellText(Row{1}, Col{1}), u"Bert");
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(store.CellText(Row{1}, Col{1}), u"Zoe");
}

TEST_F(MainWindowTest, CtrlZInABoxIsTheBoxesOwn) {
    Grid& store = main.Parts().tabs.Active()->GridStore();
    Table().setFocus();
    Type("Zoe");
    Key(Qt::Key_Return);
    auto& box = Part<QLineEdit>("txtFindString");
    box.setFocus();
    test::Settle();
    Type("abc");
    EXPECT_EQ(main.Parts().tabs.Active()->iGrid1.MarkedText.Get(), u"abc");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(main.Parts().tabs.Active()->iGrid1.MarkedText.Get(), u"");
    EXPECT_EQ(store.CellText(Row{1}, Col{1}), u"Zoe");
}

TEST_F(MainWindowTest, CtrlZInACellThatIsBeingEditedIsTheFieldsOwn) {
    Grid& store = main.Parts().tabs.Active()->GridStore();
    Table().setFocus();
    Type("Zoe");
    Key(Qt::Key_Return);
    Key(Qt::Key_F2);
    Type("!");
    auto* editor = Table().findChild<CellEditor*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->Lines(), QString("Zoe!"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor->Lines(), QString("Zoe"));
    Key(Qt::Key_Return);
    EXPECT_EQ(store.CellText(Row{1}, Col{1}), u"Zoe");
}

TEST_F(MainWindowTest, ATabThatCameDuringACommandKeepsTheKeyboard) {
    frmMDIChild& first = *main.Parts().tabs.Active();
    first.GridStore().GridSetFocus();
    main.Parts().tabs.AddNewTab();
    test::Settle();
    QWidget* const keyboard = QApplication::focusWidget();
    ASSERT_NE(keyboard, nullptr);
    first.GridStore().GridSetFocus();
    test::Settle();
    EXPECT_EQ(QApplication::focusWidget(), keyboard);
    EXPECT_TRUE(keyboard->isVisible());
    first.Table().TableAltered = 0;
}

TEST_F(MainWindowTest, TheFindBoxComesBeforeTheTable) {
    QWidget* next = Part<QLineEdit>("txtFindString").nextInFocusChain();
    while (next->focusPolicy() == Qt::NoFocus)
        next = next->nextInFocusChain();
    EXPECT_EQ(next, &Table());
}

TEST_F(MainWindowTest, TabGoesThroughTheStripAboveTheTableAsItIsSeen) {
    const std::array parts{"cmdWebsites", "cmdWallpaper", "cmdSettings",   "cmdHelp", "txtRowHeight",
                           "ZoomSlider",  "cmdFind",      "txtFindString", "iGrid1"};
    Part<QWidget>(parts.front()).setFocus();
    int left = -1;
    for (const char* name : parts) {
        const QWidget* const focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr) << name;
        ASSERT_EQ(focused->objectName(), name);
        // The table is below the strip.
        if (focused == &Table()) continue;
        EXPECT_GT(focused->x(), std::exchange(left, focused->x())) << name;
        Key(Qt::Key_Tab);
    }
}

TEST_F(MainWindowTest, TheColumnOfTheCurrentCellIsSortedByAKey) {
    Table().setFocus();
    const auto names = [this] {
        const Grid& store = main.Parts().tabs.Active()->GridStore();
        return std::pair(store.CellText(Row{1}, Col{1}), store.CellText(Row{2}, Col{1}));
    };
    Key(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(names(), std::pair(Text(u"Anna"), Text(u"Bert")));
    Key(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(names(), std::pair(Text(u"Bert"), Text(u"Anna")));
}

TEST_F(MainWindowTest, TheFindBoxIsReachedByAKey) {
    EXPECT_TRUE(Part<QLineEdit>("txtFindString").toolTip().contains("Ctrl+Shift+F"));
    Table().setFocus();
    Key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(Part<QLineEdit>("txtFindString").hasFocus());
    Key(Qt::Key_Escape);
    EXPECT_TRUE(Table().hasFocus());
}

TEST_F(MainWindowTest, WhatIsSelectedInTheFindBoxDoesNotTickTheTable) {
    Part<QLineEdit>("txtFindString").setFocus();
    Type("Anna");
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Part<QLineEdit>("txtFindString").selectedText(), QString("Anna"));
    EXPECT_EQ(main.Parts().tabs.Active()->GridStore().CellCheck(Row{1}), 0);
}

TEST_F(MainWindowTest, TheStripTellsOfTheTable) {
    auto& tabs = Part<TabPages>("MDITabs1").Tabs();
    EXPECT_TRUE(tabs.ShownStatus().startsWith("Row 1 of 2"));
    EXPECT_FALSE(tabs.Altered(0));
    EXPECT_EQ(tabs.tabToolTip(0), ToQString(kFile));
    Key(Qt::Key_Down);
    Type("Cora");
    Key(Qt::Key_Return);
    EXPECT_TRUE(tabs.Altered(0));
    EXPECT_TRUE(tabs.ShownStatus().startsWith("Row 2 of 2"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(tabs.Altered(0));
}

TEST_F(MainWindowTest, WithoutATableTheRecentFilesAreListed) {
    main.RunCommand("mnuFile_Close");
    test::Settle();
    auto& button = Part<QToolButton>("cmdStart1");
    ASSERT_TRUE(button.isVisible());
    EXPECT_TRUE(button.text().startsWith("people.tbx"));
    EXPECT_FALSE(Part<QToolButton>("cmdStart2").isVisible());
    button.click();
    test::Settle();
    EXPECT_FALSE(button.isVisible());
    EXPECT_NE(main.Parts().tabs.Active(), nullptr);
}

TEST_F(MainWindowTest, TheSidebarShowsThatItHasTheKeyboard) {
    auto& bar = Part<SideBarView>("iGridListBar");
    Table().setFocus();
    test::Settle();
    const QImage without = bar.viewport()->grab().toImage();
    bar.setFocus();
    test::Settle();
    EXPECT_NE(bar.viewport()->grab().toImage(), without);
}

TEST_F(MainWindowTest, TheKeysOfTheRowColoursAreInLineWithThem) {
    bool seen = false;
    QTimer::singleShot(0, &Window(), [&seen] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        QCoreApplication::processEvents();
        const auto& list = *dialog->findChild<QListView*>("lstColourOptions");
        const auto& keys = *dialog->findChild<QPlainTextEdit*>("Text1");
        QTextCursor last(keys.document());
        last.movePosition(QTextCursor::End);
        const QModelIndex row = list.model()->index(8, 0);
        const int keyTop = keys.viewport()->mapTo(dialog, keys.cursorRect(last).topLeft()).y();
        const int rowTop = list.viewport()->mapTo(dialog, list.visualRect(row).topLeft()).y();
        EXPECT_LE(std::abs(keyTop - rowTop), 2);
        EXPECT_TRUE(row.data(Qt::DecorationRole).isValid());
        seen = true;
        dialog->findChild<QPushButton*>("cmdCancel")->click();
    });
    main.RunCommand("mnuFormat_RowColour");
    EXPECT_TRUE(seen);
}

} // namespace
} // namespace korvane
