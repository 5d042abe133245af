#include "platform/qt/CellEditor.h"

#include "platform/qt/TextAdaptors.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QTextBlock>

namespace korvane {

namespace {

constexpr int kMargin = 2;

bool IsReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Keys that finish the field, which a window around it would otherwise take for itself.
bool Finishes(const QKeyEvent& event) {
    return IsReturn(event) || event.key() == Qt::Key_Escape || event.key() == Qt::Key_Tab ||
           event.key() == Qt::Key_Backtab;
}

} // namespace

CellEditor::CellEditor(QWidget& viewport, const QFont& font) : QPlainTextEdit(&viewport) {
    setFont(font);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setTabChangesFocus(false);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    document()->setDocumentMargin(kMargin);
    setAccessibleName(tr("Cell"));
    connect(this, &QPlainTextEdit::textChanged, this, &CellEditor::Grow);
}

void CellEditor::SetCell(const QRect& cell) {
    cell_ = cell;
    Grow();
}

void CellEditor::SetLines(const QString& lines, bool selected) {
    setPlainText(lines);
    if (selected) {
        selectAll();
    } else {
        moveCursor(QTextCursor::End);
    }
}

QString CellEditor::Lines() const {
    return DocumentText(*document());
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (IsReturn(*event) && (modifiers == Qt::ShiftModifier || modifiers == Qt::AltModifier)) {
        insertPlainText(QStringLiteral("\n"));
    } else if (IsReturn(*event)) {
        emit Finished(true, 0);
    } else if (event->key() == Qt::Key_Escape) {
        emit Finished(false, 0);
    } else if (Finishes(*event)) {
        emit Finished(true, event->key() == Qt::Key_Tab ? 1 : -1);
    } else {
        QPlainTextEdit::keyPressEvent(event);
        // What the field doesn't use belongs to nobody else while a cell is edited.
        event->accept();
    }
}

bool CellEditor::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && Finishes(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

int CellEditor::TextHeight() const {
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        lines += std::max(1, block.layout()->lineCount());
    }
    return lines * fontMetrics().lineSpacing() + 2 * kMargin + 1;
}

void CellEditor::Grow() {
    const int space = parentWidget()->height() - cell_.top();
    const int height = std::clamp(TextHeight(), cell_.height(), std::max(cell_.height(), space));
    const QRect place(cell_.topLeft(), QSize(cell_.width(), height));
    if (place != geometry()) setGeometry(place);
}

void FinishTyping() {
    auto* editor = qobject_cast<CellEditor*>(QApplication::focusWidget());
    if (editor != nullptr) emit editor->Finished(true, 0);
}

} // namespace korvane
