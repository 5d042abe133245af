#include "platform/qt/binder/ToolBarKeys.h"

#include "QtSupport.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>

namespace korvane {
namespace {

class ToolBarKeysTest : public testing::Test {
protected:
    ToolBarKeysTest() {
        window.setCentralWidget(new QWidget);
        for (QLineEdit** field : {&first, &second})
            *field = new QLineEdit(window.centralWidget());
        for (const char* name : {"one", "two", "three"})
            bar->addAction(name);
        new ToolBarKeys(*bar);
        window.resize(600, 300);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QToolButton& Button(int index) {
        return *qobject_cast<QToolButton*>(bar->widgetForAction(bar->actions().at(index)));
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        test::Settle();
    }

    QMainWindow window;
    QLineEdit* first = nullptr;
    QLineEdit* second = nullptr;
    QToolBar* bar = window.addToolBar("bar");
};

TEST_F(ToolBarKeysTest, TabComesToOneButtonBeforeTheFields) {
    Button(0).setFocus();
    Key(Qt::Key_Tab);
    EXPECT_TRUE(first->hasFocus());
    Key(Qt::Key_Tab);
    EXPECT_TRUE(second->hasFocus());
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Button(0).hasFocus());
}

TEST_F(ToolBarKeysTest, TheArrowsGoAlongTheBarAndTabComesBackToTheLastButton) {
    Button(0).setFocus();
    Key(Qt::Key_Right);
    EXPECT_TRUE(Button(1).hasFocus());
    Key(Qt::Key_End);
    EXPECT_TRUE(Button(2).hasFocus());
    Key(Qt::Key_Right);
    EXPECT_TRUE(Button(0).hasFocus());
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);
    EXPECT_TRUE(Button(1).hasFocus());
    Key(Qt::Key_Tab);
    EXPECT_TRUE(first->hasFocus());
    Key(Qt::Key_Backtab);
    EXPECT_TRUE(Button(1).hasFocus());
}

TEST_F(ToolBarKeysTest, ReturnAndSpacePressTheButton) {
    int pressed = 0;
    QObject::connect(bar->actions().at(1), &QAction::triggered, &window, [&pressed] { ++pressed; });
    Button(1).setFocus();
    Key(Qt::Key_Return);
    Key(Qt::Key_Space);
    EXPECT_EQ(pressed, 2);
}

TEST_F(ToolBarKeysTest, AButtonThatIsOffIsPassedOver) {
    bar->actions().at(0)->setEnabled(false);
    bar->actions().at(1)->setVisible(false);
    second->setFocus();
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Button(2).hasFocus());
}

TEST_F(ToolBarKeysTest, AClickLeavesTheKeyboardWhereItIs) {
    first->setFocus();
    QTest::mouseClick(&Button(1), Qt::LeftButton);
    EXPECT_TRUE(first->hasFocus());
}

} // namespace
} // namespace korvane
