#include "QtSupport.h"
#include "platform/qt/binder/QtFormHost.h"
#include "support/TestApp.h"
#include "text/frmViewAndPaste.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QListView>
#include <QPlainTextEdit>

namespace korvane {
namespace {

/// Tests the clipboard's window with its real widgets.
class ClipboardViewTest : public testing::Test {
protected:
    void Open(const Text& contents) {
        outside.clipboard.SetText(contents);
        form.Show();
        form.Activate();
        test::Settle();
    }
    QWidget& Window() { return *host.WidgetOf(form); }
    template <class WidgetT>
    WidgetT& Part(const char* name) {
        return *Window().findChild<WidgetT*>(name);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Window().focusWidget(), key, modifiers);
        test::Settle();
    }

    TestApp outside;
    QtFormHost host{KorvaneForms()};
    App app{{outside.files, outside.user, outside.clipboard, outside.clock, outside.screen, outside.shell,
             outside.instance, host, [] { return nullptr; }}};
    frmViewAndPaste form{app};
};

TEST_F(ClipboardViewTest, ShowsThePlainTextAloneWithTheCommandsInUse) {
    Open(u"one\r\ntwo");
    EXPECT_EQ(Part<QPlainTextEdit>("Text1").toPlainText(), QString("one\ntwo"));
    EXPECT_TRUE(Part<QPlainTextEdit>("Text1").isVisible());
    EXPECT_FALSE(Part<QWidget>("TXTextControl1").isVisible());
    EXPECT_FALSE(Part<QWidget>("RichTextBox1").isVisible());
    EXPECT_FALSE(Part<QWidget>("TmpTextCtrl").isVisible());
    EXPECT_EQ(Part<QGroupBox>("Frame1").title(), QString("> plain text <"));
    EXPECT_EQ(Window().focusWidget(), &Part<QListView>("iGridListBar"));
}

TEST_F(ClipboardViewTest, IsWorkedByKeyboardAlone) {
    Open(u"text");
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(Part<QGroupBox>("Frame1").title(), QString("> full RTF <"));
    Key(Qt::Key_Tab);
    EXPECT_EQ(Window().focusWidget(), &Part<QWidget>("TXTextControl1"));
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.TXTextControl1.SelText(), u"text");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Window().focusWidget(), &Part<QListView>("iGridListBar"));
    Key(Qt::Key_Up);
    Key(Qt::Key_Return);
    EXPECT_FALSE(form.Shown());
    EXPECT_EQ(app.DialogResult, 1);
}

TEST_F(ClipboardViewTest, EscClosesFromTheTextToo) {
    Open(u"text");
    Key(Qt::Key_Tab);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form.Shown());
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(ClipboardViewTest, TakesNoSmallerSizeThanItsLeast) {
    Open(u"text");
    EXPECT_EQ(Window().minimumWidth(), 391);
    EXPECT_EQ(Window().minimumHeight(), 267);
}

} // namespace
} // namespace korvane
