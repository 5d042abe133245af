#include "QtSupport.h"
#include "files/lister/frmGetFileFromTree.h"
#include "platform/qt/binder/QtFormHost.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <QLineEdit>

namespace korvane {
namespace {

TEST(ListerWindowTest, TheLineOfTheNameStaysBelowAListThatIsHidden) {
    TestApp outside;
    QtFormHost host{KorvaneForms()};
    App app{{outside.files, outside.user, outside.clipboard, outside.clock, outside.screen, outside.shell,
             outside.instance, host, [] { return nullptr; }}};
    frmGetFileFromTree form(app);
    form.Show();
    form.Activate();
    test::Settle();
    const auto* const line = host.WidgetOf(form)->findChild<QLineEdit*>("txtFileName");
    const QRect place = line->geometry();
    form.ListView1.Visible = false;
    test::Settle();
    EXPECT_EQ(line->geometry(), place);
    form.ListView1.Visible = true;
    test::Settle();
    EXPECT_EQ(line->geometry(), place);
    form.Close();
}

} // namespace
} // namespace korvane
