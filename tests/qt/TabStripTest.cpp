#include "controls/TabStrip.h"

#include "QtSupport.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "platform/qt/QtFormHost.h"
#include "platform/qt/TabPages.h"

#include <gtest/gtest.h>

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
    QTabBar& Tabs() { return Pages().Tabs(); }
    QPoint At(int tab) { return Tabs().tabRect(tab).center(); }

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
    EXPECT_FALSE(Pages().updatesEnabled());
    parent.MDITabs1.AllowDrawing = true;
    EXPECT_TRUE(Pages().updatesEnabled());
}

TEST_F(TabStripTest, EachStyleHasALookOfItsOwn) {
    QSet<QString> looks;
    constexpr int styles[] = {0, 1, 5, 6, 7, 10, 11, 12, 13, 14, 20, 25, 30, 31, 32, 33, 40};
    for (const int style : styles) {
        parent.MDITabs1.Style = style;
        looks.insert(Tabs().styleSheet());
    }
    EXPECT_EQ(looks.size(), static_cast<qsizetype>(std::size(styles)));
}

} // namespace
} // namespace korvane
