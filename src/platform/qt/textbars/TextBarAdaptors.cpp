#include "platform/qt/textbars/TextBarAdaptors.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/text/QtTextView.h"

#include <QLayout>
#include <algorithm>

namespace korvane {

QtTextView* ViewOf(const TextControl* control, const QWidget& beside) {
    if (control == nullptr) return nullptr;
    return beside.window()->findChild<QtTextView*>(QString::fromStdString(control->Name()));
}

void TextButtonBarAdaptor::Write(Aspect aspect) {
    AdaptorOf::Write(aspect);
    if (aspect == Aspect::Value) widget_.SetView(ViewOf(control_.Target, widget_));
}

void TextButtonBarAdaptor::Deafen() {
    AdaptorOf::Deafen();
    widget_.SetView(nullptr);
}

TextRulerAdaptor::TextRulerAdaptor(TextRuler& ruler, TextRulerView& widget) : AdaptorOf(ruler, widget) {
    widget.Pressed = [this](int x) {
        if (control_.MouseDown) control_.MouseDown(ToTwips(x));
    };
    widget.Moved = [this](int x) {
        if (control_.MouseMove) control_.MouseMove(ToTwips(x));
    };
    widget.Released = [this] {
        if (control_.MouseUp) control_.MouseUp();
    };
}

void TextRulerAdaptor::Write(Aspect aspect) {
    AdaptorOf::Write(aspect);
    if (aspect == Aspect::Value) widget_.SetView(ViewOf(control_.Target, widget_));
}

void TextRulerAdaptor::Deafen() {
    AdaptorOf::Deafen();
    widget_.Pressed = widget_.Moved = nullptr;
    widget_.Released = nullptr;
    widget_.SetView(nullptr);
}

void TextStatusAdaptor::Write(Aspect aspect) {
    AdaptorOf::Write(aspect);
    if (aspect != Aspect::Value) return;
    if (view_ != nullptr) view_->disconnect(this);
    view_ = ViewOf(control_.Target, widget_);
    if (view_ != nullptr) connect(view_, &QtTextView::Seen, this, &TextStatusAdaptor::ShowSoon);
    ShowSoon();
}

void TextStatusAdaptor::Deafen() {
    AdaptorOf::Deafen();
    if (view_ != nullptr) view_->disconnect(this);
    view_ = nullptr;
}

/// The view tells of every step of the selection, and only the last one can be seen.
void TextStatusAdaptor::ShowSoon() {
    if (std::exchange(asked_, true)) return;
    QMetaObject::invokeMethod(this, &TextStatusAdaptor::Show, Qt::QueuedConnection);
}

void TextStatusAdaptor::Show() {
    asked_ = false;
    if (view_ == nullptr || view_->Shown() == nullptr) {
        widget_.clear();
        return;
    }
    const CursorPlace place = view_->Place();
    QStringList parts;
    if (view_->ShowsPages()) parts << tr("Page %1 of %2").arg(place.page).arg(place.pages);
    parts << tr("Line %1").arg(place.line) << tr("Column %1").arg(place.column)
          << tr("%1 %").arg(view_->Shown()->ZoomFactor.Get());
    widget_.setText(parts.join(QStringLiteral("    ")));
}

HairLineAdaptor::HairLineAdaptor(HairLine& line, QFrame& widget) : AdaptorOf(line, widget) {
    widget.setAttribute(Qt::WA_TransparentForMouseEvents);
    widget.setFrameStyle(QFrame::VLine | QFrame::Plain);
    widget.setMinimumSize(0, 0);
    // It is over other widgets, so it mustn't take room from them.
    if (widget.parentWidget() != nullptr && widget.parentWidget()->layout() != nullptr)
        widget.parentWidget()->layout()->removeWidget(&widget);
}

void HairLineAdaptor::Write(Aspect aspect) {
    AdaptorOf::Write(aspect);
    if (aspect == Aspect::Place || aspect == Aspect::Visible) Put();
}

/// Puts the line over the text that is in the same window.
void HairLineAdaptor::Put() {
    const auto* const text = widget_.window()->findChild<QtTextView*>();
    if (text == nullptr || widget_.parentWidget() == nullptr) return;
    const QPoint place =
        text->mapTo(widget_.window(), QPoint()) - widget_.parentWidget()->mapTo(widget_.window(), QPoint());
    widget_.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    widget_.setGeometry(place.x() + ToPixels(control_.Left), place.y(), 1, text->height());
    widget_.raise();
}

} // namespace korvane
