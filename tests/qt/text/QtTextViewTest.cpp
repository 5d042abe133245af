#include "platform/qt/text/QtTextView.h"

#include "MirrorCheck.h"
#include "QtSupport.h"
#include "controls/Form.h"
#include "document/html/Html.h"
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
#include <QScrollBar>
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
        return view.mapFromScene(view.CursorAt(place).center() + QPointF(1, 0));
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

TEST_F(QtTextViewTest, TheUsualKeysForBoldItalicAndUnderlineWork) {
    control.SetAll(u"abc");
    control.SetSelection(0, 3);
    Settle();
    Key(Qt::Key_B, Qt::ControlModifier);
    Key(Qt::Key_I, Qt::ControlModifier);
    Key(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(control.FontBold() + control.FontItalic() + control.FontUnderline(), 3);
    Key(Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(control.FontBold(), 0);
    EXPECT_EQ(All(), "abc");
}

TEST_F(QtTextViewTest, TypingAndDeletingAreUndoneInTheirSteps) {
    control.SetAll(u"abc");
    control.SetSelStart(3);
    Type("d");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Backspace);
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

TEST_F(QtTextViewTest, AnEmptyParagraphBeforeATableHasRoom) {
    control.SetAll(u"\r\n");
    control.SetSelStart(2);
    control.InsertTable(1, 1);
    Settle();
    ASSERT_EQ(control.Store().TableAt(0), std::nullopt);
    ASSERT_NE(control.Store().TableAt(2), std::nullopt);
    const QRectF before = view.CursorAt(0);
    EXPECT_GE(view.CursorAt(2).top(), before.top() + before.height());
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

// Fields, at whose edges nothing may join them by accident.

TEST_F(QtTextViewTest, TypingAtTheEdgesOfAFieldStaysOutside) {
    const int field = MakeField();
    control.SetSelStart(5);
    Type("1");
    EXPECT_EQ(FieldText(field), "abcd");
    control.SetSelStart(1);
    Type("2");
    EXPECT_EQ(FieldText(field), "abcd");
    EXPECT_EQ(All(), "<2abcd1>");
}

TEST_F(QtTextViewTest, TypingAndReturnWithinAFieldStayIn) {
    const int field = MakeField();
    control.SetSelStart(3);
    Type("x");
    Key(Qt::Key_Return);
    EXPECT_EQ(FieldText(field), "abx\r\ncd");
}

TEST_F(QtTextViewTest, AnInputMethodAtTheEndOfAFieldStaysOutside) {
    const int field = MakeField();
    control.SetSelStart(5);
    Settle();
    Compose("x");
    Compose({}, "y");
    EXPECT_EQ(FieldText(field), "abcd");
    EXPECT_EQ(All(), "<abcdy>");
}

TEST_F(QtTextViewTest, OvertypingAFieldDoesNotTakeItsPlaceUnlessWithin) {
    int field = MakeField();
    control.SetSelection(2, 2);
    Settle();
    Type("x");
    EXPECT_EQ(FieldText(field), "axd");
    field = MakeField();
    control.SetSelection(1, 4);
    Settle();
    Type("x");
    EXPECT_EQ(control.FieldNext(0), 0);
    field = MakeField();
    control.SetSelection(3, 3);
    Settle();
    Type("x");
    EXPECT_EQ(FieldText(field), "ab");
}

TEST_F(QtTextViewTest, PastingAndDroppingAtTheEndOfAFieldStaysOutside) {
    const int field = MakeField();
    QGuiApplication::clipboard()->setText("p");
    control.SetSelStart(5);
    Settle();
    Key(Qt::Key_V, Qt::ControlModifier);
    QMimeData data;
    data.setText("d");
    Drop(5, data);
    EXPECT_EQ(FieldText(field), "abcd");
    EXPECT_EQ(All(), "<abcddp>");
}

TEST_F(QtTextViewTest, ACopiedFieldIsAnotherFieldWithTheSameData) {
    const int field = MakeField();
    control.SetFieldType(field, 1);
    control.SetFieldTypeData(field, u"http://a.b");
    control.SetSelection(1, 4);
    Settle();
    Key(Qt::Key_C, Qt::ControlModifier);
    Key(Qt::Key_End, Qt::ControlModifier);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(All(), "<abcd>abcd");
    const int copy = control.FieldNext(field);
    ASSERT_NE(copy, 0);
    EXPECT_EQ(control.FieldTypeData(copy), u"http://a.b");
}

TEST_F(QtTextViewTest, ADeletedFieldComesBackByUndoing) {
    const int field = MakeField();
    control.SetSelection(1, 4);
    Settle();
    Key(Qt::Key_Delete);
    EXPECT_EQ(control.FieldNext(0), 0);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(FieldText(field), "abcd");
}

TEST_F(QtTextViewTest, AFieldKnowsTheMouse) {
    const int field = MakeField();
    std::string told;
    control.FieldEntered = [&](int entered) { told += "+" + std::to_string(entered); };
    control.FieldLeft = [&] { told += "-"; };
    control.FieldClicked = [&](int clicked) { told += "!" + std::to_string(clicked); };
    const std::string number = std::to_string(field);
    const auto move = [&](const QPoint& point) {
        QTest::mouseMove(view.viewport(), point);
        Settle();
    };
    move(PointAt(0));
    move(PointAt(1));
    move(PointAt(4));
    EXPECT_EQ(told, "+" + number);
    move(PointAt(5));
    EXPECT_EQ(told, "+" + number + "-");
    Click(PointAt(4));
    EXPECT_EQ(told, "+" + number + "-+" + number + "!" + number);
    Click(PointAt(0));
    EXPECT_EQ(told.back(), '-');
}

// The clipboard.

TEST_F(QtTextViewTest, FormattedTextIsCopiedAsRtfHtmlAndPlainText) {
    control.SetAll(u"plain bold\r\nx");
    control.SetSelection(6, 4);
    control.SetFontBold(1);
    Settle();
    Key(Qt::Key_C, Qt::ControlModifier);
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(data->data("text/rtf").startsWith("{\\rtf1"));
    EXPECT_EQ(data->data("text/rtf"), data->data("application/rtf"));
    EXPECT_TRUE(data->html().contains("bold"));
    EXPECT_EQ(data->text(), "bold");
    control.SetSelStart(0);
    Settle();
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(All(), "boldplain bold\r\nx");
    control.SetSelection(0, 4);
    EXPECT_EQ(control.FontBold(), 1);
}

TEST_F(QtTextViewTest, HtmlOfOtherProgramsIsPastedWithItsFormats) {
    auto* const data = new QMimeData;
    data->setHtml("<p>one <b>two</b></p>");
    data->setText("one two");
    QGuiApplication::clipboard()->setMimeData(data);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(All().substr(0, 7), "one two");
    control.SetSelection(4, 3);
    EXPECT_EQ(control.FontBold(), 1);
    control.SetSelection(0, 3);
    EXPECT_EQ(control.FontBold(), 0);
}

TEST_F(QtTextViewTest, PlainTextOfSeveralLinesIsPasted) {
    QGuiApplication::clipboard()->setText("a\nb");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(All(), "a\r\nb");
}

TEST_F(QtTextViewTest, CuttingPutsTheTextOnTheClipboard) {
    control.SetAll(u"abc");
    control.SetSelection(1, 1);
    Settle();
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(All(), "ac");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "b");
    control.Undo();
    EXPECT_EQ(All(), "abc");
}

TEST_F(QtTextViewTest, AFormatThatIsOfferedButEmptyIsPassedOver) {
    QMimeData data;
    data.setData("text/rtf", "");
    data.setText("plain");
    EXPECT_EQ(RtfIn(data), "");
    data.setData("text/richtext", "{\\rtf1 x}");
    EXPECT_EQ(RtfIn(data), "{\\rtf1 x}");
}

TEST_F(QtTextViewTest, ATextIsMovedInOneStep) {
    control.SetAll(u"one two three");
    control.SetSelection(0, 4);
    view.MoveSelectionTo(8);
    EXPECT_EQ(All(), "two one three");
    EXPECT_EQ(control.SelText(), u"one ");
    view.MoveSelectionTo(6);
    EXPECT_EQ(All(), "two one three");
    view.MoveSelectionTo(0);
    EXPECT_EQ(All(), "one two three");
    control.Undo();
    control.Undo();
    EXPECT_EQ(All(), "one two three");
    EXPECT_FALSE(control.Undo());
}

TEST_F(QtTextViewTest, FilesThatAreDroppedAreForTheWindow) {
    QMimeData data;
    data.setUrls({QUrl("file:///a.txt")});
    Drop(0, data);
    EXPECT_EQ(All(), "");
}

// Zoom and pages.

/// Where each line of the text begins.
std::vector<int> LineStarts(QTextDocument& document) {
    document.documentLayout()->documentSize();
    std::vector<int> starts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (int line = 0; line < block.layout()->lineCount(); ++line)
            starts.push_back(block.position() + block.layout()->lineAt(line).textStart());
    }
    return starts;
}

TEST_F(QtTextViewTest, PagesHaveTheSameLinesAtEveryZoom) {
    Text text;
    for (int i = 0; i < 120; ++i)
        text += u"Some words that fill more than a line of the page, so that it is broken somewhere in the "
                u"middle of what it says.\r\n";
    control.SetAll(text);
    control.ViewMode = TextControl::kPages;
    Settle();
    const std::vector<int> lines = LineStarts(view.Mirror().Current());
    const int pages = view.Mirror().Current().pageCount();
    EXPECT_GT(pages, 2);
    for (const int zoom : kZoomSteps) {
        control.ZoomFactor = zoom;
        Settle();
        EXPECT_DOUBLE_EQ(view.Zoom(), zoom / 100.0);
        EXPECT_EQ(LineStarts(view.Mirror().Current()), lines) << zoom;
        EXPECT_EQ(view.Mirror().Current().pageCount(), pages) << zoom;
        const doc::Pos place = 700;
        EXPECT_EQ(view.PlaceAt(view.CursorAt(place).center()), place);
    }
}

TEST_F(QtTextViewTest, AFlowingTextIsAsWideAsTheViewAtEveryZoom) {
    control.SetAll(Text(2000, u'x'));
    for (const int zoom : kZoomSteps) {
        control.ZoomFactor = zoom;
        Settle();
        const double width = view.Mirror().Current().pageSize().width() * view.Zoom();
        EXPECT_NEAR(width, std::max<double>(view.viewport()->width(), 24 * view.Zoom()), 1) << zoom;
    }
}

/// Counts the sizes that a widget gets.
class CountedSizes final : public QObject {
public:
    explicit CountedSizes(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize) ++count;
        return false;
    }
    int count = 0;
};

TEST_F(QtTextViewTest, ATextThatIsLargerByAPartOfAPointEndsTheSearchForASize) {
    control.SetAll(u"a\r\nb\r\nc\r\nd\r\ne\r\nf");
    control.SetIndentB(3);
    for (const int zoom : kZoomSteps) {
        control.ZoomFactor = zoom;
        view.resize(600, 3000);
        Settle();
        const double height = view.Mirror().Current().size().height() * view.Zoom();
        const CountedSizes sizes(*view.viewport());
        view.resize(600, static_cast<int>(height) + view.height() - view.maximumViewportSize().height());
        Settle();
        // With a bar and without one, and that is all.
        EXPECT_LT(sizes.count, 5) << zoom << ": " << height;
    }
}

TEST_F(QtTextViewTest, WhatIsReadStaysWhereItIsWhenTheViewBecomesNarrower) {
    Text text;
    for (int i = 0; i < 3000; ++i)
        text += u"words of a paragraph that is longer than a line of the narrow view\r\n";
    control.SetAll(text);
    view.ShowText();
    view.Mirror().Current().documentLayout()->documentSize();
    view.resize(601, 400);
    Settle();
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 2);
    const doc::Pos top = view.PlaceAt(view.mapToScene(0, 0));
    EXPECT_GT(top, 1000u);
    view.resize(300, 400);
    Settle();
    EXPECT_EQ(view.PlaceAt(view.mapToScene(0, 2)), top);
}

TEST_F(QtTextViewTest, NoLineIsInTheGapBetweenPages) {
    Text text;
    for (int i = 0; i < 300; ++i)
        text += u"line\r\n";
    control.SetAll(text);
    control.ViewMode = TextControl::kPages;
    Settle();
    QTextDocument& document = view.Mirror().Current();
    document.documentLayout()->documentSize();
    for (doc::Pos place = 0; place < 1800; place += 6) {
        const QRectF cursor = view.CursorAt(place);
        const int page = view.Pages().PageAt(cursor.top());
        EXPECT_TRUE(view.Pages().Page(page).contains(cursor)) << place;
    }
}

TEST_F(QtTextViewTest, TheCursorTellsItsPageLineAndColumn) {
    Text text;
    for (int i = 0; i < 200; ++i)
        text += u"line\r\n";
    control.SetAll(text);
    control.SetSelStart(6 * 10 + 2);
    CursorPlace place = view.Place();
    EXPECT_EQ(place.line, 11);
    EXPECT_EQ(place.column, 3);
    EXPECT_EQ(place.page, 1);
    control.ViewMode = TextControl::kPages;
    control.SetSelStart(6 * 150);
    Settle();
    view.Mirror().Current().documentLayout()->documentSize();
    place = view.Place();
    EXPECT_GT(place.page, 1);
    EXPECT_EQ(place.column, 1);
    EXPECT_GT(place.pages, 2);
    // The line counts from the top of its page.
    const double top = view.Pages().Page(place.page - 1).top() + view.Pages().Margins().top();
    const double height = view.CursorAt(6 * 150).height();
    EXPECT_NEAR(view.CursorAt(6 * 150).top(), top + (place.line - 1) * height, height / 2);
}

TEST_F(QtTextViewTest, AnotherPageIsShownAtOnce) {
    control.ViewMode = TextControl::kPages;
    control.SetPageSize(doc::Page::Width, 9000);
    control.SetPageSize(doc::Page::MarginLeft, 900);
    Settle();
    EXPECT_NEAR(view.Mirror().Current().pageSize().width(), TextPixels(9000), 0.01);
    EXPECT_NEAR(view.CursorAt(0).left(), TextPixels(900), 0.01);
    control.SetPageSize(doc::Page::MarginRight, 9000);
    Settle();
    EXPECT_GT(view.Mirror().Current().pageSize().width(), view.Pages().Margins().left());
}

TEST_F(QtTextViewTest, ControlCharactersDoNotChangeTheText) {
    control.SetAll(u"a\tb");
    control.SetDataChanged(false);
    control.ControlChars = true;
    Settle();
    EXPECT_TRUE(view.Mirror().Current().defaultTextOption().flags() & QTextOption::ShowTabsAndSpaces);
    EXPECT_EQ(All(), "a\tb");
    EXPECT_FALSE(control.DataChanged());
    control.InsertTable(1, 1);
    Settle();
    EXPECT_TRUE(view.Mirror().Current().defaultTextOption().flags() & QTextOption::ShowTabsAndSpaces);
    control.ControlChars = false;
    EXPECT_FALSE(view.Mirror().Current().defaultTextOption().flags() & QTextOption::ShowTabsAndSpaces);
}

TEST_F(QtTextViewTest, ATextThatGotShorterIsZoomedBeforeItIsShown) {
    control.SetAll(Text(5000, u'x') + u"\r\n" + Text(5000, u'y'));
    Settle();
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    control.SetAll(u"z");
    control.ZoomFactor = 200;
    EXPECT_EQ(Shown(), "z");
}

TEST_F(QtTextViewTest, ASelectionThatEndsInATableLetsTheUserScroll) {
    Text lines;
    for (int i = 0; i < 200; ++i)
        lines += u"line\r\n";
    control.SetAll(lines);
    control.SetSelStart(6);
    control.InsertTable(2, 2);
    control.SetSelection(0, 9);
    Settle();
    view.verticalScrollBar()->setValue(1000);
    view.viewport()->repaint();
    EXPECT_EQ(view.verticalScrollBar()->value(), 1000);
}

// Painting.

int Painted(QtTextView& view, const QColor& colour) {
    Settle();
    const QImage image = view.viewport()->grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

TEST_F(QtTextViewTest, FramesAreDrawnAroundParagraphs) {
    control.SetAll(u"a\r\nb");
    control.BackColor = Colour{0xFFFFFF};
    const int before = Painted(view, Qt::black);
    control.SetFrameStyle(doc::kFrameTop | doc::kFrameBottom | doc::kFrameSingle);
    control.SetFrameLineWidth(45);
    // Two lines, each three pixels high and nearly as long as the view is wide.
    EXPECT_GT(Painted(view, Qt::black) - before, 2 * 2 * (view.viewport()->width() - 40));
}

/// How many points of a column of the picture are black.
int BlackIn(const QImage& image, int column) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        count += image.pixelColor(column, y) == Qt::black ? 1 : 0;
    return count;
}

TEST_F(QtTextViewTest, ThinLinesAreSeenInASmallView) {
    control.BackColor = Colour{0xFFFFFF};
    const auto expectTwoLines = [this](const char* of) {
        for (const int zoom : kZoomSteps) {
            if (zoom > 100) return;
            control.ZoomFactor = zoom;
            Settle();
            const int column = view.mapFromScene(TextPixels(3000), 0).x();
            EXPECT_EQ(BlackIn(view.viewport()->grab().toImage(), column), 2) << of << " at " << zoom;
        }
    };
    control.InsertTable(1, 1);
    control.FormatCells(-1, [](int, int, doc::CellFormat& cell) {
        cell.width = 6000;
        cell.border.fill(5);
    });
    expectTwoLines("the table");
    control.SetAll(u"a");
    control.SetFrameStyle(doc::kFrameTop | doc::kFrameBottom | doc::kFrameSingle);
    control.SetFrameLineWidth(15);
    expectTwoLines("the frame");
}

TEST_F(QtTextViewTest, LinesOfTablesAreDrawn) {
    control.BackColor = Colour{0xFFFFFF};
    const int table = control.InsertTable(2, 2);
    const int before = Painted(view, Qt::black);
    control.FormatCells(table, [](int, int, doc::CellFormat& cell) { cell.border.fill(30); });
    EXPECT_GT(Painted(view, Qt::black) - before, 1000);
}

TEST_F(QtTextViewTest, TheLinesOfATableEndAtTheEndOfAPage) {
    control.BackColor = Colour{0xFFFFFF};
    control.ViewMode = TextControl::kPages;
    const int table = control.InsertTable(100, 1);
    control.FormatCells(table, [](int, int, doc::CellFormat& cell) { cell.border.fill(30); });
    view.ShowText();
    view.Mirror().Current().documentLayout()->documentSize();
    Settle();
    const double x = view.CursorAt(0).left() - 1;
    const double gap = view.Pages().Page(0).bottom() + PageMath::kGap / 2;
    view.centerOn(0, gap);
    Settle();
    const QImage image = view.viewport()->grab().toImage();
    const auto black = [&](double y) {
        const QPoint at = view.mapFromScene(x, y);
        bool found = false;
        for (int beside = -2; beside <= 2; ++beside)
            found = found || image.pixelColor(at.x() + beside, at.y()) == Qt::black;
        return found;
    };
    EXPECT_FALSE(black(gap));
    EXPECT_TRUE(black(gap - PageMath::kGap - view.Pages().Margins().bottom()));
}

TEST_F(QtTextViewTest, EverythingThatADocumentHoldsCanBeDrawn) {
    for (unsigned seed = 1; seed < 12; ++seed) {
        control.SetWhole(doc::RandomDocument(seed));
        control.ViewMode = seed % 2 == 0 ? TextControl::kPages : TextControl::kFlow;
        Settle();
        EXPECT_FALSE(view.grab().isNull());
    }
}

TEST_F(QtTextViewTest, ThePageHasItsColour) {
    control.BackColor = Colour{0x112233};
    EXPECT_GT(Painted(view, QColor(0x33, 0x22, 0x11)), 100000);
}

TEST_F(QtTextViewTest, AViewThatLostItsControlShowsNothing) {
    control.SetAll(u"abc");
    adaptor->Detach();
    EXPECT_EQ(view.Shown(), nullptr);
    Type("x");
    view.grab();
    adaptor = new TextControlAdaptor(control, view);
    adaptor->WriteAll();
    EXPECT_EQ(Shown(), "abc");
}

TEST_F(QtTextViewTest, ATextIsMadeForTheScreenWhenItIsSeenFirst) {
    TextControl hidden(form, "hidden");
    hidden.Visible = false;
    hidden.SetAll(u"abc");
    QtTextView other;
    auto* const its = new TextControlAdaptor(hidden, other);
    its->WriteAll();
    EXPECT_EQ(other.Shown(), nullptr);
    hidden.Left = Twips{300};
    hidden.ZoomFactor = 200;
    hidden.Visible = true;
    ASSERT_EQ(other.Shown(), &hidden);
    EXPECT_EQ(other.Mirror().Current().toRawText(), "abc");
    other.resize(300, 200);
    other.show();
    EXPECT_GE(other.viewport()->x(), 20);
    EXPECT_DOUBLE_EQ(other.Zoom(), 2);
    hidden.Visible = false;
    EXPECT_EQ(other.Shown(), &hidden);
    its->Detach();
}

TEST_F(QtTextViewTest, ShowsAWantedSelectionInTheUpperPart) {
    Text lines;
    for (int line = 0; line < 300; ++line)
        lines += u"one line of many\r\n";
    control.SetAll(lines);
    const auto shownAt = [this](int line) {
        const int place = line * 18;
        control.SetSelection(place, 3);
        control.ShowSelectionHigh();
        Settle();
        return view.mapFromScene(view.CursorAt(static_cast<doc::Pos>(place)).topLeft()).y();
    };
    const int high = view.viewport()->height() / 5;
    // Once the line was far below, once it is seen already, once it was far above.
    for (const int line : {200, 205, 50})
        EXPECT_NEAR(shownAt(line), high, 2) << line;
    // Above the first line there is nothing to show.
    EXPECT_LT(shownAt(1), high);
    EXPECT_GE(shownAt(1), 0);
}

/// Reads pages.
class HtmlFiles final : public TextFiles {
public:
    std::optional<doc::ReadResult> Load(TextView, int) override { return std::nullopt; }
    TextSaving Save(TextView, int, const doc::Document&) override { return TextSaving::NotMade; }
    Text Needed(int, FileUse) const override { return {}; }
    std::optional<doc::ReadResult> Read(std::string_view bytes, int) override { return doc::ReadHtml(bytes); }
    std::optional<std::string> Written(const doc::Document&, int) override { return std::nullopt; }
};

class LoadedTextViewTest : public QtTextViewTest {
protected:
    LoadedTextViewTest() { control.Files = &files; }
    static std::string Page(const std::string& picture) {
        std::string page = picture;
        for (int line = 0; line < 300; ++line)
            page += "<p>line " + std::to_string(line) + " of many</p>" + (line == 50 ? picture : "");
        return page;
    }
    /// What the upper edge of the view shows, and where its line begins.
    std::pair<Text, int> Seen() {
        Settle();
        const doc::Pos place = view.PlaceAt(view.mapToScene(QPoint(0, 0)));
        return {control.All().substr(place, 12), view.mapFromScene(view.CursorAt(place).topLeft()).y()};
    }

    const std::string picture =
        "<img width=90 height=700 src='data:image/png;base64,"
        "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg=='>";
    HtmlFiles files;
};

TEST_F(LoadedTextViewTest, APictureThatComesLaterLeavesWhatIsSeen) {
    control.LoadFromMemory(Page(""), TextFormat::Html);
    Settle();
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 2 + 3);
    const auto before = Seen();
    ASSERT_NE(before.first, control.All().substr(0, 12));
    control.LoadMoreFromMemory(Page(picture), TextFormat::Html);
    EXPECT_EQ(Seen(), before);
    control.LoadMoreFromMemory(Page(picture + picture), TextFormat::Html);
    EXPECT_EQ(Seen(), before);
}

TEST_F(LoadedTextViewTest, AShortTextCanBeScrolledToItsEndAtOnce) {
    std::string page;
    for (int line = 0; line < 60; ++line)
        page += "<p>line</p>";
    control.LoadFromMemory(page, TextFormat::Html);
    Settle();
    const int most = view.verticalScrollBar()->maximum();
    EXPECT_GT(most, 0);
    control.LoadFromMemory("<p>one line</p>", TextFormat::Html);
    control.ShowTop();
    Settle();
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
}

TEST_F(LoadedTextViewTest, APictureAtTheTopIsSeen) {
    control.LoadFromMemory(Page(""), TextFormat::Html);
    Settle();
    control.LoadMoreFromMemory(Page(picture), TextFormat::Html);
    Settle();
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->minimum());
}

TEST_F(LoadedTextViewTest, AnotherTextIsShownFromItsBeginning) {
    control.LoadFromMemory(Page(""), TextFormat::Html);
    Settle();
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    control.LoadFromMemory(Page("other"), TextFormat::Html);
    control.ShowTop();
    Settle();
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->minimum());
}

TEST_F(QtTextViewTest, TypingGoesOnAfterAMenuThatAKeyOpened) {
    Type("abc");
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent leaves(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&view, &leaves);
    }
    QFocusEvent comesBack(QEvent::FocusIn, Qt::MenuBarFocusReason);
    QCoreApplication::sendEvent(&view, &comesBack);
    Type("def");
    EXPECT_EQ(control.All(), u"abcdef");
}

} // namespace
} // namespace korvane
