#include "platform/qt/lists/RowDelegate.h"

#include "platform/qt/lists/RowEditor.h"

#include <QKeyEvent>
#include <QPainter>

namespace korvane {

namespace {

/// More of a text than any window shows. The layout of a text costs time for each character, also for those
/// that have no room.
constexpr int kMostSeen = 2000;

} // namespace

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    if (!PaintPlain(*painter, option, index)) QStyledItemDelegate::paint(painter, option, index);
    if (!lined_) return;
    painter->setPen(option.palette.color(QPalette::Window));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text.truncate(kMostSeen);
    // Of a name that is too long the end may matter, but of a date or a size it doesn't.
    if (index.column() > 0) option->textElideMode = Qt::ElideRight;
}

bool RowDelegate::PaintPlain(QPainter& painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    using Item = QStyleOptionViewItem;
    if (option.widget == nullptr) return false;
    Item item = option;
    initStyleOption(&item, index);
    const QStyle& style = *item.widget->style();
    const bool special = item.features.testFlag(Item::HasCheckIndicator) ||
                         item.state.testFlag(QStyle::State_HasFocus) ||
                         item.decorationPosition != Item::Left || item.direction != Qt::LeftToRight;
    if (special) return false;
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &item, item.widget) + 1;
    const bool hasIcon = item.features.testFlag(Item::HasDecoration);
    QRect rest = item.rect;
    if (hasIcon) rest.setLeft(rest.left() + item.decorationSize.width() + 2 * margin);
    const QRect iconArea(item.rect.left(), item.rect.top(), rest.left() - item.rect.left(),
                         item.rect.height());
    rest.adjust(margin, 0, -margin, 0);
    const auto width = widths_.AtMost(item.text, item.font);
    if (!width || *width > rest.width()) return false;

    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, &painter, item.widget);
    const bool enabled = item.state.testFlag(QStyle::State_Enabled);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    if (hasIcon) {
        const QRect place =
            QStyle::alignedRect(item.direction, item.decorationAlignment, item.decorationSize, iconArea);
        const QIcon::Mode mode = !enabled ? QIcon::Disabled : selected ? QIcon::Selected : QIcon::Normal;
        item.icon.paint(&painter, place, item.decorationAlignment, mode,
                        item.state.testFlag(QStyle::State_Open) ? QIcon::On : QIcon::Off);
    }
    const bool active = item.state.testFlag(QStyle::State_Active);
    const auto group = !enabled ? QPalette::Disabled : active ? QPalette::Normal : QPalette::Inactive;
    painter.setPen(item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    painter.setFont(item.font);
    painter.drawText(rest, static_cast<int>(item.displayAlignment) | Qt::TextSingleLine, item.text);
    return true;
}

QWidget* RowDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                   const QModelIndex& index) const {
    auto* editor = new RowEditor(parent);
    connect(editor, &RowEditor::Finished, this,
            [this, editor, row = index.row()](int step) { Finish(*editor, row, editor->text(), step); });
    return editor;
}

void RowDelegate::Finish(QWidget& editor, int row, const QString& text, int step) const {
    auto& self = const_cast<RowDelegate&>(*this); // NOLINT: Qt makes editors in a const function
    // Closing the field takes the keyboard from it, which would finish it once more.
    editor.disconnect(this);
    emit self.closeEditor(&editor, NoHint);
    emit Typed(row, text, step);
}

bool RowDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<RowEditor*>(object);
    if (editor == nullptr) return QStyledItemDelegate::eventFilter(object, event);
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape) {
        editor->disconnect(this);
        emit closeEditor(editor, NoHint);
        return true;
    }
    if (event->type() == QEvent::FocusOut && editor->isActiveWindow()) editor->Commit();
    return false;
}

} // namespace korvane
