#include "platform/qt/grid/SideBarView.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/grid/CellLook.h"
#include "platform/qt/look/Icons.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace korvane {

namespace {

constexpr int kIconSize = 24;
constexpr int kGap = 4;
constexpr int kInset = 4;
constexpr int kRadius = 6;
constexpr int kRing = 2;

class SideBarDelegate : public CellDelegate {
public:
    SideBarDelegate(const GridModel& model, const GridBox& box, const SideBarView& view)
        : CellDelegate(model, box, nullptr), model_(model), box_(box), view_(view) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Row row = model_.RowOf(index.row());
        const bool current = row == box_.Store().CurRow();
        painter->save();
        painter->fillRect(option.rect, option.palette.window());
        painter->setPen(option.palette.color(QPalette::WindowText));
        if (current) PaintHighlight(*painter, option);
        const QColor text = painter->pen().color();
        PaintContent(*painter, option, index);
        if (current && view_.hasFocus()) PaintFocus(*painter, option, text);
        painter->restore();
    }

private:
    void PaintHighlight(QPainter& painter, const QStyleOptionViewItem& option) const {
        const QColor back = ToQColor(box_.HighlightBackColor);
        const QColor text = ToQColor(box_.HighlightForeColor);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(back.isValid() ? back : option.palette.color(QPalette::Highlight));
        painter.setPen(Qt::NoPen);
        painter.drawRoundedRect(option.rect.adjusted(kInset, 2, -kInset, -2), kRadius, kRadius);
        painter.setPen(text.isValid() ? text : option.palette.color(QPalette::HighlightedText));
    }

    /// The text's colour can be seen on the highlight, so the ring has it too.
    void PaintFocus(QPainter& painter, const QStyleOptionViewItem& option, const QColor& colour) const {
        const QRectF ring = QRectF(option.rect).adjusted(kInset, 2, -kInset, -2);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colour, kRing));
        painter.drawRoundedRect(ring.adjusted(1, 1, -1, -1), kRadius, kRadius);
    }

    void PaintContent(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
        const QFontMetrics metrics(option.font);
        const QRect& cell = option.rect;
        const int height = kIconSize + kGap + metrics.height();
        const QRect icon(cell.center().x() - kIconSize / 2, cell.top() + (cell.height() - height) / 2,
                         kIconSize, kIconSize);
        const Row row = model_.RowOf(index.row());
        const QString name = view_.RowIcons().value(row.Number() - 1);
        const bool current = row == box_.Store().CurRow();
        (current ? TintedIcon(name, painter.pen().color()) : TintedIcon(name)).paint(&painter, icon);
        const QRect line(cell.left() + kInset, icon.bottom() + 1 + kGap, cell.width() - 2 * kInset,
                         metrics.height());
        const QString text = index.data(Qt::DisplayRole).toString();
        painter.setFont(option.font);
        painter.drawText(line, Qt::AlignCenter, metrics.elidedText(text, Qt::ElideRight, line.width()));
    }

    const GridModel& model_;
    const GridBox& box_;
    const SideBarView& view_;
};

} // namespace

SideBarView::SideBarView(QWidget* parent) : GridView(parent) {
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::Window);
}

std::unique_ptr<CellDelegate> SideBarView::MakeDelegate(const GridModel& model, const GridBox& box) {
    return std::make_unique<SideBarDelegate>(model, box, *this);
}

} // namespace korvane
