#include "platform/qt/tiles/TilesView.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Contrast.h"
#include "platform/qt/tiles/GlyphTexts.h"
#include "platform/qt/tiles/TilesAccess.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace korvane {

namespace {

/// In pixels, however small the tiles become.
constexpr int kLeastSize = 8;
constexpr QSize kUsualSize{256, 192};
/// The headers' row, before that of the first tiles.
constexpr int kHeaders = -1;
/// How much of the text's colour is in the lines.
constexpr double kLines = 0.25;

} // namespace

TilesView::TilesView(QWidget* parent) : QFrame(parent) {
    TilesAccess::Install();
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    // So that the window doesn't paint its ground below.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TilesView::Show(const Tiles* tiles) {
    tiles_ = tiles;
    TellChanged();
}

void TilesView::TellChanged() {
    pointed_ = -1;
    updateGeometry();
    update();
}

void TilesView::TellCurrentChanged() {
    update();
    if (!QAccessible::isActive() || !hasFocus() || Current() < 0) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(Current());
    QAccessible::updateAccessibility(&event);
}

int TilesView::Count() const {
    return tiles_ == nullptr ? 0 : static_cast<int>(tiles_->Items.Get().size());
}

int TilesView::Current() const {
    return tiles_ == nullptr || tiles_->Current() >= Count() ? -1 : tiles_->Current();
}

QString TilesView::SpokenName(int tile) const {
    const Tiles::Tile& named = tiles_->Items.Get()[static_cast<std::size_t>(tile)];
    return ToQString(named.spoken.empty() ? named.text : named.spoken);
}

// Places.

bool TilesView::HasHeaders() const {
    return tiles_ != nullptr && !tiles_->Headers.Get().empty();
}

int TilesView::HeaderHeight() const {
    if (!HasHeaders()) return 0;
    return fontMetrics().height() + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
}

int TilesView::Rows() const {
    return tiles_ == nullptr ? 0 : tiles_->Rows();
}

int TilesView::Columns() const {
    return tiles_ == nullptr ? 0 : tiles_->Columns();
}

QRect TilesView::Cell(int row, int column) const {
    const QRect all = contentsRect();
    const int left = all.left() + all.width() * column / Columns();
    const int right = all.left() + all.width() * (column + 1) / Columns();
    if (row == kHeaders) return {left, all.top(), right - left, HeaderHeight()};
    const int height = all.height() - HeaderHeight();
    const int top = all.top() + HeaderHeight() + height * row / Rows();
    const int bottom = all.top() + HeaderHeight() + height * (row + 1) / Rows();
    return {left, top, right - left, bottom - top};
}

QRect TilesView::PlaceOf(int tile) const {
    return Cell(tile / Columns(), tile % Columns());
}

int TilesView::TileAt(const QPoint& point) const {
    const QRect tiles = contentsRect().adjusted(0, HeaderHeight(), 0, 0);
    if (Count() == 0 || !tiles.contains(point)) return -1;
    // The sizes of the cells differ by a pixel, so the neighbours are looked at too.
    const int row = (point.y() - tiles.top()) * Rows() / tiles.height();
    const int column = (point.x() - tiles.left()) * Columns() / tiles.width();
    for (int y = std::max(row - 1, 0); y < std::min(row + 2, Rows()); ++y) {
        for (int x = std::max(column - 1, 0); x < std::min(column + 2, Columns()); ++x) {
            if (const int tile = y * Columns() + x; tile < Count() && Cell(y, x).contains(point)) return tile;
        }
    }
    return -1;
}

QSize TilesView::sizeHint() const {
    return kUsualSize;
}

QSize TilesView::minimumSizeHint() const {
    const int frame = 2 * frameWidth();
    return {Columns() * kLeastSize + frame, Rows() * kLeastSize + HeaderHeight() + frame};
}

// Painting.

void TilesView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& edge : QRegion(rect()) - contentsRect())
        painter.fillRect(edge, palette().window());
    painter.fillRect(contentsRect(), palette().base());
    drawFrame(&painter);
    if (HasHeaders()) {
        // The style leaves a clip.
        painter.save();
        PaintHeaders(painter);
        painter.restore();
    }
    if (Count() == 0) return;
    PaintLines(painter);
    if (Current() >= 0) PaintCurrent(painter);
    PaintTexts(painter, event->rect());
}

void TilesView::PaintHeaders(QPainter& painter) const {
    QStyleOptionHeader option;
    option.initFrom(this);
    option.state &= ~QStyle::State_HasFocus;
    option.state |= QStyle::State_Horizontal;
    option.textAlignment = Qt::AlignCenter;
    for (int column = 0; column < Columns(); ++column) {
        option.rect = Cell(kHeaders, column);
        option.section = column;
        option.position = column == 0               ? QStyleOptionHeader::Beginning
                          : column + 1 == Columns() ? QStyleOptionHeader::End
                                                    : QStyleOptionHeader::Middle;
        const auto at = static_cast<std::size_t>(column);
        option.text = at < tiles_->Headers.Get().size() ? ToQString(tiles_->Headers.Get()[at]) : QString();
        style()->drawControl(QStyle::CE_Header, &option, &painter, this);
    }
}

void TilesView::PaintLines(QPainter& painter) const {
    const QRect all = contentsRect().adjusted(0, HeaderHeight(), 0, 0);
    const QColor colour = Blend(palette().color(QPalette::Base), palette().color(QPalette::Text), kLines);
    // Filled, because lines are drawn point by point.
    for (int column = 0; column < Columns(); ++column)
        painter.fillRect(Cell(0, column).right(), all.top(), 1, all.height(), colour);
    for (int row = 0; row < Rows(); ++row)
        painter.fillRect(all.left(), Cell(row, 0).bottom(), all.width(), 1, colour);
}

void TilesView::PaintCurrent(QPainter& painter) const {
    const QRect place = PlaceOf(Current()).adjusted(0, 0, -1, -1);
    painter.fillRect(place, palette().highlight());
    if (!hasFocus()) return;
    QStyleOptionFocusRect ring;
    ring.initFrom(this);
    ring.rect = place;
    ring.backgroundColor = palette().color(QPalette::Highlight);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
}

void TilesView::PaintTexts(QPainter& painter, const QRect& area) const {
    GlyphTexts plain(font());
    QFont bold = font();
    bold.setBold(true);
    const auto drawAlone = [&](const Tiles::Tile& tile, const QRect& place) {
        painter.setFont(tile.marked ? bold : font());
        painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, ToQString(tile.text));
    };
    painter.setPen(palette().color(QPalette::Text));
    for (int tile = 0; tile < Count(); ++tile) {
        const Tiles::Tile& shown = tiles_->Items.Get()[static_cast<std::size_t>(tile)];
        const QRect place = PlaceOf(tile);
        if (shown.text.empty() || tile == Current() || !place.intersects(area)) continue;
        if (shown.marked || !plain.Add(ToQString(shown.text), place)) drawAlone(shown, place);
    }
    plain.Draw(painter);
    if (Current() < 0) return;
    painter.setPen(palette().color(QPalette::HighlightedText));
    drawAlone(tiles_->Items.Get()[static_cast<std::size_t>(Current())], PlaceOf(Current()));
}

// The user.

void TilesView::Choose(int tile) const {
    if (tile >= 0 && Chosen) Chosen(tile);
}

int TilesView::Led(int key, bool ctrl) const {
    const int current = Current();
    if (current < 0) return Count() > 0 ? 0 : -1;
    const int column = current % Columns();
    const int first = current - column;
    const int last = std::min(first + Columns(), Count()) - 1;
    switch (key) {
    case Qt::Key_Left:
        return std::max(current - 1, first);
    case Qt::Key_Right:
        return std::min(current + 1, last);
    case Qt::Key_Up:
        return current < Columns() ? current : current - Columns();
    case Qt::Key_Down:
        return current + Columns() < Count() ? current + Columns() : current;
    case Qt::Key_PageUp:
        return column;
    case Qt::Key_PageDown:
        return current + (Count() - 1 - current) / Columns() * Columns();
    case Qt::Key_Home:
        return ctrl ? 0 : first;
    case Qt::Key_End:
        return ctrl ? Count() - 1 : last;
    default:
        return -1;
    }
}

void TilesView::keyPressEvent(QKeyEvent* event) {
    static constexpr int kWays[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,   Qt::Key_Down,
                                    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    if (std::ranges::find(kWays, event->key()) == std::end(kWays)) return QFrame::keyPressEvent(event);
    Choose(Led(event->key(), event->modifiers().testFlag(Qt::ControlModifier)));
}

void TilesView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Choose(TileAt(event->pos()));
}

void TilesView::mouseDoubleClickEvent(QMouseEvent* event) {
    const int tile = TileAt(event->pos());
    if (event->button() == Qt::LeftButton && tile >= 0 && DoubleClicked) DoubleClicked(tile);
}

void TilesView::mouseMoveEvent(QMouseEvent* event) {
    const int tile = TileAt(event->pos());
    if (event->buttons().testFlag(Qt::LeftButton)) Choose(tile);
    if (tile == pointed_) return;
    pointed_ = tile;
    if (tile >= 0 && PointedAt) PointedAt(tile);
}

void TilesView::leaveEvent(QEvent* event) {
    pointed_ = -1;
    QFrame::leaveEvent(event);
}

} // namespace korvane
