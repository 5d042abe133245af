#include "platform/qt/grid/CellEditor.h"

#include "platform/qt/base/DocumentText.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QtMath>

namespace korvane {

namespace {

constexpr int kMargin = 1;
constexpr int kBorder = 2;

bool IsReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Keys that finish editing. The field takes them before the window around it can use them as shortcuts.
bool Finishes(const QKeyEvent& event) {
    return IsReturn(event) || event.key() == Qt::Key_Escape || event.key() == Qt::Key_Tab ||
           event.key() == Qt::Key_Backtab;
}

} // namespace

CellEditor::CellEditor(QWidget& viewport, const QFont& font) : QPlainTextEdit(&viewport) {
    setFont(font);
    // With this border and padding the text has the same place as in the cell.
    setStyleSheet(QStringLiteral("korvane--CellEditor { border: 2px solid palette(highlight); padding: 0 2px;"
                                 " background: palette(base); }"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setTabChangesFocus(false);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    document()->setDocumentMargin(kMargin);
    setAccessibleName(tr("Cell"));
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            [this] { Grow(); });
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
        // A key that the field doesn't use is dropped while a cell is edited, so that nothing else reacts to
        // it.
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

void CellEditor::insertFromMimeData(const QMimeData* source) {
    if (!source->formats().isEmpty()) QPlainTextEdit::insertFromMimeData(source);
}

int CellEditor::TextHeight(int most) const {
    qreal height = 2 * (kMargin + kBorder);
    for (QTextBlock block = document()->begin(); block.isValid() && height < most; block = block.next()) {
        height += blockBoundingRect(block).height();
    }
    return qCeil(height);
}

void CellEditor::Grow() {
    const int space = std::max(cell_.height(), parentWidget()->height() - cell_.top());
    const int wanted = std::max(cell_.height(), TextHeight(space + 1));
    const bool fits = wanted <= space;
    setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    const QRect place(cell_.topLeft(), QSize(cell_.width(), std::min(wanted, space)));
    if (place != geometry()) setGeometry(place);
    // The field may have scrolled to its cursor before it grew.
    if (fits) verticalScrollBar()->setValue(0);
}

} // namespace korvane
