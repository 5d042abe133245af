#include "controls/views/TabStrip.h"

#include "HeardEvents.h"
#include "QtSupport.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/grid/CellLook.h"
#include "platform/qt/look/Palettes.h"
#include "platform/qt/tabs/TabLook.h"
#include "platform/qt/tabs/TabPages.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QMainWindow>

namespace korvane {
namespace {

class frmChild : public Form {
public:
    frmChild(FormHost& host, TextView caption) : Form(host, "frmChild", caption) {}
    TextBox txtFind{*this, "txtFind"};
    void Activate() override { ++activations; }
    int activations = 0;
};

class frmParent : public Form {
public:
    explicit frmParent(FormHost& host) : Form(host, "frmParent", u"") {}
    TabStrip MDITabs1{*this, "MDITabs1"};
};

std::unique_ptr<QWidget> MakeParent() {
    auto window = std::make_unique<QMainWindow>();
    auto* pages = new TabPages(window.get());
    pages->setObjectName("MDITabs1");
    pages->SetEmptyHint("nothing is open");
    window->setCentralWidget(pages);
    window->resize(600, 400);
    return window;
}

std::unique_ptr<QWidget> MakeChild() {
    auto page = std::make_unique<QWidget>();
    (new QLineEdit(page.get()))->setObjectName("txtFind");
    return page;
}

constexpr FormEntry kForms[] = {{"frmParent", MakeParent}, {"frmChild", MakeChild}};

class TabStripTest : public testing::Test {
protected:
    void SetUp() override {
        parent.Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(host.WidgetOf(parent)));
    }
    ~TabStripTest() override { parent.Close(); }

    void AddBoth() {
        for (frmChild* child : {&first, &second}) {
            child->EnsureLoaded();
            parent.MDITabs1.Add(*child);
        }
    }
    TabPages& Pages() { return *host.WidgetOf(parent)->findChild<TabPages*>(); }
    TabBar& Tabs() { return Pages().Tabs(); }
    QPoint At(int tab) { return Tabs().tabRect(tab).center(); }

    test::HeardEvents heard;
    QtFormHost host{kForms};
    frmChild first{host, u"a & b.tbx"};
    frmChild second{host, u"second.tbx"};
    frmParent parent{host};
};

TEST_F(TabStripTest, EachChildHasATabWithItsCaption) {
    AddBoth();
    ASSERT_EQ(Tabs().count(), 2);
    EXPECT_EQ(Tabs().tabText(0), QString("a && b.tbx"));
    EXPECT_EQ(Tabs().currentIndex(), 1);
    EXPECT_TRUE(host.WidgetOf(second)->isVisible());
    EXPECT_FALSE(host.WidgetOf(first)->isVisible());
    first.Caption = u"new.tbx";
    EXPECT_EQ(Tabs().tabText(0), QString("new.tbx"));
}

TEST_F(TabStripTest, AClickSelectsAndActivates) {
    AddBoth();
    const int before = first.activations;
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, At(0));
    EXPECT_EQ(parent.MDITabs1.ActiveChild(), &first);
    EXPECT_EQ(first.activations, before + 1);
    EXPECT_TRUE(host.WidgetOf(first)->isVisible());
}

TEST_F(TabStripTest, TheProgramSelectsToo) {
    AddBoth();
    parent.MDITabs1.Select(first);
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_TRUE(host.WidgetOf(first)->isVisible());
}

TEST_F(TabStripTest, ARemovedChildTakesItsPageAlong) {
    AddBoth();
    QPointer<QWidget> page = host.WidgetOf(second);
    parent.MDITabs1.Remove(second);
    test::Settle();
    EXPECT_EQ(Tabs().count(), 1);
    EXPECT_TRUE(page.isNull());
    EXPECT_EQ(parent.MDITabs1.ActiveChild(), &first);
    EXPECT_TRUE(host.WidgetOf(first)->isVisible());
    second.txtFind.Text = u"nobody looks";
}

TEST_F(TabStripTest, WithoutATabAHintStands) {
    EXPECT_EQ(Pages().EmptyHint(), QString("nothing is open"));
    EXPECT_TRUE(Pages().findChild<QLabel*>("plainHint")->isVisible());
    AddBoth();
    EXPECT_FALSE(Pages().findChild<QLabel*>("plainHint")->isVisible());
    parent.MDITabs1.Remove(first);
    parent.MDITabs1.Remove(second);
    EXPECT_TRUE(Pages().findChild<QLabel*>("plainHint")->isVisible());
}

TEST_F(TabStripTest, ARightClickOnATabSelectsItFirst) {
    AddBoth();
    int onTab = 0;
    int onStrip = 0;
    parent.MDITabs1.TabContextClick = [&] {
        EXPECT_EQ(parent.MDITabs1.ActiveChild(), &first);
        ++onTab;
    };
    parent.MDITabs1.ContextMenu = [&] { ++onStrip; };
    emit Tabs().customContextMenuRequested(At(0));
    EXPECT_EQ(onTab, 1);
    emit Tabs().customContextMenuRequested(QPoint(Tabs().width() - 2, 2));
    EXPECT_EQ(onStrip, 1);
    EXPECT_EQ(onTab, 1);
}

TEST_F(TabStripTest, TheCloseButtonAsks) {
    AddBoth();
    Form* wanted = nullptr;
    parent.MDITabs1.CloseWanted = [&wanted](Form& child) { wanted = &child; };
    emit Tabs().tabCloseRequested(0);
    EXPECT_EQ(wanted, &first);
    EXPECT_EQ(Tabs().count(), 2);
}

TEST_F(TabStripTest, CtrlTabGoesRoundTheTabs) {
    AddBoth();
    QLineEdit& field = *host.WidgetOf(second)->findChild<QLineEdit*>();
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(parent.MDITabs1.ActiveChild(), &first);
    QTest::keyClick(host.WidgetOf(first)->findChild<QLineEdit*>(), Qt::Key_Tab,
                    Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(parent.MDITabs1.ActiveChild(), &second);
}

TEST_F(TabStripTest, DrawingCanBeHeld) {
    parent.MDITabs1.AllowDrawing = false;
    EXPECT_FALSE(Pages().Tabs().updatesEnabled());
    parent.MDITabs1.AllowDrawing = true;
    EXPECT_TRUE(Pages().Tabs().updatesEnabled());
}

int DifferentPixels(const QImage& a, const QImage& b) {
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            different += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return different;
}

TEST_F(TabStripTest, EachStyleIsToBeToldFromEveryOtherInLightAndDark) {
    AddBoth();
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        const test::UnderPalette under(palette);
        std::vector<QImage> pictures;
        for (const TabStyle& style : TabStyles()) {
            parent.MDITabs1.Style = style.number;
            pictures.push_back(Tabs().grab().toImage());
        }
        const int tabHeight = Tabs().tabRect(0).height();
        for (std::size_t a = 0; a < pictures.size(); ++a) {
            for (std::size_t b = a + 1; b < pictures.size(); ++b) {
                EXPECT_GT(DifferentPixels(pictures[a], pictures[b]), tabHeight * 3)
                    << TabStyles()[a].number << " and " << TabStyles()[b].number;
            }
        }
    }
}

TEST_F(TabStripTest, CaptionsCanBeReadInEveryStyleInLightAndDark) {
    constexpr double kReadable = 4.5;
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        for (const TabStyle& style : TabStyles()) {
            const TabColours colours = ColoursOf(style, palette);
            EXPECT_GE(Contrast(colours.activeText, colours.active), kReadable) << style.number;
            EXPECT_GE(Contrast(colours.restText, colours.rest), kReadable) << style.number;
            EXPECT_GE(Contrast(colours.restText, colours.hover), kReadable) << style.number;
        }
    }
}

TEST_F(TabStripTest, AStyleThatIsSetTwiceLooksTheSame) {
    AddBoth();
    parent.MDITabs1.Style = 13;
    const QImage once = Tabs().grab().toImage();
    parent.MDITabs1.Style = 40;
    parent.MDITabs1.Style = 13;
    EXPECT_EQ(Tabs().grab().toImage(), once);
}

TEST_F(TabStripTest, ACaptionIsWholeWhereThereIsRoomAndCutInACrowd) {
    AddBoth();
    const auto room = [this](int tab) { return Tabs().tabRect(tab).width(); };
    const auto whole = [this](int tab) {
        return Tabs().fontMetrics().horizontalAdvance(Tabs().tabText(tab)) +
               Tabs().tabButton(tab, QTabBar::RightSide)->width();
    };
    EXPECT_GT(room(1), whole(1));
    second.Caption = Text(200, u'w');
    EXPECT_LT(room(1), whole(1));
}

TEST_F(TabStripTest, InACrowdATabKeepsRoomForFourteenLetters) {
    AddBoth();
    for (frmChild* child : {&first, &second})
        child->Caption = Text(200, u'w');
    host.WidgetOf(parent)->resize(120, 400);
    test::Settle();
    const QFontMetrics letters = Tabs().fontMetrics();
    // Beside the caption are three margins, the button and the gap to the next tab.
    const int beside = 3 * 12 + Tabs().tabButton(1, QTabBar::RightSide)->width() + 2;
    EXPECT_GE(Tabs().tabRect(1).width(), 14 * letters.averageCharWidth() + beside);
    EXPECT_LT(Tabs().tabRect(1).width(), letters.horizontalAdvance(Tabs().tabText(1)));
}

TEST_F(TabStripTest, ALineStandsRoundAFramedStrip) {
    AddBoth();
    const QColor strip = Tabs().Colours().strip;
    const auto corner = [this] { return QColor(Tabs().grab().toImage().pixel(Tabs().width() - 1, 10)); };
    EXPECT_EQ(corner(), strip);
    parent.MDITabs1.Framed = true;
    EXPECT_EQ(corner(), Tabs().Colours().frame);
}

TEST_F(TabStripTest, ATabIsClosedByItsOwnButton) {
    AddBoth();
    Form* wanted = nullptr;
    parent.MDITabs1.CloseWanted = [&wanted](Form& child) { wanted = &child; };
    QWidget* button = Tabs().tabButton(1, QTabBar::RightSide);
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(Tabs().tabRect(1).contains(button->geometry()));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(wanted, &second);
    parent.MDITabs1.Remove(first);
    wanted = nullptr;
    QTest::mouseClick(Tabs().tabButton(0, QTabBar::RightSide), Qt::LeftButton);
    EXPECT_EQ(wanted, &second);
}

TEST_F(TabStripTest, ATabIsAsWideAsItsCaptionInTheFontOfTheMoment) {
    AddBoth();
    QTabBar& tabs = Tabs();
    const int before = tabs.tabRect(0).width();
    tabs.setTabText(0, tabs.tabText(0) + " and more");
    const int longer = tabs.tabRect(0).width();
    EXPECT_GT(longer, before);
    QFont font = tabs.font();
    font.setPixelSize(2 * QFontInfo(font).pixelSize());
    tabs.setFont(font);
    test::Settle();
    EXPECT_GT(tabs.tabRect(0).width(), longer);
}

// ---- What the strip tells -----------------------------------------------------------------------------

TEST_F(TabStripTest, AChangedChildHasADotAndItsToolTip) {
    AddBoth();
    bool altered = true;
    parent.MDITabs1.NoteOf = [&](const Form& child) {
        return &child == &first ? TabNote{altered, u"/home/anna/a & b.tbx"} : TabNote();
    };
    const QImage before = Tabs().grab(Tabs().tabRect(0)).toImage();
    parent.MDITabs1.TellNotes();
    test::Settle();
    EXPECT_TRUE(Tabs().Altered(0));
    EXPECT_FALSE(Tabs().Altered(1));
    EXPECT_NE(Tabs().grab(Tabs().tabRect(0)).toImage(), before);
    EXPECT_EQ(Tabs().tabToolTip(0), QString("/home/anna/a & b.tbx"));
    EXPECT_EQ(Tabs().SpokenName(0), "a & b.tbx, changed");
    altered = false;
    parent.MDITabs1.TellNotes();
    test::Settle();
    EXPECT_EQ(Tabs().grab(Tabs().tabRect(0)).toImage(), before);
}

TEST_F(TabStripTest, TheFreeEndTellsAsMuchAsThereIsRoomFor) {
    AddBoth();
    parent.MDITabs1.StatusParts = [] {
        return std::vector<Text>{u"Row 12 of 201", u"34 ticked", u"filtered", u"saved 23:32"};
    };
    parent.MDITabs1.TellStatus();
    host.WidgetOf(parent)->resize(1200, 400);
    test::Settle();
    EXPECT_EQ(Tabs().ShownStatus(), QString("Row 12 of 201, 34 ticked, filtered, saved 23:32"));
    EXPECT_EQ(Tabs().accessibleDescription(), Tabs().ShownStatus());
    const int tabs = Tabs().tabRect(1).right();
    host.WidgetOf(parent)->resize(
        tabs + Tabs().fontMetrics().horizontalAdvance("Row 12 of 201, 34 ticked") + 50, 400);
    test::Settle();
    EXPECT_EQ(Tabs().ShownStatus(), QString("Row 12 of 201, 34 ticked"));
    host.WidgetOf(parent)->resize(tabs + 20, 400);
    test::Settle();
    EXPECT_EQ(Tabs().ShownStatus(), QString());
}

// ---- What a screen reader hears -----------------------------------------------------------------------

TEST_F(TabStripTest, EachTabTellsWhetherItIsSelected) {
    AddBoth();
    parent.MDITabs1.Select(second);
    QAccessibleInterface& strip = *QAccessible::queryAccessibleInterface(&Tabs());
    EXPECT_EQ(strip.role(), QAccessible::PageTabList);
    ASSERT_EQ(strip.childCount(), 4);
    EXPECT_EQ(strip.child(0)->role(), QAccessible::PageTab);
    EXPECT_EQ(strip.child(0)->text(QAccessible::Name), "a & b.tbx");
    EXPECT_FALSE(strip.child(0)->state().selected);
    EXPECT_TRUE(strip.child(1)->state().selected);
    strip.child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(parent.MDITabs1.ActiveChild(), &first);
    EXPECT_TRUE(strip.child(0)->state().selected);
    EXPECT_EQ(strip.indexOfChild(strip.child(1)), 1);
}

TEST_F(TabStripTest, TheButtonsThatCloseTabsAreNamedAndCanBePressed) {
    AddBoth();
    QAccessibleInterface& strip = *QAccessible::queryAccessibleInterface(&Tabs());
    QAccessibleInterface* button = strip.child(2);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), "Close a & b.tbx");
    EXPECT_EQ(strip.indexOfChild(button), 2);
    const QPoint middle = button->rect().center();
    EXPECT_EQ(strip.childAt(middle.x(), middle.y()), button);
    const Form* closed = nullptr;
    parent.MDITabs1.CloseWanted = [&closed](Form& child) { closed = &child; };
    EXPECT_TRUE(button->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    qobject_cast<QAbstractButton*>(button->object())->click();
    EXPECT_EQ(closed, &first);
}

TEST_F(TabStripTest, TheTabIsToldWhenTheKeyboardComesToTheStrip) {
    AddBoth();
    parent.MDITabs1.Select(second);
    test::Settle();
    Tabs().SetEars(heard);
    Tabs().setFocus();
    test::Settle();
    ASSERT_FALSE(heard.Of(QAccessible::Focus).isEmpty());
    EXPECT_EQ(heard.Of(QAccessible::Focus).last(), "second.tbx");
}

} // namespace
} // namespace korvane
