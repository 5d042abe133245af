#include "platform/qt/base/Convert.h"
#include "platform/qt/text/QtTextView.h"
#include "platform/qt/text/TextClipboard.h"
#include "platform/qt/text/TextItem.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QDrag>
#include <QGraphicsSceneDragDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>

namespace korvane {

namespace {

constexpr QKeySequence::StandardKey kMoves[] = {
    QKeySequence::MoveToNextChar,     QKeySequence::MoveToPreviousChar,    QKeySequence::MoveToNextWord,
    QKeySequence::MoveToPreviousWord, QKeySequence::MoveToNextLine,        QKeySequence::MoveToPreviousLine,
    QKeySequence::MoveToStartOfLine,  QKeySequence::MoveToEndOfLine,       QKeySequence::MoveToStartOfBlock,
    QKeySequence::MoveToEndOfBlock,   QKeySequence::MoveToStartOfDocument, QKeySequence::MoveToEndOfDocument,
    QKeySequence::SelectNextChar,     QKeySequence::SelectPreviousChar,    QKeySequence::SelectNextWord,
    QKeySequence::SelectPreviousWord, QKeySequence::SelectNextLine,        QKeySequence::SelectPreviousLine,
    QKeySequence::SelectStartOfLine,  QKeySequence::SelectEndOfLine,       QKeySequence::SelectStartOfBlock,
    QKeySequence::SelectEndOfBlock,   QKeySequence::SelectStartOfDocument, QKeySequence::SelectEndOfDocument,
    QKeySequence::SelectAll,
};

struct Deletion {
    QKeySequence::StandardKey key;
    QTextCursor::MoveOperation way;
};

constexpr Deletion kDeletions[] = {
    {QKeySequence::Delete, QTextCursor::NextCharacter},
    {QKeySequence::Backspace, QTextCursor::PreviousCharacter},
    {QKeySequence::DeleteStartOfWord, QTextCursor::PreviousWord},
    {QKeySequence::DeleteEndOfWord, QTextCursor::NextWord},
};

/// The keys that most programs have for these. The window has others, which it takes before.
struct Toggle {
    QKeySequence::StandardKey key;
    int (doc::TextEditing::*get)() const;
    void (doc::TextEditing::*set)(int);
};

constexpr Toggle kToggles[] = {
    {QKeySequence::Bold, &doc::TextEditing::FontBold, &doc::TextEditing::SetFontBold},
    {QKeySequence::Italic, &doc::TextEditing::FontItalic, &doc::TextEditing::SetFontItalic},
    {QKeySequence::Underline, &doc::TextEditing::FontUnderline, &doc::TextEditing::SetFontUnderline},
};

bool IsRedo(const QKeyEvent& key) {
    // Qt has this key for it on Windows alone.
    return key.matches(QKeySequence::Redo) ||
           (key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier);
}

bool IsBackspace(const QKeyEvent& key) {
    return key.key() == Qt::Key_Backspace &&
           (key.modifiers() & ~Qt::ShiftModifier & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// The characters that a key types; empty for a command.
QString TypedBy(const QKeyEvent& key) {
    const auto held = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Both together are AltGr.
    const bool command = held != Qt::NoModifier && held != (Qt::ControlModifier | Qt::AltModifier);
    const QString text = key.text();
    if (command || text.isEmpty()) return {};
    const bool written = text[0].isPrint() || text[0].isSurrogate() ||
                         text[0].category() == QChar::Other_Format ||
                         text[0].category() == QChar::Other_PrivateUse;
    return written ? text : QString();
}

} // namespace

bool MovesCursor(const QKeyEvent& event) {
    return std::ranges::any_of(kMoves, [&event](auto key) { return event.matches(key); });
}

bool QtTextView::EditWith(const QKeyEvent& event) {
    if (control_ == nullptr) return false;
    ShowText();
    if (event.matches(QKeySequence::Copy)) return Copy(), true;
    if (event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown) return MoveByPage(event), true;
    if (Locked()) return false;
    if (event.matches(QKeySequence::Undo)) return control_->Undo(), true;
    if (IsRedo(event)) return control_->Redo(), true;
    if (event.matches(QKeySequence::Cut)) return Cut(), true;
    if (event.matches(QKeySequence::Paste)) return Paste(), true;
    if (IsBackspace(event)) return DeleteTo(QTextCursor::PreviousCharacter), true;
    for (const Deletion& deletion : kDeletions) {
        if (event.matches(deletion.key)) return DeleteTo(deletion.way), true;
    }
    for (const Toggle& toggle : kToggles) {
        if (!event.matches(toggle.key)) continue;
        (control_->*toggle.set)((control_->*toggle.get)() == 1 ? 0 : 1);
        return true;
    }
    if (event.matches(QKeySequence::InsertLineSeparator))
        return control_->Type(Text(1, doc::kLineBreak)), true;
    if (event.matches(QKeySequence::InsertParagraphSeparator)) return control_->Type(u"\r"), true;
    return TypeWith(event);
}

bool QtTextView::TypeWith(const QKeyEvent& event) {
    const bool back = event.key() == Qt::Key_Backtab;
    const bool plain = (event.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    if (plain && (back || event.key() == Qt::Key_Tab)) {
        if (item_->textCursor().currentTable() != nullptr) return Step(back ? -1 : 1), true;
        if (!back) control_->Type(u"\t");
        return !back;
    }
    const QString text = TypedBy(event);
    if (!text.isEmpty()) control_->Type(ToText(text));
    return !text.isEmpty();
}

void QtTextView::Commit(const QString& text, int replacedFrom, int replaced) {
    if (Locked()) return;
    if (replaced > 0) {
        const int from = item_->textCursor().position() + replacedFrom;
        QTextCursor cursor(item_->document());
        cursor.setPosition(std::clamp(from, 0, item_->document()->characterCount() - 1));
        cursor.setPosition(std::clamp(from + replaced, 0, item_->document()->characterCount() - 1),
                           QTextCursor::KeepAnchor);
        item_->setTextCursor(cursor);
        TakeCursor(false);
    }
    if (text.isEmpty() && replaced > 0)
        control_->DeleteSelection();
    else if (!text.isEmpty())
        control_->Type(ToText(text));
    ShowText();
}

void QtTextView::DeleteSelection() {
    if (Locked() || control_->SelLength() == 0) return;
    control_->DeleteSelection();
    ShowText();
}

void QtTextView::DeleteTo(QTextCursor::MoveOperation way) {
    if (control_->SelLength() == 0) {
        QTextCursor cursor = item_->textCursor();
        const auto cell = mirror_->Store().TableAt(mirror_->FromQt(cursor.position()));
        if (!cursor.movePosition(way, QTextCursor::KeepAnchor)) return;
        // A cell doesn't end by deleting its edge.
        if (mirror_->Store().TableAt(mirror_->FromQt(cursor.position())) != cell) return;
        item_->setTextCursor(cursor);
        TakeCursor(false);
        control_->Erase();
        return ShowText();
    }
    DeleteSelection();
}

void QtTextView::TakeCursor(bool backwards) {
    if (control_ == nullptr || showing_) return;
    QTextCursor cursor = item_->textCursor();
    if (!mirror_->ParagraphOf(cursor.block())) {
        const auto mode = cursor.hasSelection() ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor;
        const bool first = cursor.block() == item_->document()->firstBlock();
        cursor.movePosition(backwards && !first ? QTextCursor::PreviousCharacter : QTextCursor::NextBlock,
                            mode);
        item_->setTextCursor(cursor);
    }
    const doc::Pos start = mirror_->FromQt(cursor.selectionStart());
    const doc::Pos end = mirror_->FromQt(cursor.selectionEnd());
    control_->MoveSelection(static_cast<int>(start), static_cast<int>(end - start));
    TellReaders();
    emit Seen();
}

/// Goes to the next or the previous cell and selects what is in it.
void QtTextView::Step(int cells) {
    QTextCursor cursor = item_->textCursor();
    cursor.movePosition(cells > 0 ? QTextCursor::NextCell : QTextCursor::PreviousCell);
    const QTextTable* const table = cursor.currentTable();
    if (table == nullptr) return;
    const QTextTableCell cell = table->cellAt(cursor);
    SetCursor(cell.firstPosition(), cell.lastPosition());
    TakeCursor(false);
}

void QtTextView::MoveByPage(const QKeyEvent& event) {
    const double way = (event.key() == Qt::Key_PageUp ? -1 : 1) * viewport()->height() / Zoom();
    const QTextCursor cursor = item_->textCursor();
    const QRectF from = CursorAt(mirror_->FromQt(cursor.position()));
    const int to = mirror_->ToQt(PlaceAt(from.center() + QPointF(0, way)));
    SetCursor((event.modifiers() & Qt::ShiftModifier) != 0 ? cursor.anchor() : to, to);
    TakeCursor(way < 0);
}

void QtTextView::MoveTo(const QPointF& point) {
    const int place = mirror_->ToQt(PlaceAt(point));
    SetCursor(place, place);
    TakeCursor(false);
}

doc::Index QtTextView::FieldAt(const QPointF& point) const {
    const int place = item_->document()->documentLayout()->hitTest(point, Qt::ExactHit);
    if (place < 0) return 0;
    doc::Index field = 0;
    const doc::Pos position = mirror_->FromQt(place);
    mirror_->Store().Runs(position, position + 1,
                          [&field](doc::Pos, std::size_t, const doc::Look& look) { field = look.field; });
    return field;
}

void QtTextView::ClickAt(const QPointF& point) {
    if (control_ == nullptr) return;
    if (const doc::Index field = FieldAt(point)) control_->Click(static_cast<int>(field));
}

void QtTextView::HoverAt(const QPointF& point) {
    if (control_ == nullptr) return;
    ShowText();
    const doc::Index field = FieldAt(point);
    item_->setCursor(field == 0 ? Qt::IBeamCursor : Qt::PointingHandCursor);
    control_->Hover(static_cast<int>(field));
}

void QtTextView::HoverNowhere() {
    if (control_ != nullptr) control_->Hover(0);
}

void QtTextView::Copy() {
    if (control_ == nullptr || control_->SelLength() == 0) return;
    QGuiApplication::clipboard()->setMimeData(
        RichMime(control_->SelTextRtf(), control_->SelText()).release());
}

void QtTextView::Cut() {
    if (Locked() || control_->SelLength() == 0) return;
    Copy();
    DeleteSelection();
}

void QtTextView::Paste() {
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (!Locked() && data != nullptr) Put(*data);
}

void QtTextView::Put(const QMimeData& data) {
    if (const std::string rtf = RtfIn(data); !rtf.empty())
        control_->SetSelTextRtf(rtf);
    else if (data.hasText())
        control_->SetSelText(FromLines(data.text()));
    ShowText();
}

void QtTextView::PasteSelectionAt(const QPointF& point) {
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (Locked() || !clipboard.supportsSelection()) return;
    MoveTo(point);
    if (const QMimeData* const data = clipboard.mimeData(QClipboard::Selection)) Put(*data);
}

bool QtTextView::Takes(const QMimeData* data) const {
    return !Locked() && data != nullptr && HoldsText(*data) && !data->hasUrls();
}

void QtTextView::StartDrag() {
    if (control_ == nullptr || control_->SelLength() == 0) return;
    auto* const drag = new QDrag(this);
    drag->setMimeData(RichMime(control_->SelTextRtf(), control_->SelText()).release());
    dragging_ = true;
    const auto action =
        Locked() ? drag->exec(Qt::CopyAction) : drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    // A text that was moved within the view isn't here any more.
    if (std::exchange(dragging_, false) && action == Qt::MoveAction) DeleteSelection();
}

void QtTextView::Drop(QGraphicsSceneDragDropEvent& event) {
    if (!Takes(event.mimeData())) return event.ignore();
    ShowText();
    const doc::Pos place = PlaceAt(event.scenePos());
    if (dragging_ && event.dropAction() == Qt::MoveAction) {
        MoveSelectionTo(place);
        dragging_ = false;
    } else {
        control_->MoveSelection(static_cast<int>(place), 0);
        Put(*event.mimeData());
    }
    event.accept();
}

void QtTextView::MoveSelectionTo(doc::Pos place) {
    const int start = control_->SelStart();
    const int length = control_->SelLength();
    const int to = static_cast<int>(place);
    if (to >= start && to <= start + length) return;
    const doc::Step step(control_->Store());
    const std::string rtf = control_->SelTextRtf();
    const std::size_t before = control_->All().size();
    control_->DeleteSelection();
    const int removed = static_cast<int>(before - control_->All().size());
    control_->MoveSelection(to > start ? to - removed : to, 0);
    const int put = control_->SelStart();
    control_->SetSelTextRtf(rtf);
    control_->MoveSelection(put, control_->SelStart() - put);
    ShowText();
}

void QtTextView::ShowMenu(const QPoint& place) {
    if (control_ == nullptr) return;
    struct Entry {
        const char* name;
        void (QtTextView::*routine)();
        bool writes;
    };
    constexpr Entry kEntries[] = {
        {"Undo", &QtTextView::Undo, true},
        {"Redo", &QtTextView::Redo, true},
        {"Cut", &QtTextView::Cut, true},
        {"Copy", &QtTextView::Copy, false},
        {"Paste", &QtTextView::Paste, true},
        {"Delete", &QtTextView::DeleteSelection, true},
        {"Select all", &QtTextView::SelectAll, false},
    };
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Entry& entry : kEntries) {
        QAction* const action = menu->addAction(QLatin1String(entry.name));
        action->setEnabled(!entry.writes || !Locked());
        connect(action, &QAction::triggered, this, [this, routine = entry.routine] { (this->*routine)(); });
    }
    menu->popup(place);
}

void QtTextView::Undo() {
    if (!Locked()) control_->Undo();
}

void QtTextView::Redo() {
    if (!Locked()) control_->Redo();
}

void QtTextView::SelectAll() {
    control_->MoveSelection(0, -1);
    ShowText();
}

void QtTextView::Replace(doc::Pos from, doc::Pos to, TextView text) {
    if (Locked()) return;
    control_->MoveSelection(static_cast<int>(from), static_cast<int>(to - from));
    control_->SetSelText(text);
    ShowText();
}

} // namespace korvane
