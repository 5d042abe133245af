#include "platform/qt/text/TextAccessible.h"

#include "QtSupport.h"
#include "controls/Form.h"
#include "platform/qt/text/TextControlAdaptor.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using test::Settle;

class TextAccessibleTest : public testing::Test {
protected:
    TextAccessibleTest() {
        view.resize(600, 400);
        adaptor = new TextControlAdaptor(control, view);
        adaptor->WriteAll();
        control.SetAll(u"one\r\ntwo words");
        view.show();
        Settle();
        QAccessible::setActive(true);
    }
    ~TextAccessibleTest() override {
        QAccessible::setActive(false);
        adaptor->Detach();
    }

    QAccessibleInterface& Accessible() { return *QAccessible::queryAccessibleInterface(&view); }
    QAccessibleTextInterface& Read() { return *Accessible().textInterface(); }
    QAccessibleEditableTextInterface& Write() { return *Accessible().editableTextInterface(); }
    std::string All() const { return ToUtf8(control.All()); }

    ScriptedUser user;
    Form form{user, "Form", u""};
    TextControl control{form, "control"};
    QtTextView view;
    TextControlAdaptor* adaptor = nullptr;
};

TEST_F(TextAccessibleTest, TheTextIsReadWithOneCharacterForALineEnd) {
    EXPECT_EQ(Accessible().role(), QAccessible::EditableText);
    EXPECT_EQ(Read().characterCount(), 13);
    EXPECT_EQ(Read().text(0, 13), "one\ntwo words");
    EXPECT_EQ(Read().text(4, 7), "two");
    EXPECT_EQ(Read().text(7, 4), "");
    EXPECT_EQ(Accessible().text(QAccessible::Value), "one\ntwo words");
    QString word;
    int start = 0;
    int end = 0;
    word = Read().textAtOffset(5, QAccessible::WordBoundary, &start, &end);
    EXPECT_EQ(word, "two");
    EXPECT_EQ(start, 4);
}

TEST_F(TextAccessibleTest, TheCursorAndTheSelectionAreReadAndMoved) {
    control.SetSelection(5, 3);
    Settle();
    EXPECT_EQ(Read().cursorPosition(), 7);
    EXPECT_EQ(Read().selectionCount(), 1);
    int start = 0;
    int end = 0;
    Read().selection(0, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(4, 7));
    Read().setCursorPosition(1);
    EXPECT_EQ(control.SelStart(), 1);
    EXPECT_EQ(Read().selectionCount(), 0);
    Read().addSelection(8, 13);
    EXPECT_EQ(control.SelText(), u"words");
    Read().removeSelection(0);
    EXPECT_EQ(control.SelLength(), 0);
}

TEST_F(TextAccessibleTest, TheTextIsEditedThroughTheControl) {
    Write().insertText(4, "new\nline ");
    EXPECT_EQ(All(), "one\r\nnew\r\nline two words");
    Write().deleteText(0, 4);
    EXPECT_EQ(All(), "new\r\nline two words");
    Write().replaceText(0, 3, "old");
    EXPECT_EQ(All(), "old\r\nline two words");
    control.Undo();
    EXPECT_EQ(All(), "new\r\nline two words");
    control.Locked = true;
    EXPECT_TRUE(Accessible().state().readOnly);
    Write().deleteText(0, 4);
    EXPECT_EQ(All(), "new\r\nline two words");
}

TEST_F(TextAccessibleTest, LooksAreToldInStretches) {
    control.SetSelection(5, 3);
    control.SetFontBold(1);
    control.SetFontSize(14);
    int start = 0;
    int end = 0;
    const QString bold = Read().attributes(5, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(4, 7));
    EXPECT_TRUE(bold.contains("font-weight:bold"));
    EXPECT_TRUE(bold.contains("font-size:14pt"));
    EXPECT_TRUE(Read().attributes(8, &start, &end).contains("font-weight:normal"));
    EXPECT_EQ(std::pair(start, end), std::pair(7, 13));
}

TEST_F(TextAccessibleTest, CharactersAreFoundOnTheScreen) {
    const QRect first = Read().characterRect(4);
    const QRect second = Read().characterRect(5);
    EXPECT_GT(second.left(), first.left());
    EXPECT_EQ(first.top(), second.top());
    EXPECT_GT(first.top(), Read().characterRect(0).top());
    EXPECT_EQ(Read().offsetAtPoint(first.center()), 4);
    EXPECT_EQ(Read().offsetAtPoint({-50, -50}), -1);
}

TEST_F(TextAccessibleTest, ATextWithoutAControlIsEmpty) {
    adaptor->Detach();
    EXPECT_EQ(Read().characterCount(), 0);
    EXPECT_EQ(Read().text(0, 5), "");
    EXPECT_EQ(Read().cursorPosition(), 0);
    adaptor = new TextControlAdaptor(control, view);
}

TEST(TextDifference, IsTheOneStretchThatChanged) {
    const auto words = [](const char* before, const char* after) {
        const TextDifference change = DifferenceBetween(before, after);
        return QStringLiteral("%1 -%2 +%3").arg(change.at).arg(change.removed, change.inserted).toStdString();
    };
    EXPECT_EQ(words("", "abc"), "0 - +abc");
    EXPECT_EQ(words("onetwo", "oneytwo"), "3 - +y");
    EXPECT_EQ(words("aaa", "aa"), "2 -a +");
    EXPECT_EQ(words("one two", "one 2"), "4 -two +2");
    EXPECT_EQ(words("abc", "abc"), "3 - +");
}

} // namespace
} // namespace korvane
