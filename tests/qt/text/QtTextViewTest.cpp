#include "platform/qt/text/QtTextView.h"

#include "MirrorCheck.h"
#include "QtSupport.h"
#include "controls/Form.h"
#include "platform/qt/text/TextClipboard.h"
#include "platform/qt/text/TextControlAdaptor.h"
#include "platform/qt/text/TextItem.h"
#include "support/RandomDocument.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTextBlock>

namespace korvane {
namespace {

using test::Settle;

class QtTextViewTest : public testing::Test {
protected:
    QtTextViewTest() {
        view.resize(600, 400);
        adaptor = new TextControlAdaptor(control, view);
        adaptor->WriteAll();
        view.show();
        view.activateWindow();
        view.setFocus();
        Settle();
    }
    ~QtTextViewTest() override {
        EXPECT_EQ(test::FaultOf(const_cast<TextMirror&>(view.Mirror())), "");
        adaptor->Detach();
    }

    void Key(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(&view, static_cast<Qt::Key>(key), held);
        Settle();
    }
    void Type(const char* text) {
        QTest::keyClicks(&view, text);
        Settle();
    }
    void Compose(const QString& preedit, const QString& commit = {}) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(&view, &event);
        Settle();
    }
    /// The point in the view at the place, a little to the right.
    QPoint PointAt(doc::Pos place) {
        view.ShowText();
        return view.mapFromScene(view.CursorAt(place).center() + QPointF(2, 0));
    }
    void Click(const QPoint& point, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, held, point);
        Settle();
    }
    std::string All() const { return ToUtf8(control.All()); }
    QString Shown() {
        view.ShowText();
        return view.Mirror().Current().toRawText();
    }
    std::pair<int, int> Selection() const { return {control.SelStart(), control.SelLength()}; }
    void Drop(doc::Pos place, QMimeData& data) {
        const QPoint point = PointAt(place);
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &enter);
        QDragMoveEvent move(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &move);
        QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &drop);
        Settle();
    }
    /// A text `<abcd>` whose letters are a field.
    int MakeField() {
        control.SetAll(u"<>");
        control.SetSelStart(1);
        control.FieldInsert(u"abcd");
        Settle();
        return control.FieldNext(0);
    }
    std::string FieldText(int field) {
        control.SetFieldCurrent(field);
        return ToUtf8(control.FieldText());
    }

    ScriptedUser user;
    Form form{user, "Form", u""};
    TextControl control{form, "control"};
    QtTextView view;
    TextControlAdaptor* adaptor = nullptr;
};

// Typing.

TEST_F(QtTextViewTest, TypingGoesThroughTheControl) {
    Type("ab");
    Key(Qt::Key_Return);
    Type("c");
    EXPECT_EQ(All(), "ab\r\nc");
    EXPECT_EQ(Shown(), QStringLiteral(u"ab\u2029c"));
    EXPECT_EQ(Selection(), std::pair(5, 0));
    EXPECT_TRUE(control.DataChanged());
}

TEST_F(QtTextViewTest, AHandlerMayKeepOrChangeWhatIsTyped) {
    control.KeyPress = [](TypedText& typed) {
        if (typed.Is(u'x')) typed.consumed = true;
        if (typed.Is(u'"')) typed.text = u"\u201C";
    };
    Type("ax\"b");
    EXPECT_EQ(control.All(), u"a\u201Cb");
}

TEST_F(QtTextViewTest, AKeyThatAHandlerConsumesWritesNothing) {
    control.KeyDown = [](KeyEvent& key) { key.consumed = key.code == 'B'; };
    Type("abc");
    EXPECT_EQ(All(), "ac");
}

TEST_F(QtTextViewTest, KeysDeleteCharactersAndWords) {
    control.SetAll(u"one two three");
    control.SetSelStart(7);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(All(), "one tw three");
    Key(Qt::Key_Delete);
    EXPECT_EQ(All(), "one twthree");
    Key(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(All(), "one three");
    Key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(All(), "one ");
}

TEST_F(QtTextViewTest, BackspaceJoinsParagraphs) {
    control.SetAll(u"a\r\nb");
    control.SetSelStart(3);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(All(), "ab");
    EXPECT_EQ(Selection(), std::pair(1, 0));
}

TEST_F(QtTextViewTest, AnEmojiIsOneCharacterForKeys) {
    control.SetAll(u"a\xD83D\xDE00");
    control.SetSelStart(3);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(All(), "a");
}

TEST_F(QtTextViewTest, EveryEditIsUndoneByItself) {
    control.SetAll(u"abc");
    control.SetSelStart(3);
    Type("d");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(All(), "abc");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(All(), "abcd");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(All(), "abc");
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(All(), "abcd");
    EXPECT_EQ(Shown(), "abcd");
}

TEST_F(QtTextViewTest, ALockedTextCanBeReadAndCopiedOnly) {
    control.SetAll(u"abc");
    control.Locked = true;
    Type("x");
    Key(Qt::Key_Delete);
    Compose({}, "y");
    EXPECT_EQ(All(), "abc");
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(All(), "abc");
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "abc");
}

// The cursor.

TEST_F(QtTextViewTest, KeysMoveAndSelect) {
    control.SetAll(u"one\r\ntwo");
    Key(Qt::Key_Right);
    EXPECT_EQ(Selection(), std::pair(1, 0));
    Key(Qt::Key_End);
    Key(Qt::Key_Right);
    EXPECT_EQ(Selection(), std::pair(5, 0));
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Selection(), std::pair(3, 2));
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selection(), std::pair(0, 8));
    Type("x");
    EXPECT_EQ(All(), "x");
}

TEST_F(QtTextViewTest, AShiftedSelectionGrowsAtItsMovingEnd) {
    control.SetAll(u"abcdef");
    control.SetSelStart(3);
    Settle();
    Key(Qt::Key_Left, Qt::ShiftModifier);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Selection(), std::pair(1, 2));
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Selection(), std::pair(2, 1));
}

TEST_F(QtTextViewTest, TheMouseSelects) {
    control.SetAll(u"one two");
    Click(PointAt(3));
    EXPECT_EQ(Selection(), std::pair(3, 0));
    Click(PointAt(6), Qt::ShiftModifier);
    EXPECT_EQ(Selection(), std::pair(3, 3));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, PointAt(5));
    EXPECT_EQ(Selection(), std::pair(4, 3));
    // A click within the selection only moves the cursor.
    Click(PointAt(5));
    EXPECT_EQ(Selection(), std::pair(5, 0));
}

TEST_F(QtTextViewTest, AClickBelowTheTextGoesToItsEnd) {
    control.SetAll(u"one\r\ntwo");
    Click({300, 380});
    EXPECT_EQ(Selection(), std::pair(8, 0));
}

TEST_F(QtTextViewTest, WhatTheProgramSelectsIsShown) {
    Text lines;
    for (int i = 0; i < 500; ++i)
        lines += u"line\r\n";
    control.SetAll(lines);
    control.SetSelection(2990, 4);
    Settle();
    EXPECT_TRUE(view.viewport()->rect().contains(PointAt(2994)));
    control.SetSelStart(0);
    Settle();
    EXPECT_TRUE(view.viewport()->rect().contains(PointAt(0)));
}

TEST_F(QtTextViewTest, PageKeysMoveByWhatIsSeen) {
    Text lines;
    for (int i = 0; i < 200; ++i)
        lines += u"line\r\n";
    control.SetAll(lines);
    Settle();
    Key(Qt::Key_PageDown);
    const int down = control.SelStart();
    EXPECT_GT(down, 6 * 10);
    EXPECT_LT(down, 6 * 40);
    Key(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(control.SelStart(), down);
    EXPECT_GT(control.SelLength(), 6 * 10);
    Key(Qt::Key_PageUp);
    Key(Qt::Key_PageUp);
    EXPECT_EQ(Selection(), std::pair(0, 0));
}

// Tables.

TEST_F(QtTextViewTest, TabGoesFromCellToCell) {
    control.SetAll(u"a\r\nb");
    control.SetSelStart(3);
    const int table = control.InsertTable(1, 2);
    control.SetCellText(table, 1, 2, u"two");
    control.SetSelStart(control.CellStart(table, 1, 1) - 1);
    Settle();
    Type("x");
    Key(Qt::Key_Tab);
    EXPECT_EQ(control.SelText(), u"two");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(control.SelText(), u"x");
}

TEST_F(QtTextViewTest, DeletingStopsAtTheEdgeOfACell) {
    const int table = control.InsertTable(1, 2);
    control.SetCellText(table, 1, 2, u"two");
    control.SetSelStart(control.CellStart(table, 1, 2) - 1);
    const std::string before = All();
    Key(Qt::Key_Backspace);
    EXPECT_EQ(All(), before);
    control.SetSelStart(static_cast<int>(control.All().size()));
    Key(Qt::Key_Backspace);
    EXPECT_EQ(All(), before);
}

TEST_F(QtTextViewTest, TheCursorJumpsOverPlacesThatAreNotInTheText) {
    // A table at the start of a text has a block before it that isn't in the text.
    const int table = control.InsertTable(60, 24);
    control.SetCellText(table, 1, 1, u"x");
    control.SetSelStart(0);
    Settle();
    Key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Selection(), std::pair(0, 0));
    Type("y");
    EXPECT_EQ(All().substr(0, 2), "yx");
    // Where a large table is cut there is such a block too.
    const int last = control.CellStart(table, 41, 24) - 1;
    control.SetSelStart(last);
    Settle();
    Key(Qt::Key_Right);
    EXPECT_EQ(control.SelStart(), last + 2);
    Key(Qt::Key_Left);
    EXPECT_EQ(control.SelStart(), last);
}

// Input methods.

TEST_F(QtTextViewTest, AnInputMethodWritesThroughTheControl) {
    control.SetAll(u"ab");
    control.SetSelStart(1);
    Compose("ni");
    EXPECT_EQ(All(), "ab");
    Compose("nih");
    Compose({}, QStringLiteral(u"\u4F60"));
    EXPECT_EQ(control.All(), u"a\u4F60b");
    EXPECT_EQ(Selection(), std::pair(2, 0));
    control.Undo();
    EXPECT_EQ(All(), "ab");
}

TEST_F(QtTextViewTest, AnInputMethodReplacesTheSelection) {
    control.SetAll(u"abcd");
    control.SetSelection(1, 2);
    Settle();
    Compose("x");
    EXPECT_EQ(All(), "ad");
    Compose({}, "y");
    EXPECT_EQ(All(), "ayd");
}

TEST_F(QtTextViewTest, AnInputMethodReplacesWhatIsAroundTheCursor) {
    control.SetAll(u"abcd");
    control.SetSelStart(3);
    Settle();
    QInputMethodEvent event;
    event.setCommitString("XY", -2, 2);
    QCoreApplication::sendEvent(&view, &event);
    EXPECT_EQ(All(), "aXYd");
    EXPECT_EQ(view.inputMethodQuery(Qt::ImSurroundingText).toString(), "aXYd");
    EXPECT_EQ(view.inputMethodQuery(Qt::ImCursorPosition).toInt(), 3);
}

} // namespace
} // namespace korvane
