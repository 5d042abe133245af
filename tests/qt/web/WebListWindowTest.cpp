// The list of websites as the user sees it.

#include "QtSupport.h"
#include "extras/web/frmWebList.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/binder/QtFormHost.h"
#include "support/FakeMainWindow.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

namespace korvane {
namespace {

class WebListWindowTest : public testing::Test {
protected:
    WebListWindowTest() {
        program.files.AddFile(u"C:\\sites.lst", "A\r\nhttp://a\r\n1\r\nB\r\nhttp://b\r\n0\r\n"
                                                "***\r\nhttp://a\r\nhttp://b\r\nhttp://c\r\n");
        app.Settings.WebListFile = u"C:\\sites.lst";
        form.Show();
        test::Settle();
    }
    QWidget& Window() { return *host.WidgetOf(form); }
    template <class W>
    W& Find(const char* name) {
        return *Window().findChild<W*>(name);
    }

    TestApp program;
    QtFormHost host{KorvaneForms()};
    App app{{program.files, program.user, program.clipboard, program.clock, program.screen, program.shell,
             program.instance, host, nullptr}};
    FakeMainWindow main{app};
    frmWebList form{app, main.window};
};

TEST_F(WebListWindowTest, TheGroupsAreOverTheListAndFollowTheirFrame) {
    const QRect list = Find<QTreeView>("ListView1").geometry();
    form.OfficeMenu1.Choose("mnuGroupWin");
    test::Settle();
    auto& frame = Find<QGroupBox>("frameGroup");
    EXPECT_EQ(frame.geometry(), list);
    for (const QSize& more : {QSize(0, 0), QSize(150, 80), QSize(-90, -40)}) {
        Window().resize(Window().size() + more);
        test::Settle();
        auto& groups = Find<QListView>("lstGroup");
        EXPECT_EQ(groups.height(), frame.height() - ToPixels(Twips{900}));
        EXPECT_EQ(groups.width(), frame.width() - ToPixels(Twips{440}));
        EXPECT_EQ(Find<QPushButton>("btnEmptyList").geometry().right() + 1,
                  frame.width() - ToPixels(Twips{480}));
    }
}

TEST_F(WebListWindowTest, SeveralGroupsAreSelectedWithTheKeyboardAndDeleted) {
    form.OfficeMenu1.Choose("mnuGroupWin");
    test::Settle();
    auto& groups = Find<QListView>("lstGroup");
    QTest::keyClick(&groups, Qt::Key_Home);
    QTest::keyClick(&groups, Qt::Key_Down, Qt::ShiftModifier);
    program.user.Answer({u"Delete 2 items from list ? ", MessageIcon::Question, MessageButtons::YesNo, 2},
                        Answer::Yes);
    QTest::keyClick(&groups, Qt::Key_Delete);
    test::Settle();
    ASSERT_EQ(form.lstGroup.ListCount(), 1);
    EXPECT_EQ(form.lstGroup.List(0), u"http://c");
    EXPECT_EQ(groups.selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(groups.currentIndex().row(), 0);
    form.ListDirty = 0;
}

} // namespace
} // namespace korvane
