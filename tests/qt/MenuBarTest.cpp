#include "QtSupport.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "platform/qt/binder/QtFormHost.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace korvane {
namespace {

constexpr MenuEntry kEntries[] = {
    {0, "mnuFile", u"&File", ""},
    {1, "mnuFile_Save", u"&Save", "Ctrl+S"},
    {1, "mnuFile_SaveAs", u"Save &as ...    ( F10 )", ""},
    {0, "mnuExport", u"Exp&ort", ""},
    {1, "mnuSelAll", u"Mark all", "Ctrl+A"},
    {1, "mnuUnTick", u"Unmark all", "Ctrl+U"},
    {1, "mnuAddRows", u"Add rows", "Ctrl+Y"},
    {1, "mnuDelete", u"Mark row", "Ctrl+Shift+F3"},
    {0, "mnuSideBar", u"&SideBar", ""},
};

class frmBar : public Form {
public:
    explicit frmBar(FormHost& host) : Form(host, "frmBar", u"") {
        OfficeMenu1.Chosen = [this](std::string_view name) { chosen.emplace_back(name); };
    }
    Menu OfficeMenu1{*this, "OfficeMenu1", kEntries};
    TextBox txtFind{*this, "txtFind", u"some text"};
    std::vector<std::string> chosen;
};

std::unique_ptr<QWidget> MakeBar() {
    auto window = std::make_unique<QMainWindow>();
    window->menuBar()->setObjectName("OfficeMenu1");
    auto* field = new QLineEdit(window.get());
    field->setObjectName("txtFind");
    window->setCentralWidget(field);
    return window;
}

constexpr FormEntry kForms[] = {{"frmBar", MakeBar}};

class MenuBarTest : public testing::Test {
protected:
    void SetUp() override {
        form.Show();
        host.WidgetOf(form)->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(host.WidgetOf(form)));
        Field().setFocus();
    }
    QMenuBar& Bar() { return *host.WidgetOf(form)->findChild<QMenuBar*>(); }
    QLineEdit& Field() { return *host.WidgetOf(form)->findChild<QLineEdit*>(); }
    QAction& Entry(const char* name) { return *host.WidgetOf(form)->findChild<QAction*>(name); }

    QtFormHost host{kForms};
    frmBar form{host};
};

TEST_F(MenuBarTest, HoldsAllEntriesInTheirOrder) {
    QStringList top;
    for (const QAction* action : Bar().actions())
        top << action->text();
    EXPECT_EQ(top, (QStringList{"&File", "Exp&ort", "&SideBar"}));
    const QMenu* file = Bar().actions()[0]->menu();
    ASSERT_NE(file, nullptr);
    ASSERT_EQ(file->actions().size(), 2);
    EXPECT_EQ(file->actions()[1]->text(), QString("Save &as ...    ( F10 )"));
}

TEST_F(MenuBarTest, TellsWhichEntryWasChosen) {
    Entry("mnuFile_Save").trigger();
    Entry("mnuSideBar").trigger();
    EXPECT_EQ(form.chosen, (std::vector<std::string>{"mnuFile_Save", "mnuSideBar"}));
}

TEST_F(MenuBarTest, ItsKeysWorkWhereverTheKeyboardIs) {
    QTest::keyClick(&Field(), Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(&Field(), Qt::Key_F3, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(form.chosen, (std::vector<std::string>{"mnuFile_Save", "mnuDelete"}));
}

TEST_F(MenuBarTest, TheLetterOfAnEntryOnTheBarChoosesItOnce) {
    for (int time = 1; time <= 3; ++time) {
        QTest::keyClick(&Field(), Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(form.chosen, std::vector<std::string>(static_cast<std::size_t>(time), "mnuSideBar"));
    }
}

TEST_F(MenuBarTest, AKeyOfTheMenuIsNotTheFields) {
    QTest::keyClick(&Field(), Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(form.chosen, (std::vector<std::string>{"mnuUnTick"}));
    EXPECT_EQ(Field().text(), QString("some text"));
}

TEST_F(MenuBarTest, TheKeysOfAnEditedTextAreItsOwn) {
    QTest::keyClick(&Field(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Field().selectedText(), QString("some text"));
    QTest::keyClick(&Field(), Qt::Key_Delete);
    EXPECT_EQ(Field().text(), QString());
    QTest::keyClick(&Field(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Field().text(), QString("some text"));
    QTest::keyClick(&Field(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Field().text(), QString());
    EXPECT_TRUE(form.chosen.empty());
}

TEST_F(MenuBarTest, TheKeysOfALongTextAreItsOwnToo) {
    QPlainTextEdit lines(&Field());
    lines.setPlainText("one");
    lines.show();
    lines.setFocus();
    QTest::keyClick(&lines, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&lines, Qt::Key_Delete);
    EXPECT_EQ(lines.toPlainText(), QString());
    QTest::keyClick(&lines, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&lines, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(lines.toPlainText(), QString());
    EXPECT_TRUE(form.chosen.empty());
}

TEST_F(MenuBarTest, WhereNoTextIsEditedTheKeysAreTheMenus) {
    Bar().setFocus();
    QTest::keyClick(&Bar(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Bar(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(form.chosen, (std::vector<std::string>{"mnuSelAll", "mnuAddRows"}));
}

TEST_F(MenuBarTest, AKeyThatTheMenuDoesNotBindIsTheFields) {
    Field().selectAll();
    QTest::keyClick(&Field(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Field().text(), QString());
    EXPECT_TRUE(form.chosen.empty());
}

TEST_F(MenuBarTest, ACheckMarkIsTheMenusWord) {
    form.OfficeMenu1.SetChecked("mnuSelAll", true);
    EXPECT_TRUE(Entry("mnuSelAll").isChecked());
    Entry("mnuSelAll").trigger();
    EXPECT_TRUE(Entry("mnuSelAll").isChecked());
    form.OfficeMenu1.SetChecked("mnuSelAll", false);
    EXPECT_FALSE(Entry("mnuSelAll").isChecked());
}

TEST_F(MenuBarTest, ItsFontIsAlsoItsMenus) {
    form.OfficeMenu1.Font = FontSpec{u"DejaVu Serif", 14, false};
    EXPECT_EQ(Bar().font().pointSize(), 14);
    EXPECT_EQ(Bar().actions()[0]->menu()->font().family(), QString("DejaVu Serif"));
}

TEST_F(MenuBarTest, NothingIsEverDisabled) {
    for (const QAction* action : Bar().findChildren<QAction*>())
        EXPECT_TRUE(action->isEnabled());
}

} // namespace
} // namespace korvane
