#include "QtSupport.h"
#include "platform/qt/binder/QtFormHost.h"
#include "support/TestApp.h"
#include "text/find/frmFindString.h"

#include <gtest/gtest.h>

#include <QLineEdit>

namespace korvane {
namespace {

/// Tests the window of the search with its real widgets.
class FindWindowTest : public testing::Test {
protected:
    void Open() {
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
    void Type(const char* text) {
        QTest::keyClicks(Window().focusWidget(), text);
        test::Settle();
    }

    TestApp outside;
    QtFormHost host{KorvaneForms()};
    App app{{outside.files, outside.user, outside.clipboard, outside.clock, outside.screen, outside.shell,
             outside.instance, host, [] { return nullptr; }}};
    Form owner{outside.user, "owner", u""};
    TextControl text{owner, "text"};
    frmFindString form{app, text};
};

TEST_F(FindWindowTest, DelimitersThatAreTypedKeepTheControlCharactersBeforeThem) {
    const Text before = u"'\",.;:#/()[]{} \t\f\n\r";
    app.Settings.WordDelimiters = before;
    Open();
    auto& box = Part<QLineEdit>("txtWordDelimiters");
    box.setFocus();
    Key(Qt::Key_End);
    Type("+=");
    EXPECT_EQ(form.txtWordDelimiters.Text.Get(), before + u"+=");
    EXPECT_EQ(app.Settings.WordDelimiters, before + u"+=");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Home);
    Type("*");
    EXPECT_EQ(app.Settings.WordDelimiters, u"*" + before + u"+");
}

TEST_F(FindWindowTest, WhatIsTypedIsFoundAgainAndAgainWithReturn) {
    text.SetAll(u"one two one");
    text.SetSelStart(0);
    app.Settings.FindOptionB = 1;
    Open();
    Type("one");
    for (const int place : {0, 8}) {
        Key(Qt::Key_Return);
        EXPECT_EQ(text.SelStart(), place);
        EXPECT_EQ(text.SelText(), u"one");
    }
    EXPECT_EQ(form.txtFindString.All(), u"one");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form.Shown());
}

} // namespace
} // namespace korvane
