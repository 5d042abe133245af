#include "platform/qt/binder/DeskCover.h"

#include "QtSupport.h"

#include <gtest/gtest.h>

#include <QDialog>

namespace korvane {
namespace {

/// Remembers which events of the user it got.
class Window : public QDialog {
public:
    QList<QEvent::Type> got;

protected:
    bool event(QEvent* event) override {
        const bool ofUser = event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyPress;
        if (ofUser) got << event->type();
        return QDialog::event(event);
    }
};

/// Counts how often a window is raised.
class Raises : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ZOrderChange) ++count;
        return false;
    }
};

class DeskCoverTest : public testing::Test {
protected:
    DeskCoverTest() { window.setWindowModality(Qt::ApplicationModal); }
    void Show() {
        window.show();
        test::Settle();
    }
    /// The windows of the cover on the other screens.
    QList<QWidget*> Covers() const {
        QList<QWidget*> covers;
        for (QWidget* widget : window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (widget->isWindow() && widget->isVisible()) covers << widget;
        }
        return covers;
    }

    Window window;
    DeskCover& cover = *new DeskCover(window);
};

TEST_F(DeskCoverTest, TheWindowHasNoFrameAndStaysAboveAllOthers) {
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(DeskCoverTest, EachOtherScreenIsCovered) {
    Show();
    cover.Cover({QRect(2000, 0, 500, 400), QRect(2500, 0, 300, 200)});
    const QList<QWidget*> covers = Covers();
    ASSERT_EQ(covers.size(), 2);
    EXPECT_EQ(covers[0]->geometry(), QRect(2000, 0, 500, 400));
    EXPECT_EQ(covers[1]->geometry(), QRect(2500, 0, 300, 200));
    EXPECT_TRUE(covers[0]->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(covers[0]->grab().toImage().pixelColor(10, 10), QColor(Qt::black));
}

TEST_F(DeskCoverTest, WhatTheUserDoesOnACoverReachesTheWindow) {
    Show();
    cover.Cover({QRect(2000, 0, 500, 400)});
    QTest::mouseClick(Covers().constFirst(), Qt::LeftButton);
    EXPECT_EQ(window.got, QList<QEvent::Type>{QEvent::MouseButtonRelease});
    QTest::keyPress(Covers().constFirst(), Qt::Key_A);
    EXPECT_TRUE(window.got.contains(QEvent::KeyPress));
}

TEST_F(DeskCoverTest, TheCoversGoWithTheWindow) {
    Show();
    cover.Cover({QRect(2000, 0, 500, 400)});
    window.hide();
    EXPECT_TRUE(Covers().isEmpty());
}

TEST_F(DeskCoverTest, TheCoversAreRaisedWithTheWindow) {
    Show();
    cover.Cover({QRect(2000, 0, 500, 400)});
    Raises raises;
    Covers().constFirst()->installEventFilter(&raises);
    window.raise();
    EXPECT_EQ(raises.count, 1);
}

TEST_F(DeskCoverTest, TheWindowKeepsTheKeyboardWhileItIsShown) {
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
    Show();
    EXPECT_EQ(QWidget::keyboardGrabber(), &window);
    window.hide();
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
}

TEST_F(DeskCoverTest, AQuestionAboveTheWindowGetsTheKeyboard) {
    Show();
    {
        QDialog question(&window);
        question.setModal(true);
        question.show();
        test::Settle();
        EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
        EXPECT_TRUE(question.isActiveWindow());
    }
    test::Settle();
    EXPECT_EQ(QWidget::keyboardGrabber(), &window);
}

} // namespace
} // namespace korvane
