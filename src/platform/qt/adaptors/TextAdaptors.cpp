#include "platform/qt/adaptors/TextAdaptors.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/DocumentText.h"
#include "platform/qt/base/EditingKeys.h"
#include "platform/qt/look/BackColour.h"
#include "platform/qt/look/DenseLines.h"

#include <QScopedValueRollback>
#include <QTextDocument>

namespace korvane {

namespace {

/// Only the first part of a long locked text is shown. Qt lays out the whole text it is given, which takes
/// long, and a user doesn't read more.
constexpr std::size_t kMostToRead = 100'000;

} // namespace

LineAdaptor::LineAdaptor(TextBox& box, QLineEdit& widget) : AdaptorOf(box, widget) {
    widget.setMaxLength(1 << 30);
    connect(&widget, &QLineEdit::textEdited, this, &LineAdaptor::ReadText);
    connect(&widget, &QLineEdit::selectionChanged, this, &LineAdaptor::ReadSelection);
    connect(&widget, &QLineEdit::cursorPositionChanged, this, &LineAdaptor::ReadSelection);
}

void LineAdaptor::Write(Aspect aspect) {
    const QScopedValueRollback guard(writing_, true);
    const QString text = ToQString(control_.Text.Get());
    if (aspect == Aspect::Text && widget_.text() != text) widget_.setText(text);
    if (aspect == Aspect::Selection && !reading_) WriteSelection();
    if (aspect == Aspect::Enabled) widget_.setReadOnly(control_.Locked);
    if (aspect == Aspect::Colours) WriteBackColour(widget_, control_.BackColor, kFieldSurface);
    AdaptorOf::Write(aspect);
}

void LineAdaptor::ReadText(const QString& text) {
    ReadSelection();
    control_.Type(ToText(text));
}

void LineAdaptor::ReadSelection() {
    if (writing_) return;
    const QScopedValueRollback guard(reading_, true);
    const bool selected = widget_.hasSelectedText();
    control_.SelStart = selected ? widget_.selectionStart() : widget_.cursorPosition();
    control_.SelLength = selected ? widget_.selectionLength() : 0;
}

void LineAdaptor::WriteSelection() {
    const int start = control_.SelStart;
    const int length = control_.SelLength;
    if (length > 0) {
        widget_.setSelection(start, length);
    } else {
        widget_.deselect();
        widget_.setCursorPosition(start);
    }
}

LinesAdaptor::LinesAdaptor(TextBox& box, QPlainTextEdit& widget) : AdaptorOf(box, widget) {
    widget.viewport()->installEventFilter(this);
    if (widget.property(kDenseLines).toBool()) widget.document()->setDocumentMargin(0);
    connect(&widget, &QPlainTextEdit::textChanged, this, &LinesAdaptor::ReadText);
    const auto readSelection = [this] { ReadSelection(control_.Text.Get()); };
    connect(&widget, &QPlainTextEdit::selectionChanged, this, readSelection);
    connect(&widget, &QPlainTextEdit::cursorPositionChanged, this, readSelection);
}

void LinesAdaptor::Write(Aspect aspect) {
    const QScopedValueRollback guard(writing_, true);
    if (aspect == Aspect::Text) WriteText();
    if (aspect == Aspect::Selection && !reading_) WriteSelection();
    if (aspect == Aspect::Enabled) WriteLocked();
    if (aspect == Aspect::Colours) WriteBackColour(widget_, control_.BackColor, kFieldSurface);
    AdaptorOf::Write(aspect);
}

bool LinesAdaptor::eventFilter(QObject* watched, QEvent* event) {
    return AdaptorOf::eventFilter(watched, event) || PastesNothing(*event);
}

void LinesAdaptor::WriteLocked() {
    // A locked text can still be selected and copied, with the keyboard too.
    constexpr auto kReading = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    widget_.setTextInteractionFlags(control_.Locked ? kReading : Qt::TextEditorInteraction);
}

void LinesAdaptor::WriteText() {
    const TextView text = control_.Text.Get();
    const QString lines = ToLines(control_.Locked ? text.substr(0, kMostToRead) : text);
    if (DocumentText(*widget_.document()) != lines) widget_.setPlainText(lines);
}

void LinesAdaptor::ReadText() {
    if (writing_) return;
    const Text text = FromLines(DocumentText(*widget_.document()));
    ReadSelection(text);
    control_.Type(text);
}

void LinesAdaptor::ReadSelection(TextView text) {
    if (writing_) return;
    const QScopedValueRollback guard(reading_, true);
    const QTextCursor cursor = widget_.textCursor();
    const int start = FromLinesPosition(text, cursor.selectionStart());
    control_.SelStart = start;
    control_.SelLength = FromLinesPosition(text, cursor.selectionEnd()) - start;
}

void LinesAdaptor::WriteSelection() {
    const TextView text = control_.Text.Get();
    QTextCursor cursor(widget_.document());
    cursor.setPosition(ToLinesPosition(text, control_.SelStart));
    cursor.setPosition(ToLinesPosition(text, control_.SelStart + control_.SelLength),
                       QTextCursor::KeepAnchor);
    widget_.setTextCursor(cursor);
}

} // namespace korvane
