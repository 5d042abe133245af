#include "platform/qt/base/ControlAdaptor.h"

#include "controls/Form.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/Keys.h"

#include <QApplication>
#include <QKeyEvent>

namespace korvane {

namespace {

constexpr Aspect kAspects[] = {Aspect::Caption, Aspect::Font,      Aspect::Range,   Aspect::Items,
                               Aspect::Text,    Aspect::Selection, Aspect::Value,   Aspect::Colours,
                               Aspect::ToolTip, Aspect::Place,     Aspect::Enabled, Aspect::Visible};

} // namespace

ControlAdaptor::ControlAdaptor(Control& control, QObject& shown)
    : QObject(&shown), subject_(&control), shown_(&shown), widget_(qobject_cast<QWidget*>(&shown)) {
    control.SetView(this);
    shown.installEventFilter(this);
}

ControlAdaptor::~ControlAdaptor() {
    if (subject_ != nullptr) subject_->SetView(nullptr);
}

void ControlAdaptor::WriteAll() {
    for (const Aspect aspect : kAspects)
        Write(aspect);
}

void ControlAdaptor::Detach() {
    if (subject_ == nullptr) return;
    LetGo();
    subject_->SetView(nullptr);
    Gone();
}

void ControlAdaptor::Gone() {
    subject_ = nullptr;
    shown_->removeEventFilter(this);
    Deafen();
}

void ControlAdaptor::Deafen() {
    shown_->disconnect(this);
}

void ControlAdaptor::Follow(Observed&, Aspect aspect) {
    if (subject_ != nullptr) Write(aspect);
}

void ControlAdaptor::Write(Aspect aspect) {
    if (widget_ == nullptr) return;
    switch (aspect) {
    case Aspect::Enabled:
        widget_->setEnabled(subject_->Enabled);
        break;
    case Aspect::Visible:
        widget_->setVisible(subject_->Visible);
        break;
    case Aspect::ToolTip:
        widget_->setToolTip(PlainToolTip(subject_->ToolTipText.Get()));
        break;
    case Aspect::Font:
        if (subject_->Font.Get() != FontSpec{})
            widget_->setFont(WithSpec(QApplication::font(widget_), subject_->Font));
        break;
    case Aspect::Place:
        WriteSize();
        break;
    case Aspect::Focus:
        widget_->setFocus(Qt::OtherFocusReason);
        break;
    default:
        break;
    }
}

void ControlAdaptor::WriteSize() {
    if (subject_->Width.Get() > Twips{0}) widget_->setFixedWidth(ToPixels(subject_->Width));
    if (subject_->Height.Get() > Twips{0}) widget_->setFixedHeight(ToPixels(subject_->Height));
}

bool ControlAdaptor::eventFilter(QObject* watched, QEvent* event) {
    if (subject_ == nullptr) return false;
    if (event->type() == QEvent::KeyPress) return KeyPressed(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::FocusIn) {
        subject_->Owner().FocusMoved(*subject_);
        if (subject_->GotFocus) subject_->GotFocus();
    }
    return QObject::eventFilter(watched, event);
}

bool ControlAdaptor::KeyPressed(const QKeyEvent& event) {
    // A widget passes a key that it doesn't use on to its parent. Only the control that has the keyboard is
    // told of it.
    if (widget_ == nullptr || widget_->window()->focusWidget() != widget_) return false;
    KeyEvent key = ToKeyEvent(event);
    if (key.code == 0) return false;
    subject_->Owner().KeyDown(key);
    if (!key.consumed && subject_ != nullptr && subject_->KeyDown) subject_->KeyDown(key);
    return key.consumed;
}

} // namespace korvane
