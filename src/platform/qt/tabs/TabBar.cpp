#include "platform/qt/tabs/TabBar.h"

#include "platform/qt/look/Contrast.h"
#include "platform/qt/look/Icons.h"
#include "platform/qt/tabs/TabAccess.h"
#include "platform/qt/tabs/TabLook.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStyleOptionTab>
#include <algorithm>

namespace korvane {

namespace {

constexpr int kPadding = 12;
constexpr int kDot = 6;
constexpr int kCloseSize = 16;
constexpr int kRoomAround = 14;
constexpr int kAboveTabs = 3;
constexpr int kGapBetween = 2;
constexpr int kBar = 3;
constexpr int kOutline = 2;
/// The width that a tab needs beside its caption: a margin on each side of the caption and one after the
/// button, the button, and the gap.
constexpr int kBesideCaption = 3 * kPadding + kCloseSize + kGapBetween;
// Widths of captions in letters: the least that a tab has, the most that is shown, and the least when the
// tabs are crowded.
constexpr int kShortest = 6;
constexpr int kLongest = 26;
constexpr int kCrowded = 14;

/// The part of a tab's place that is painted.
QRect ShapeIn(const QRect& tab) {
    return tab.adjusted(0, kAboveTabs, -kGapBetween, 0);
}

class CloseButton : public QAbstractButton {
public:
    explicit CloseButton(TabBar& bar) : QAbstractButton(&bar), bar_(bar) {
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::ArrowCursor);
        setToolTip(TabBar::tr("Close"));
        setAttribute(Qt::WA_Hover);
        setFixedSize(kCloseSize, kCloseSize);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const bool active = bar_.tabAt(geometry().center()) == bar_.currentIndex();
        const TabColours colours = bar_.Colours();
        const QColor colour = active ? colours.activeText : colours.restText;
        if (underMouse()) {
            painter.setRenderHint(QPainter::Antialiasing);
            QColor back = colour;
            back.setAlphaF(0.2F);
            painter.setBrush(back);
            painter.setPen(Qt::NoPen);
            painter.drawRoundedRect(rect(), 3, 3);
        }
        painter.setOpacity(underMouse() ? 1.0 : 0.75);
        TintedIcon(QStringLiteral("tabClose"), colour).paint(&painter, rect());
    }

private:
    const TabBar& bar_;
};

} // namespace

TabBar::TabBar(QWidget* parent) : QTabBar(parent), style_(&TabStyleOf(0)) {
    setExpanding(false);
    setMovable(false);
    setDrawBase(false);
    setUsesScrollButtons(true);
    // Captions are cut when they are painted. Qt would cut the captions of all tabs at each layout.
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    TabBarAccess::Install();
}

void TabBar::SetLook(int style, bool framed) {
    style_ = &TabStyleOf(style);
    framed_ = framed;
    update();
}

TabColours TabBar::Colours() const {
    return ColoursOf(*style_, palette());
}

void TabBar::SetAltered(int index, bool altered) {
    if (Altered(index) == altered) return;
    setTabData(index, altered);
    update(tabRect(index));
    TellOf(index, QAccessible::NameChanged);
}

void TabBar::SetCaption(int index, const QString& caption) {
    setTabText(index, caption);
    NameButton(index);
    TellOf(index, QAccessible::NameChanged);
}

QString TabBar::ShownCaption(int index) const {
    return tabText(index).replace(QLatin1String("&&"), QLatin1String("&"));
}

QString TabBar::SpokenName(int index) const {
    const QString caption = ShownCaption(index);
    return Altered(index) ? tr("%1, changed").arg(caption) : caption;
}

void TabBar::NameButton(int index) {
    tabButton(index, RightSide)->setAccessibleName(tr("Close %1").arg(ShownCaption(index)));
}

void TabBar::TellOf(int index, QAccessible::Event kind) {
    if (!ears_->Listen() || index < 0) return;
    QAccessibleEvent event(this, kind);
    event.setChild(index);
    ears_->Hear(event);
}

/// Qt tells of the strip after this, so the tab is told when the event loop turns.
void TabBar::focusInEvent(QFocusEvent* event) {
    QTabBar::focusInEvent(event);
    if (!ears_->Listen()) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (hasFocus()) TellOf(currentIndex(), QAccessible::Focus);
        },
        Qt::QueuedConnection);
}

void TabBar::SetStatus(const QStringList& parts) {
    if (status_ == parts) return;
    status_ = parts;
    setAccessibleDescription(parts.join(QStringLiteral(", ")));
    update(FreeEnd());
}

QRect TabBar::FreeEnd() const {
    const int tabs = count() == 0 ? 0 : tabRect(count() - 1).right() + 1;
    return rect().adjusted(tabs + 2 * kPadding, kAboveTabs, -kPadding, 0);
}

QString TabBar::ShownStatus() const {
    QString shown;
    for (const QString& part : status_) {
        const QString longer = shown.isEmpty() ? part : shown + QStringLiteral(", ") + part;
        if (fontMetrics().horizontalAdvance(longer) > FreeEnd().width()) break;
        shown = longer;
    }
    return shown;
}

QSize TabBar::tabSizeHint(int index) const {
    const int letter = LetterSize().width();
    const int width = std::clamp(CaptionWidth(tabText(index)), kShortest * letter, kLongest * letter);
    return {width + kBesideCaption, LetterSize().height() + kRoomAround};
}

const QSize& TabBar::LetterSize() const {
    if (letterSize_.isEmpty()) letterSize_ = {fontMetrics().averageCharWidth(), fontMetrics().height()};
    return letterSize_;
}

int TabBar::CaptionWidth(const QString& caption) const {
    auto width = captionWidths_.constFind(caption);
    if (width == captionWidths_.constEnd())
        width = captionWidths_.insert(caption, fontMetrics().size(Qt::TextShowMnemonic, caption).width());
    return *width;
}

void TabBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) ForgetSizes();
    QTabBar::changeEvent(event);
}

void TabBar::ForgetSizes() {
    captionWidths_.clear();
    letterSize_ = {};
}

QSize TabBar::minimumTabSizeHint(int index) const {
    const QSize whole = tabSizeHint(index);
    const int crowded = kCrowded * LetterSize().width() + kBesideCaption;
    return {std::min(whole.width(), crowded), whole.height()};
}

/// Fills in only what Qt needs to place the buttons, because Qt calls this for all tabs at each layout. The
/// base class would also cut the captions, and that takes most of the time when there are many tabs.
void TabBar::initStyleOption(QStyleOptionTab* option, int index) const {
    option->direction = layoutDirection();
    option->rect = tabRect(index);
    option->shape = shape();
    if (const QWidget* button = tabButton(index, RightSide)) option->rightButtonSize = button->size();
}

void TabBar::tabInserted(int index) {
    QTabBar::tabInserted(index);
    auto* button = new CloseButton(*this);
    connect(button, &QAbstractButton::clicked, this, [this, button] { CloseAt(*button); });
    setTabButton(index, RightSide, button);
    NameButton(index);
}

void TabBar::CloseAt(const QWidget& button) {
    for (int index = 0; index < count(); ++index) {
        if (tabButton(index, RightSide) == &button) return emit tabCloseRequested(index);
    }
}

void TabBar::tabLayoutChange() {
    QTabBar::tabLayoutChange();
    for (int index = 0; index < count(); ++index) {
        QWidget* button = tabButton(index, RightSide);
        if (button == nullptr) continue;
        button->move(CloseButtonOf(tabRect(index)).topLeft());
    }
}

QRect TabBar::ShapeOf(int index) const {
    return ShapeIn(tabRect(index));
}

QRect TabBar::CloseButtonOf(const QRect& tab) {
    const QRect shape = ShapeIn(tab);
    return {shape.right() - kPadding - kCloseSize + 1, shape.top() + (shape.height() - kCloseSize) / 2,
            kCloseSize, kCloseSize};
}

QPainterPath TabBar::OutlineOf(const QRectF& shape) const {
    const qreal radius = style_->cornerRadius;
    QPainterPath path;
    path.moveTo(shape.bottomLeft());
    path.lineTo(shape.left(), shape.top() + radius);
    path.quadTo(shape.topLeft(), {shape.left() + radius, shape.top()});
    path.lineTo(shape.right() - radius, shape.top());
    path.quadTo(shape.topRight(), {shape.right(), shape.top() + radius});
    path.lineTo(shape.bottomRight());
    return path;
}

void TabBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const TabColours colours = Colours();
    painter.fillRect(rect(), colours.strip);
    if (framed_) {
        painter.setPen(colours.frame);
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    for (int index = 0; index < count(); ++index)
        PaintTab(painter, index, colours);
    PaintStatus(painter, colours);
}

void TabBar::PaintStatus(QPainter& painter, const TabColours& colours) const {
    painter.setPen(TextFor(colours.strip, palette()));
    painter.drawText(FreeEnd(), Qt::AlignRight | Qt::AlignVCenter, ShownStatus());
}

void TabBar::PaintDot(QPainter& painter, int index, const QColor& colour) const {
    if (!Altered(index)) return;
    const QRect shape = ShapeOf(index);
    const QRectF dot(shape.left() + (kPadding - kDot) / 2.0, shape.center().y() - kDot / 2.0 + 1, kDot, kDot);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(dot);
}

void TabBar::PaintTab(QPainter& painter, int index, const TabColours& colours) const {
    const QRect shape = ShapeOf(index);
    if (!shape.intersects(rect())) return;
    if (index == currentIndex()) {
        painter.fillPath(OutlineOf(shape), colours.active);
        PaintMark(painter, shape, colours);
        PaintCaption(painter, index, colours.activeText);
        return;
    }
    QStyleOptionTab option;
    QTabBar::initStyleOption(&option, index);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    const QPainterPath outline = OutlineOf(QRectF(shape).adjusted(0.5, 0.5, -0.5, 0));
    painter.fillPath(outline, hovered ? colours.hover : colours.rest);
    painter.strokePath(outline, colours.edge);
    PaintCaption(painter, index, colours.restText);
}

void TabBar::PaintMark(QPainter& painter, const QRect& shape, const TabColours& colours) const {
    QRect bar = shape;
    if (style_->mark == TabMark::Filled) return;
    if (style_->mark == TabMark::Outlined) {
        const qreal half = kOutline / 2.0;
        painter.strokePath(OutlineOf(QRectF(shape).adjusted(half, half, -half, 0)),
                           QPen(colours.mark, kOutline));
        return;
    }
    if (style_->mark == TabMark::Below) bar.setTop(shape.bottom() - kBar + 1);
    if (style_->mark == TabMark::Above) bar.setBottom(shape.top() + kBar - 1);
    painter.save();
    painter.setClipPath(OutlineOf(shape));
    painter.fillRect(bar, colours.mark);
    painter.restore();
}

void TabBar::PaintCaption(QPainter& painter, int index, const QColor& colour) const {
    const QRect room = ShapeOf(index).adjusted(kPadding, 0, -2 * kPadding - kCloseSize, 0);
    const QString caption =
        fontMetrics().elidedText(tabText(index), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
    PaintDot(painter, index, colour);
    painter.setPen(colour);
    painter.drawText(room, Qt::AlignCenter | Qt::TextShowMnemonic, caption);
    if (!hasFocus() || index != currentIndex()) return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = room.adjusted(-4, 4, 4, -4);
    option.backgroundColor = Colours().active;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

} // namespace korvane
