#include "platform/qt/binder/QtFormHost.h"

#include "QtSupport.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

namespace korvane {
namespace {

class frmAsk : public Form {
public:
    explicit frmAsk(FormHost& host, std::string_view name = "frmAsk") : Form(host, name, u"Ask") {
        cmdOk.Default = true;
        cmdCancel.Cancel = true;
        cmdOk.Click = [this] { Answer("ok"); };
        cmdOther.Click = [this] { Answer("other"); };
        cmdCancel.Click = [this] { Answer("cancel"); };
    }

    TextBox txtName{*this, "txtName"};
    CommandButton cmdOk{*this, "cmdOk", u"&Ok"};
    CommandButton cmdOther{*this, "cmdOther", u"O&ther"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override {
        ++loads;
        txtName.SetFocus();
    }
    bool QueryUnload() override { return mayClose; }
    void Unload() override { ++unloads; }
    void Activate() override {
        ++activations;
        if (onActivate) onActivate();
    }
    void Resize() override { ++resizes; }

    void Answer(const char* with) {
        answer = with;
        Close();
    }

    std::function<void()> onActivate;
    std::string answer;
    bool mayClose = true;
    int loads = 0;
    int unloads = 0;
    int activations = 0;
    int resizes = 0;
};

template <class WindowT>
std::unique_ptr<QWidget> MakeAsk() {
    auto window = std::make_unique<WindowT>();
    window->resize(200, 100);
    int top = 0;
    for (const char* name : {"cmdOk", "cmdOther", "cmdCancel"}) {
        auto* button = new QPushButton(window.get());
        button->setObjectName(name);
        button->move(0, top += 30);
    }
    (new QLineEdit(window.get()))->setObjectName("txtName");
    return window;
}

std::unique_ptr<QWidget> MakeFrequent() {
    auto window = MakeAsk<QDialog>();
    window->setProperty("madeAhead", true);
    return window;
}

constexpr FormEntry kForms[] = {
    {"frmAsk", MakeAsk<QDialog>}, {"frmMain", MakeAsk<QMainWindow>}, {"frmFrequent", MakeFrequent}};

class QtFormHostTest : public testing::Test {
protected:
    /// Calls `act` as soon as the window is shown.
    void Then(const std::function<void()>& act) { QTimer::singleShot(0, act); }
    QWidget& Window() { return *host.WidgetOf(form); }
    QWidget& Widget(const char* name) { return *Window().findChild<QWidget*>(name); }
    void Press(int key) { QTest::keyClick(Window().focusWidget(), Qt::Key(key)); }

    QtFormHost host{kForms};
    frmAsk form{host};
};

TEST_F(QtFormHostTest, AModalWindowReturnsWhenItHasClosed) {
    Then([this] {
        EXPECT_TRUE(Window().isModal());
        QTest::mouseClick(&Widget("cmdOther"), Qt::LeftButton);
    });
    form.ShowModal();
    EXPECT_EQ(form.answer, "other");
    EXPECT_FALSE(form.Shown());
    EXPECT_EQ(host.WidgetOf(form), nullptr);
}

TEST_F(QtFormHostTest, ALookThatWasMadeAheadIsThatOfTheNextOpeningAlone) {
    host.MakeAhead("frmAsk");
    host.MakeAhead("noSuchForm");
    EXPECT_TRUE(host.IsMadeAhead("frmAsk"));
    EXPECT_FALSE(host.IsMadeAhead("noSuchForm"));
    for (int opening = 0; opening < 2; ++opening) {
        Then([this] {
            EXPECT_FALSE(host.IsMadeAhead("frmAsk"));
            QTest::mouseClick(&Widget("cmdOther"), Qt::LeftButton);
        });
        form.answer.clear();
        form.ShowModal();
        EXPECT_EQ(form.answer, "other");
    }
}

TEST_F(QtFormHostTest, AWindowThatOpensOftenIsMadeAgainSoonAfterItHasClosed) {
    frmAsk frequent(host, "frmFrequent");
    frequent.Show();
    EXPECT_FALSE(host.IsMadeAhead("frmFrequent"));
    frequent.Close();
    EXPECT_FALSE(host.IsMadeAhead("frmFrequent"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return host.IsMadeAhead("frmFrequent"); }));
    form.Show();
    form.Close();
    EXPECT_FALSE(host.IsMadeAhead("frmAsk"));
}

TEST_F(QtFormHostTest, TheWishForTheKeyboardOfALoadingWindowIsKept) {
    Then([this] {
        EXPECT_EQ(Window().focusWidget()->objectName(), QString("txtName"));
        form.Close();
    });
    form.ShowModal();
}

TEST_F(QtFormHostTest, ReturnPressesTheDefaultButton) {
    Then([this] { Press(Qt::Key_Return); });
    form.ShowModal();
    EXPECT_EQ(form.answer, "ok");
}

TEST_F(QtFormHostTest, ReturnPressesTheButtonThatHasTheKeyboard) {
    Then([this] {
        Widget("cmdOther").setFocus();
        Press(Qt::Key_Return);
    });
    form.ShowModal();
    EXPECT_EQ(form.answer, "other");
}

TEST_F(QtFormHostTest, EscPressesTheCancelButton) {
    Then([this] { Press(Qt::Key_Escape); });
    form.ShowModal();
    EXPECT_EQ(form.answer, "cancel");
}

TEST_F(QtFormHostTest, EscDoesNothingWhereTheCancelButtonCannotBePressed) {
    form.cmdCancel.Visible = false;
    Then([this] {
        Press(Qt::Key_Escape);
        EXPECT_TRUE(form.Shown());
        form.Close();
    });
    form.ShowModal();
    EXPECT_EQ(form.answer, "");
}

TEST_F(QtFormHostTest, TheCloseBoxAsksTheWindow) {
    form.mayClose = false;
    form.Show();
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(form.unloads, 0);
    form.mayClose = true;
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(form.unloads, 1);
    EXPECT_EQ(host.WidgetOf(form), nullptr);
}

TEST_F(QtFormHostTest, AWindowThatGoesAwayLeavesTheScreen) {
    QPointer<QWidget> window;
    {
        frmAsk other(host);
        other.Show();
        window = host.WidgetOf(other);
        ASSERT_TRUE(window->isVisible());
    }
    test::Settle();
    EXPECT_TRUE(window.isNull());
}

TEST_F(QtFormHostTest, ThePlaceGoesBothWaysAndKeepsItsTwips) {
    form.Left = Twips{1507};
    form.Top = Twips{3000};
    form.Width = Twips{4502};
    form.Height = Twips{3000};
    form.Show();
    test::Settle();
    EXPECT_EQ(Window().size(), QSize(300, 200));
    EXPECT_EQ(Window().pos(), QPoint(100, 200));
    EXPECT_EQ(form.Width.Get(), Twips{4502});
    Window().resize(320, 200);
    test::Settle();
    EXPECT_EQ(form.Width.Get(), Twips{4800});
    EXPECT_EQ(form.Height.Get(), Twips{3000});
    EXPECT_GT(form.resizes, 0);
    form.Top = Twips{0};
    form.Left = Twips{0};
    EXPECT_EQ(Window().pos(), QPoint(0, 0));
}

TEST_F(QtFormHostTest, AnActivatedWindowHasTheKeyboardByThen) {
    form.onActivate = [this] { EXPECT_EQ(QApplication::focusWidget(), &Widget("txtName")); };
    form.Show();
    EXPECT_EQ(form.activations, 0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    test::Settle();
    EXPECT_EQ(form.activations, 1);
}

TEST_F(QtFormHostTest, KeysThatComeBeforeTheHandlerOfTheActivationGoWhereItPutsTheKeyboard) {
    form.onActivate = [this] { form.txtName.SetFocus(); };
    form.Show();
    test::Settle();
    form.cmdOther.SetFocus();
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Window(), &activated);
    for (const char16_t letter : {u'a', u'b'}) {
        QKeyEvent key(QEvent::KeyPress, letter, Qt::NoModifier, QString(QChar(letter)));
        QCoreApplication::sendEvent(Window().windowHandle(), &key);
    }
    EXPECT_EQ(form.txtName.Text.Get(), u"");
    test::Settle();
    EXPECT_EQ(form.txtName.Text.Get(), u"ab");
}

TEST_F(QtFormHostTest, AKeyOfACommandIsNotKeptForAWindowThatIsNotActivatedYet) {
    int keys = 0;
    form.txtName.KeyDown = [&keys](KeyEvent&) { ++keys; };
    form.Show();
    test::Settle();
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Window(), &activated);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, "\x13");
    QCoreApplication::sendEvent(Window().windowHandle(), &key);
    EXPECT_EQ(keys, 1);
}

TEST_F(QtFormHostTest, NoKeyOvertakesOneThatIsKept) {
    std::vector<int> keys;
    form.txtName.KeyDown = [&keys](KeyEvent& key) { keys.push_back(key.code); };
    form.Show();
    test::Settle();
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Window(), &activated);
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* text;
    } typed[] = {{Qt::Key_Home, {}, ""},
                 {Qt::Key_A, {}, "a"},
                 {Qt::Key_F5, {}, ""},
                 {Qt::Key_S, Qt::ControlModifier, "\x13"}};
    for (const auto& [code, modifiers, text] : typed) {
        QKeyEvent key(QEvent::KeyPress, code, modifiers, text);
        QCoreApplication::sendEvent(Window().windowHandle(), &key);
    }
    EXPECT_EQ(keys, std::vector<int>());
    test::Settle();
    EXPECT_EQ(keys, (std::vector<int>{36, 65, 116, 83}));
}

TEST_F(QtFormHostTest, AHandlerThatTakesLongIsStoppedByTheKeysOfItsButton) {
    std::vector<int> keys;
    const auto press = [this](Qt::Key code, const char* text) {
        QKeyEvent key(QEvent::KeyPress, code, Qt::NoModifier, text);
        QCoreApplication::sendEvent(Window().windowHandle(), &key);
    };
    form.cmdOther.KeyDown = [&keys](KeyEvent& key) {
        keys.push_back(key.code);
        key.consumed = true;
    };
    form.onActivate = [&] {
        press(Qt::Key_Escape, "\x1b");
        EXPECT_EQ(keys, std::vector<int>()) << "no button has got the keyboard yet";
        form.cmdOther.SetFocus();
        press(Qt::Key_Space, " ");
        press(Qt::Key_A, "a");
        press(Qt::Key_Escape, "\x1b");
        EXPECT_EQ(keys, std::vector<int>{Key::Escape}) << "a blank may belong to a text";
    };
    form.Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    test::Settle();
    EXPECT_EQ(keys, (std::vector<int>{Key::Escape, Key::Escape, Key::Space, 'A'}));
}

TEST_F(QtFormHostTest, AShortcutWaitsForTheKeysThatAreKept) {
    form.Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    test::Settle();
    QAction save;
    save.setShortcut(QKeySequence("Ctrl+S"));
    Window().addAction(&save);
    std::vector<Text> saved;
    QObject::connect(&save, &QAction::triggered, [&] { saved.push_back(form.txtName.Text.Get()); });
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Window(), &activated);
    // This is the way of keys from the window system, on which shortcuts come first.
    QWindow* const handle = Window().windowHandle();
    qt_handleKeyEvent(handle, QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    qt_handleKeyEvent(handle, QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, "\x13");
    EXPECT_EQ(saved, std::vector<Text>());
    test::Settle();
    EXPECT_EQ(saved, std::vector<Text>{u"a"});
    qt_handleKeyEvent(handle, QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, "\x13");
    EXPECT_EQ(saved.size(), 2u);
}

TEST_F(QtFormHostTest, AWindowThatClosesWhenItIsActivatedTakesItsKeysAlong) {
    form.onActivate = [this] { form.Close(); };
    form.Show();
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Window(), &activated);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    QCoreApplication::sendEvent(Window().windowHandle(), &key);
    test::Settle();
    EXPECT_FALSE(form.Shown());
    EXPECT_EQ(form.answer, "");
}

TEST_F(QtFormHostTest, AWindowWithoutAPlaceHasTheSizeOfItsLook) {
    form.Show();
    test::Settle();
    EXPECT_EQ(Window().size(), QSize(200, 100));
    EXPECT_EQ(form.Width.Get(), Twips{3000});
}

TEST_F(QtFormHostTest, AWindowWithoutALookDoesNotHoldTheProgram) {
    Form unknown(host, "frmUnknown", u"");
    unknown.ShowModal();
    EXPECT_EQ(host.WidgetOf(unknown), nullptr);
}

TEST_F(QtFormHostTest, AMainWindowRunsUntilItHasClosed) {
    frmAsk main(host, "frmMain");
    main.Show();
    Then([&main] { main.Close(); });
    host.RunUntilClosed(main);
    EXPECT_EQ(main.unloads, 1);
}

TEST_F(QtFormHostTest, RaisingBringsAWindowBack) {
    form.Show();
    Window().showMinimized();
    host.Raise(form);
    EXPECT_FALSE(Window().isMinimized());
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(QtFormHostTest, ARaisedWindowStaysBelowWhatBlocksIt) {
    frmAsk main(host, "frmMain");
    main.Show();
    test::Settle();
    Then([&] {
        QDialog box(&Window());
        box.setModal(true);
        box.show();
        test::Settle();
        host.Raise(main);
        test::Settle();
        EXPECT_EQ(QApplication::activeWindow(), &box);
        box.close();
        test::Settle();
        host.Raise(main);
        test::Settle();
        EXPECT_EQ(QApplication::activeWindow(), &Window());
        form.Close();
        main.Close();
    });
    form.ShowModal();
}

TEST_F(QtFormHostTest, AnEntryOfAPopUpIsChosen) {
    constexpr MenuEntry entries[] = {
        {0, "mnuFirst", u"First", ""}, {0, "", u"", ""}, {0, "mnuSecond", u"Second", ""}};
    Menu menu(form, "mnuPopupMenu", entries);
    std::string chosen;
    menu.Chosen = [&chosen](std::string_view name) { chosen = name; };
    Then([] {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(popup, nullptr);
        ASSERT_EQ(popup->actions().size(), 3);
        EXPECT_TRUE(popup->actions()[1]->isSeparator());
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
    });
    host.PopUp(menu);
    EXPECT_EQ(chosen, "mnuSecond");
}

} // namespace
} // namespace korvane
