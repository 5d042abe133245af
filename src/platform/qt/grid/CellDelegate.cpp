#include "platform/qt/grid/CellDelegate.h"

#include "grid/Grid.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/grid/CellEditor.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTextDocument>
#include <algorithm>

namespace korvane {

namespace {

constexpr int kPaddingX = 5;
constexpr int kPaddingTop = 3;
constexpr int kFrameWidth = 2;
constexpr unsigned kFontCount = 16;
/// A longer text isn't looked at, so that painting a cell never takes long.
constexpr std::size_t kMostLookedAt = 4096;
/// How much accent colour is mixed into the current row and the current cell.
constexpr double kRowTint = 0.07;
constexpr double kCellTint = 0.12;

/// Draws lines of this width along the inner side of the rectangle's edges.
void PaintLines(QPainter& painter, const QRect& area, int width, const QColor& colour) {
    painter.fillRect(QRect(area.left(), area.top(), area.width(), width), colour);
    painter.fillRect(QRect(area.left(), area.bottom() - width + 1, area.width(), width), colour);
    painter.fillRect(QRect(area.left(), area.top(), width, area.height()), colour);
    painter.fillRect(QRect(area.right() - width + 1, area.top(), width, area.height()), colour);
}

/// The frame is thinner where another control has the keyboard.
void PaintFrame(QPainter& painter, const QStyleOptionViewItem& option) {
    const bool focused = option.widget != nullptr && option.widget->hasFocus();
    const int width = focused ? kFrameWidth : 1;
    const FrameColours colours = FrameOf(option.palette.color(QPalette::Active, QPalette::Highlight));
    PaintLines(painter, option.rect, width, colours.dark);
    PaintLines(painter, option.rect.adjusted(width, width, -width, -width), 1, colours.light);
}

QFont FlaggedFont(const QFont& base, unsigned flags) {
    QFont font = base;
    if ((flags & 1) != 0) font.setItalic(true);
    if ((flags & 2) != 0) font.setBold(true);
    if ((flags & 4) != 0) font.setStrikeOut(true);
    if ((flags & 8) != 0) font.setStyleStrategy(QFont::PreferDefault);
    return font;
}

/// Latin letters without marks of their own, digits and the like. The soft hyphen is not seen.
bool IsPlain(char16_t unit) {
    return (unit >= u' ' && unit <= u'~') || (unit >= u'\u00A0' && unit < u'\u0250' && unit != u'\u00AD');
}

/// Whether each letter has one glyph, side by side with the others. To find the glyphs of another text takes
/// several times as long.
bool IsPlain(TextView text) {
    return text.size() <= kMostLookedAt &&
           std::ranges::all_of(text, [](char16_t unit) { return IsPlain(unit); });
}

} // namespace

CellDelegate::CellDelegate(const GridModel& model, const GridBox& box, QObject* parent)
    : QAbstractItemDelegate(parent), model_(model), box_(box) {}

QRect CellDelegate::CheckRect(const QRect& cell, const QWidget& view) {
    const QStyle& style = *view.style();
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &view),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &view));
    const int line = view.fontMetrics().lineSpacing();
    const int top = std::min(kPaddingTop + std::max(0, (line - size.height()) / 2),
                             std::max(0, (cell.height() - size.height()) / 2));
    return QRect(cell.topLeft() + QPoint(kPaddingX, top), size);
}

const QFont& CellDelegate::CellFont(const QFont& base, Row row, Col col, bool shaped) const {
    if (fonts_.empty() || fonts_.front() != base) {
        fonts_.clear();
        for (unsigned flags = 0; flags < kFontCount; ++flags)
            fonts_.push_back(FlaggedFont(base, flags));
    }
    const bool italic = Store().CellFontFlag(row, col, CellFlag::Italic);
    const bool bold = Store().CellFontFlag(row, col, CellFlag::Bold);
    const bool strike = Store().CellFontFlag(row, col, CellFlag::Strikethrough);
    return fonts_[(italic ? 1u : 0u) | (bold ? 2u : 0u) | (strike ? 4u : 0u) | (shaped ? 8u : 0u)];
}

void CellDelegate::PaintBack(QPainter& painter, const QStyleOptionViewItem& option, CellPosition cell,
                             const QColor& back) const {
    const bool currentRow = cell.row == Store().CurRow();
    const double tint = IsCurrent(cell) ? kCellTint : kRowTint;
    const QColor accent = option.palette.color(QPalette::Highlight);
    const QColor line = GridLine(TableBack(Store(), option.palette));
    const QRect& area = option.rect;
    painter.fillRect(area, currentRow ? Blend(back, accent, tint) : back);
    painter.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), line);
    painter.fillRect(QRect(area.right(), area.top(), 1, area.height()), line);
}

CellColours CellDelegate::ColoursIn(CellPosition cell, const QPalette& palette) const {
    const CellColours colours = ColoursOf(Store(), cell.row, cell.col, palette);
    const Text& mark = box_.FadedMark.Get();
    const bool fades = !mark.empty() && Store().CellText(cell.row, Col{1}) == mark;
    return fades ? Faded(colours) : colours;
}

TextMarks CellDelegate::MarksIn(CellPosition cell, const CellColours& colours) const {
    const Text& part = box_.MarkedText.Get();
    if (part.empty()) return {};
    const QColor back = MarkBack(colours, IsCurrent(cell) ? Mark::Strong : Mark::Soft);
    return {part, back, MarkText(colours, back), MarkEdge(colours, back)};
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const CellPosition cell{model_.RowOf(index.row()), GridModel::ColOf(index.column())};
    const CellColours colours = ColoursIn(cell, option.palette);
    PaintBack(*painter, option, cell, colours.back);

    QRect area = option.rect.adjusted(kPaddingX, kPaddingTop, -kPaddingX, -1);
    if (cell.col == Col{1} && Store().CellCheckShown(cell.row)) {
        checks_.Paint(*painter, CheckRect(option.rect, *option.widget), CheckColoursOn(colours.back),
                      Store().CellCheck(cell.row) == 1);
        area.setLeft(CheckRect(option.rect, *option.widget).right() + kPaddingX);
    }
    const Text text = Store().CellText(cell.row, cell.col);
    if (!text.empty()) {
        const QFont& font = CellFont(option.font, cell.row, cell.col, !IsPlain(text));
        painter->save();
        painter->setClipRect(option.rect, Qt::IntersectClip);
        painter->setFont(font);
        painter->setPen(colours.text);
        DrawCellText(*painter, area, font, text, MarksIn(cell, colours));
        painter->restore();
    }
    if (IsCurrent(cell)) PaintFrame(*painter, option);
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const Row row = model_.RowOf(index.row());
    const QString text = ToLines(Store().CellText(row, GridModel::ColOf(index.column())));
    const QFontMetrics metrics(option.font);
    return metrics.size(Qt::TextExpandTabs, text) + QSize(2 * kPaddingX + 1, 2 * kPaddingTop);
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    const Row row = model_.RowOf(index.row());
    const Col col = GridModel::ColOf(index.column());
    auto* editor = new CellEditor(*parent, CellFont(option.font, row, col, true));
    const CellColours colours = ColoursOf(Store(), row, col, option.palette);
    QPalette palette = option.palette;
    palette.setColor(QPalette::Base, colours.back);
    palette.setColor(QPalette::Text, colours.text);
    editor->setPalette(palette);
    connect(editor, &CellEditor::Finished, this,
            [this, editor](bool commit, int step) { Finish(*editor, commit, step); });
    connect(editor, &QPlainTextEdit::textChanged, this, &CellDelegate::Typing);
    // This one comes after the text was set with which the field opens.
    connect(editor->document(), &QTextDocument::modificationChanged, this, &CellDelegate::Typing);
    // A field without its text would still be found later, while it loses the keyboard.
    connect(editor, &CellEditor::Leaving, this, [this, editor] {
        if (field_ == editor) ForgetField();
    });
    field_ = editor;
    fieldCell_ = index;
    return editor;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto& field = static_cast<CellEditor&>(*editor);
    field.SetLines(index.data(Qt::EditRole).toString(), typingReplaces_);
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    model->setData(index, static_cast<CellEditor&>(*editor).Lines(), Qt::EditRole);
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
    static_cast<CellEditor&>(*editor).SetCell(option.rect);
}

bool CellDelegate::FieldAltered() const {
    return !field_.isNull() && field_->document()->isModified();
}

void CellDelegate::ForgetField() const {
    field_ = nullptr;
    emit Typing();
}

std::optional<FieldText> CellDelegate::ReadField() const {
    if (field_.isNull() || !fieldCell_.isValid()) return std::nullopt;
    const CellPosition cell{model_.RowOf(fieldCell_.row()), GridModel::ColOf(fieldCell_.column())};
    return FieldText{cell, FromLines(field_->Lines())};
}

void CellDelegate::Finish(QWidget& editor, bool commit, int cellStep) const {
    auto& self = const_cast<CellDelegate&>(*this); // NOLINT: Qt makes editors in a const function
    if (commit) emit self.commitData(&editor);
    emit self.closeEditor(&editor, NoHint);
    ForgetField();
    if (cellStep != 0) emit Moved(cellStep);
}

bool CellDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<CellEditor*>(object);
    if (editor == nullptr || event->type() != QEvent::FocusOut) return false;
    // Opening the field's own context menu or changing to another window doesn't end the editing.
    const QWidget* popup = QApplication::activePopupWidget();
    const bool ownMenu = popup != nullptr && popup->parentWidget() == editor;
    if (!ownMenu && editor->isActiveWindow()) Finish(*editor, true, 0);
    return false;
}

} // namespace korvane
