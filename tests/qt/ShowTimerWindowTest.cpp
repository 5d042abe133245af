#include "QtSupport.h"
#include "extras/clock/frmShowTimer.h"
#include "platform/qt/base/FillingLabel.h"
#include "platform/qt/binder/QtFormHost.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTimer>
#include <QTimerEvent>

namespace korvane {
namespace {

class ShowTimerWindowTest : public testing::Test {
protected:
    void SetUp() override {
        program.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{15000}, Twips{9000}});
        form.Show();
        test::Settle();
    }
    QWidget& Window() { return *host.WidgetOf(form); }
    FillingLabel& Label(const char* name) { return *Window().findChild<FillingLabel*>(name); }

    TestApp program;
    QtFormHost host{KorvaneForms()};
    App app{{program.files, program.user, program.clipboard, program.clock, program.screen, program.shell,
             program.instance, host, nullptr}};
    frmShowTimer form{app};
};

TEST_F(ShowTimerWindowTest, TheTimerOfTheToolkitTicks) {
    auto* timer = Window().findChild<QTimer*>();
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 100);
    program.clock.Set({2026, 3, 7, 22, 58, 58});
    QTimerEvent tick(timer->timerId());
    QCoreApplication::sendEvent(timer, &tick);
    EXPECT_EQ(Label("Label2").text(), "22:58");
    EXPECT_EQ(Label("Label3").text(), "[ 58 ]");
}

TEST_F(ShowTimerWindowTest, AClickOnTheWindowOrOnALabelClosesIt) {
    for (const char* name : {"", "Label1", "Label2", "Label3"}) {
        form.Show();
        test::Settle();
        QWidget& clicked = *name == '\0' ? Window() : Label(name);
        QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(3, 3));
        EXPECT_FALSE(form.Shown()) << name;
        test::Settle();
    }
}

TEST_F(ShowTimerWindowTest, AKeyClosesIt) {
    QTest::keyClick(&Window(), Qt::Key_Alt);
    EXPECT_TRUE(form.Shown());
    QTest::keyClick(&Window(), Qt::Key_Q);
    EXPECT_FALSE(form.Shown());
}

TEST_F(ShowTimerWindowTest, TheTimeFillsTheWindowAtEverySize) {
    for (const QSize size : {QSize(320, 200), QSize(1000, 300), QSize(1800, 1200)}) {
        Window().resize(size);
        test::Settle();
        FillingLabel& time = Label("Label2");
        const QFontMetrics letters(time.FillingFont());
        const QSize text(letters.horizontalAdvance(time.text()), letters.height());
        const QRect room = time.contentsRect();
        EXPECT_LE(text.width(), room.width() + 1);
        EXPECT_LE(text.height(), room.height() + 1);
        EXPECT_TRUE(text.width() > room.width() * 9 / 10 || text.height() > room.height() * 9 / 10)
            << text.width() << " x " << text.height() << " in " << room.width() << " x " << room.height();
    }
}

TEST_F(ShowTimerWindowTest, TheLettersKeepTheirSizeWhenTheTimeChanges) {
    FillingLabel& time = Label("Label2");
    time.setText("11:11");
    const int before = time.FillingFont().pixelSize();
    time.setText("20:48");
    EXPECT_EQ(time.FillingFont().pixelSize(), before);
}

TEST_F(ShowTimerWindowTest, AScreenReaderHearsWhatTheLabelsAre) {
    program.clock.Set({2026, 3, 7, 22, 58, 58});
    form.frmTimer.Elapse();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Label("Label2"))->text(QAccessible::Name),
              "Time: 22:58");
}

} // namespace
} // namespace korvane
