#include "platform/qt/textbars/TextRulerView.h"

#include "document/editing/TextEditing.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

constexpr int kHeight = 24;
/// How near the mouse must be to what it takes.
constexpr int kReach = 5;
constexpr int kSize = 5;
/// What is dragged goes to steps of so many twips: a sixteenth of an inch, or a millimetre.
constexpr std::int32_t kInchStep = 90;
constexpr double kMillimetre = kTwipsPerInch / 25.4;

bool Metric(const TextControl& control) {
    return control.ScaleUnits == TextControl::kMillimetres;
}

std::int32_t Stepped(std::int32_t twips, bool metric) {
    const double step = metric ? kMillimetre : kInchStep;
    return static_cast<std::int32_t>(std::lround(std::round(twips / step) * step));
}

QPainterPath Pointer(double x, double y, double way) {
    QPainterPath path;
    path.moveTo(x, y);
    path.lineTo(x - kSize, y + way * kSize);
    path.lineTo(x + kSize, y + way * kSize);
    path.closeSubpath();
    return path;
}

} // namespace

TextRulerView::TextRulerView(QWidget* parent) : QFrame(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TextRulerView::SetView(QtTextView* view) {
    if (view_ != nullptr) view_->disconnect(this);
    view_ = view;
    if (view_ != nullptr) connect(view_, &QtTextView::Seen, this, qOverload<>(&QWidget::update));
    update();
}

QSize TextRulerView::sizeHint() const {
    return {200, kHeight};
}

doc::ParaFormat TextRulerView::Format() const {
    const TextControl* const control = Control();
    return control == nullptr ? doc::ParaFormat{}
                              : control->Store().ParaAt(static_cast<doc::Pos>(control->SelStart()));
}

int TextRulerView::XOf(std::int32_t twips) const {
    if (view_ == nullptr) return 0;
    const QPoint margin = view_->viewport()->mapTo(view_->window(), QPoint());
    const QPoint own = mapTo(window(), QPoint());
    return static_cast<int>(
        std::lround(margin.x() - own.x() + view_->MarginX() + TextPixels(twips) * view_->Zoom()));
}

std::int32_t TextRulerView::TwipsAt(int x) const {
    return view_ == nullptr ? 0 : TextTwips((x - XOf(0)) / view_->Zoom());
}

std::int32_t TextRulerView::TextWidth() const {
    if (view_->ShowsPages()) return TextTwips(view_->Pages().TextRight() - view_->Pages().TextLeft());
    return TextTwips((view_->viewport()->width() - 2 * view_->MarginX()) / view_->Zoom());
}

TextRulerView::Part TextRulerView::PartAt(const QPoint& point) {
    const doc::ParaFormat format = Format();
    const auto near = [&](std::int32_t twips) { return std::abs(XOf(twips) - point.x()) <= kReach; };
    const bool upper = point.y() < height() / 2;
    if (upper && near(format.left + format.first)) return Part::First;
    for (const doc::TabStop& stop : format.tabs) {
        if (near(stop.at)) return tab_ = stop.at, Part::Tab;
    }
    if (near(format.left)) return Part::Left;
    if (near(TextWidth() - format.right)) return Part::Right;
    return Part::None;
}

void TextRulerView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || Control() == nullptr) return;
    held_ = PartAt(event->pos());
    const std::int32_t at = Stepped(TwipsAt(event->pos().x()), Metric(*Control()));
    if (held_ == Part::None && at > 0 && Format().tabs.size() < doc::TextEditing::kTabs) {
        PutTab(Format().tabs.size(), at);
        held_ = Part::Tab;
        tab_ = at;
    }
    if (Pressed) Pressed(event->pos().x());
}

void TextRulerView::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0 || Control() == nullptr) return;
    const bool off = event->pos().y() > height() + 3 * kReach || event->pos().y() < -3 * kReach;
    if (held_ == Part::Tab && off)
        DragTab(0);
    else
        Drag(event->pos().x());
    if (Moved) Moved(event->pos().x());
}

void TextRulerView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    held_ = Part::None;
    if (Released) Released();
}

void TextRulerView::Drag(int x) {
    TextControl& control = *Control();
    const std::int32_t at = Stepped(TwipsAt(x), Metric(control));
    const doc::ParaFormat format = Format();
    switch (held_) {
    case Part::First:
        control.SetIndentFL(std::max(at, 0) - format.left);
        break;
    case Part::Left: {
        const doc::Step step(control.Store());
        // The first line stays where it is, so that an indent can be made to hang.
        control.SetIndentFL(format.first + format.left - std::max(at, 0));
        control.SetIndentL(std::max(at, 0));
        break;
    }
    case Part::Right:
        control.SetIndentR(std::max(TextWidth() - at, 0));
        break;
    case Part::Tab:
        DragTab(std::max(at, kInchStep));
        break;
    case Part::None:
        break;
    }
}

/// Moves the tab that is held, or takes it away for 0.
void TextRulerView::DragTab(std::int32_t twips) {
    const std::vector<doc::TabStop> tabs = Format().tabs;
    const auto taken = std::ranges::find(tabs, twips, &doc::TabStop::at);
    // Another tab isn't run over.
    if (twips == tab_ || taken != tabs.end()) return;
    const auto found = std::ranges::find(tabs, tab_, &doc::TabStop::at);
    // A tab that was off the ruler comes back as a new one.
    PutTab(static_cast<std::size_t>(found - tabs.begin()), twips);
    tab_ = twips;
}

/// The program's own tab stays the current one.
void TextRulerView::PutTab(std::size_t index, std::int32_t twips) {
    TextControl& control = *Control();
    const int current = control.TabCurrent();
    control.SetTabCurrent(static_cast<int>(index) + 1);
    control.SetTabPos(twips);
    control.SetTabCurrent(current);
}

void TextRulerView::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (Control() == nullptr) return;
    const doc::ParaFormat format = Format();
    const int right = XOf(TextWidth());
    painter.fillRect(QRect(XOf(0), 4, right - XOf(0), height() - 8), palette().color(QPalette::Base));
    PaintScale(painter);
    for (const doc::TabStop& stop : format.tabs)
        PaintTab(painter, stop);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setBrush(palette().color(QPalette::Button));
    painter.drawPath(Pointer(XOf(format.left + format.first), kSize + 1, -1));
    painter.drawPath(Pointer(XOf(format.left), height() - kSize - 1, 1));
    painter.drawPath(Pointer(XOf(TextWidth() - format.right), height() - kSize - 1, 1));
}

void TextRulerView::PaintScale(QPainter& painter) {
    const bool metric = Metric(*Control());
    const double unit = metric ? 10 * kMillimetre : kTwipsPerInch;
    painter.setPen(palette().color(QPalette::Text));
    QFont font = painter.font();
    font.setPointSizeF(7);
    painter.setFont(font);
    const int middle = height() / 2;
    // A short line halves the way between two numbers.
    const int last = static_cast<int>(TextWidth() / unit * 2);
    for (int i = 1; i <= last; ++i) {
        const int x = XOf(static_cast<std::int32_t>(i * unit / 2));
        if (i % 2 == 0)
            painter.drawText(QRect(x - 12, 4, 24, height() - 8), Qt::AlignCenter, QString::number(i / 2));
        else
            painter.drawLine(x, middle - 2, x, middle + 2);
    }
}

void TextRulerView::PaintTab(QPainter& painter, const doc::TabStop& stop) {
    const int x = XOf(stop.at);
    const int foot = height() - 5;
    painter.setPen(QPen(palette().color(QPalette::Text), 2));
    painter.drawLine(x, foot - 7, x, foot);
    if (stop.type != doc::TabType::Right) painter.drawLine(x, foot, x + kSize, foot);
    if (stop.type == doc::TabType::Right || stop.type == doc::TabType::Centred)
        painter.drawLine(x - kSize, foot, x, foot);
    if (stop.type == doc::TabType::Decimal) painter.drawPoint(x + 3, foot - 4);
}

} // namespace korvane
