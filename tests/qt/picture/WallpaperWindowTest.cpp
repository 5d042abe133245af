#include "QtSupport.h"
#include "context/ports/PictureFiles.h"
#include "extras/lock/frmWallpaper.h"
#include "picture/PictureFile.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/picture/PictureView.h"
#include "platform/qt/picture/QtPictureFiles.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

namespace korvane {
namespace {

/// The lock as the user sees it, on a disk in memory that has the picture too.
class WallpaperWindowTest : public testing::Test {
protected:
    WallpaperWindowTest() {
        program.screen.SetWorkArea({Twips{0}, Twips{0}, ToTwips(600), ToTwips(400)});
        app.SetPort<PictureFiles>(&pictures);
        app.Settings.ReturnPassword = u"Secret";
    }
    void Open(const QSize& picture, TextView stretch) {
        OpenFile(folder.Add("picture.png", picture, "PNG"), stretch);
        AwaitPicture();
    }
    void OpenFile(const QString& file, TextView stretch) {
        const Text path = ToText(file);
        program.files.AddFile(path);
        app.Settings.WallpaperFile = path;
        app.Settings.WallpaperNumber = stretch;
        form.Show();
        test::Settle();
    }
    void AwaitPicture() {
        QSignalSpy ready(&View(), &PictureView::Ready);
        ASSERT_TRUE(View().IsReady() || ready.wait());
    }
    QWidget& Window() { return *host.WidgetOf(form); }
    PictureView& View() { return *Window().findChild<PictureView*>(); }
    QScrollBar& Bar(const char* name) { return *Window().findChild<QScrollBar*>(name); }
    QColor At(int x, int y) { return View().grab().toImage().pixelColor(x, y); }

    /// When the question comes, this is typed.
    void Answer(const QString& answer) {
        QTimer::singleShot(0, &Window(), [answer] {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr);
            ASSERT_EQ(box->objectName(), "frmMyInputBox");
            QTest::keyClicks(box->findChild<QLineEdit*>(), answer);
            box->findChild<QPushButton*>("cmdOk")->click();
        });
    }
    void ExpectWrong(TextView answer) {
        program.user.korvane::ScriptedUser::Answer(
            {u"Wrong password!\r\n\r\n\"" + Text(answer) + u"\"", MessageIcon::Stop}, korvane::Answer::Ok);
    }

    std::size_t asked = 0;
    test::PictureFolder folder;
    TestApp program;
    QtPictureFiles pictures;
    QtFormHost host{KorvaneForms()};
    App app{{program.files, program.user, program.clipboard, program.clock, program.screen, program.shell,
             program.instance, host, nullptr}};
    frmWallpaper form{app};
};

TEST_F(WallpaperWindowTest, FillsTheWorkArea) {
    Open(QSize(60, 40), u"1");
    EXPECT_EQ(Window().geometry(), QRect(0, 0, 600, 400));
    EXPECT_EQ(View().width(), 600);
    EXPECT_EQ(View().height(), 400 - Window().findChild<QMenuBar*>()->height());
}

TEST_F(WallpaperWindowTest, ShowsASmallPictureInTheMiddle) {
    Open(QSize(60, 40), u"0");
    const QPoint middle = View().rect().center();
    EXPECT_EQ(At(middle.x() - 20, middle.y()), QColor(Qt::red));
    EXPECT_EQ(At(middle.x() + 20, middle.y()), QColor(Qt::blue));
    EXPECT_EQ(At(middle.x() - 40, middle.y()), QColor(Qt::black));
    EXPECT_FALSE(Bar("HScroll1").isVisible());
}

TEST_F(WallpaperWindowTest, FillsAWorkAreaThatBeginsElsewhere) {
    program.screen.SetWorkArea({ToTwips(40), ToTwips(25), ToTwips(600), ToTwips(400)});
    Open(QSize(60, 40), u"1");
    EXPECT_EQ(Window().geometry(), QRect(40, 25, 600, 400));
}

TEST_F(WallpaperWindowTest, APictureOfItsSizeFillsItWithoutBars) {
    Open(QSize(60, 40), u"0");
    const QString exact = folder.Add("exact.png", View().size(), "PNG");
    program.files.AddFile(ToText(exact));
    for (const TextView stretch : {u"0", u"1"}) {
        app.Settings.WallpaperNumber = stretch;
        app.Settings.WallpaperFile = ToText(exact);
        Answer("Secret");
        EXPECT_TRUE(form.Close());
        form.Show();
        test::Settle();
        AwaitPicture();
        EXPECT_FALSE(Bar("HScroll1").isVisible());
        EXPECT_FALSE(Bar("VScroll1").isVisible());
        EXPECT_EQ(At(0, 0), QColor(Qt::red));
        EXPECT_EQ(At(View().width() - 1, View().height() - 1), QColor(Qt::blue));
    }
}

TEST_F(WallpaperWindowTest, AFileThatIsNoPictureLeavesItBlackAndLocked) {
    OpenFile(folder.AddBytes("text.png", "This is no picture."), u"1");
    EXPECT_EQ(At(View().width() / 2, View().height() / 2), QColor(Qt::black));
    Answer("wrong");
    ExpectWrong(u"wrong");
    QTest::keyClick(&Window(), Qt::Key_A);
    EXPECT_TRUE(form.Shown());
    Answer("Secret");
    QTest::keyClick(&Window(), Qt::Key_A);
    EXPECT_FALSE(form.Shown());
}

TEST_F(WallpaperWindowTest, ScrollsALargePictureToItsLastPixel) {
    Open(QSize(1500, 900), u"0");
    ASSERT_TRUE(Bar("HScroll1").isVisible());
    ASSERT_TRUE(Bar("VScroll1").isVisible());
    EXPECT_EQ(At(10, 10), QColor(Qt::red));
    Bar("HScroll1").setValue(Bar("HScroll1").maximum());
    Bar("VScroll1").setValue(Bar("VScroll1").maximum());
    const QPoint last(View().width() - Bar("VScroll1").width() - 1,
                      View().height() - Bar("HScroll1").height() - 1);
    EXPECT_EQ(At(last.x(), last.y()), QColor(Qt::blue));
    EXPECT_EQ(At(last.x() + 1, last.y()), QColor(Qt::black));
    EXPECT_EQ(At(last.x(), last.y() + 1), QColor(Qt::black));
}

TEST_F(WallpaperWindowTest, ABarThatIsAloneReachesFromEdgeToEdge) {
    Open(QSize(1500, 40), u"0");
    EXPECT_EQ(Bar("HScroll1").width(), View().width());
    EXPECT_EQ(Bar("HScroll1").geometry().bottom(), View().geometry().bottom());
    const QString high = folder.Add("high.png", QSize(40, 900), "PNG");
    program.files.AddFile(ToText(high));
    Answer("Secret");
    EXPECT_TRUE(form.Close());
    OpenFile(high, u"0");
    AwaitPicture();
    EXPECT_EQ(Bar("VScroll1").height(), View().height());
    EXPECT_EQ(Bar("VScroll1").geometry().right(), View().geometry().right());
}

TEST_F(WallpaperWindowTest, AKeyAsksAndOnlyTheRightPasswordOpens) {
    Open(QSize(60, 40), u"1");
    EXPECT_EQ(QWidget::keyboardGrabber(), &Window());
    Answer("wrong");
    ExpectWrong(u"wrong");
    QTest::keyClick(&Window(), Qt::Key_A);
    EXPECT_TRUE(form.Shown());
    EXPECT_EQ(QWidget::keyboardGrabber(), &Window());
    Answer("Secret");
    QTest::keyClick(&Window(), Qt::Key_A);
    EXPECT_FALSE(form.Shown());
}

TEST_F(WallpaperWindowTest, AKeyAsksAlsoWhileTheBarHasTheFocus) {
    Open(QSize(60, 40), u"1");
    Window().findChild<QMenuBar*>()->setFocus();
    ASSERT_NE(Window().focusWidget(), nullptr);
    Answer("Secret");
    QTest::keyClick(&Window(), Qt::Key_A);
    EXPECT_FALSE(form.Shown());
}

TEST_F(WallpaperWindowTest, AClickOnThePictureAsks) {
    Open(QSize(60, 40), u"1");
    Answer("Secret");
    QTest::mouseClick(&View(), Qt::LeftButton);
    EXPECT_FALSE(form.Shown());
}

TEST_F(WallpaperWindowTest, AClickBesideThePictureAsks) {
    Open(QSize(60, 40), u"0");
    const QRect bar = Window().findChild<QMenuBar*>()->geometry();
    for (const auto& [clicked, place] : {std::pair<QWidget*, QPoint>{&View(), {2, 2}},
                                         {&View(), {View().width() - 2, View().height() - 2}},
                                         {&Window(), {bar.right() - 2, bar.center().y()}}}) {
        form.Show();
        test::Settle();
        Answer("wrong");
        ExpectWrong(u"wrong");
        QTest::mouseClick(clicked, Qt::LeftButton, {}, place);
        EXPECT_EQ(program.user.Messages().size(), ++asked) << place.x();
        EXPECT_TRUE(form.Shown());
    }
}

TEST_F(WallpaperWindowTest, TheWindowManagersCloseAsks) {
    Open(QSize(60, 40), u"1");
    Answer("");
    ExpectWrong(u"");
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(form.Shown());
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(WallpaperWindowTest, TheBarIsReachedByItsLetters) {
    Open(QSize(60, 40), u"0");
    QTest::keyClick(&Window(), Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(app.Settings.WallpaperNumber, u"1");
    EXPECT_TRUE(form.Shown());
    Answer("Secret");
    QTest::keyClick(&Window(), Qt::Key_X, Qt::AltModifier);
    EXPECT_FALSE(form.Shown());
}

} // namespace
} // namespace korvane
