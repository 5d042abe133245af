#include "platform/qt/adaptors/SimpleAdaptors.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/FinishTyping.h"
#include "platform/qt/look/BackColour.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcutEvent>
#include <algorithm>
#include <functional>

namespace korvane {

namespace {

/// Clicks a button at once when Alt and its letter are pressed. Qt shows it pressed for a while first, and
/// keys that follow would act before it does.
class ClickAtOnce : public QObject {
public:
    explicit ClickAtOnce(QAbstractButton& button) : QObject(&button), button_(button) {
        button.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous())
            return false;
        if (button_.isCheckable()) button_.setFocus(Qt::ShortcutFocusReason);
        button_.click();
        return true;
    }

private:
    QAbstractButton& button_;
};

/// Connects a button that can be on or off. Qt toggles the widget when it is clicked, but only the control
/// decides whether it is on, so `press` writes the control's value back to the widget.
void FollowClicks(QAbstractButton& widget, ControlAdaptor& adaptor, const std::function<void()>& press) {
    widget.setCheckable(true);
    widget.setAutoExclusive(false);
    new ClickAtOnce(widget);
    QObject::connect(&widget, &QAbstractButton::clicked, &adaptor, press);
}

} // namespace

ButtonAdaptor::ButtonAdaptor(CommandButton& button, QAbstractButton& widget) : AdaptorOf(button, widget) {
    if (auto* pushButton = qobject_cast<QPushButton*>(&widget)) {
        // `WindowAdaptor` decides which button Return presses.
        pushButton->setAutoDefault(false);
        pushButton->setDefault(button.Default);
    }
    new ClickAtOnce(widget);
    connect(&widget, &QAbstractButton::clicked, this, [this] {
        FinishTyping();
        control_.Press();
    });
}

void ButtonAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Caption && !control_.Caption.Get().empty()) {
        widget_.setText(ToQString(control_.Caption.Get()));
    }
    if (aspect == Aspect::Colours) WriteBackColour(widget_, control_.BackColor, kButtonSurface);
    AdaptorOf::Write(aspect);
}

ActionAdaptor::ActionAdaptor(CommandButton& button, QAction& action) : AdaptorOf(button, action) {
    connect(&action, &QAction::triggered, this, [this] {
        FinishTyping();
        control_.Press();
    });
}

void ActionAdaptor::Write(Aspect aspect) {
    switch (aspect) {
    case Aspect::Caption:
    case Aspect::ToolTip:
        widget_.setText(
            ToQString(control_.Caption.Get().empty() ? control_.ToolTipText.Get() : control_.Caption.Get()));
        widget_.setToolTip(PlainToolTip(control_.ToolTipText.Get()));
        break;
    case Aspect::Enabled:
        widget_.setEnabled(control_.Enabled);
        break;
    case Aspect::Visible:
        widget_.setVisible(control_.Visible);
        break;
    default:
        break;
    }
}

CheckBoxAdaptor::CheckBoxAdaptor(CheckBox& box, QAbstractButton& widget) : AdaptorOf(box, widget) {
    FollowClicks(widget, *this, [this] {
        control_.Press();
        if (Attached()) Write(Aspect::Value);
    });
}

void CheckBoxAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Caption) widget_.setText(ToQString(control_.Caption.Get()));
    if (aspect == Aspect::Value) WriteValue();
    AdaptorOf::Write(aspect);
}

void CheckBoxAdaptor::WriteValue() {
    const bool mixed = control_.Value == CheckBox::kMixed;
    if (auto* box = qobject_cast<QCheckBox*>(&widget_)) {
        box->setTristate(mixed);
        if (mixed) return box->setCheckState(Qt::PartiallyChecked);
    }
    widget_.setChecked(control_.Value == 1);
}

OptionAdaptor::OptionAdaptor(OptionButton& option, QAbstractButton& widget) : AdaptorOf(option, widget) {
    FollowClicks(widget, *this, [this] {
        control_.Press();
        if (Attached()) Write(Aspect::Value);
    });
    widget.setAutoExclusive(true);
}

void OptionAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Caption) widget_.setText(ToQString(control_.Caption.Get()));
    if (aspect == Aspect::Value) WriteValue();
    AdaptorOf::Write(aspect);
}

void OptionAdaptor::WriteValue() {
    // Qt doesn't turn off the only button of a group that is on.
    widget_.setAutoExclusive(false);
    widget_.setChecked(control_.Value);
    widget_.setAutoExclusive(true);
    WriteTabStop();
}

/// The Tab key comes to one button of the group: the one that is on, otherwise the first.
void OptionAdaptor::WriteTabStop() {
    if (widget_.parentWidget() == nullptr) return;
    const auto group =
        widget_.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    if (group.isEmpty()) return;
    const auto on = std::ranges::find_if(group, &QAbstractButton::isChecked);
    const QRadioButton* stop = on == group.end() ? group.front() : *on;
    for (QRadioButton* button : group)
        button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

LabelAdaptor::LabelAdaptor(Label& label, QLabel& widget)
    : AdaptorOf(label, widget), title_(widget.accessibleName()) {
    widget.setTextFormat(Qt::PlainText);
}

void LabelAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Caption) WriteCaption();
    if (aspect == Aspect::Colours)
        WriteColours(widget_, control_.BackColor, control_.ForeColor, kWindowSurface);
    AdaptorOf::Write(aspect);
}

void LabelAdaptor::WriteCaption() {
    const QString caption = ToLines(control_.Caption.Get());
    widget_.setText(caption);
    if (!title_.isEmpty()) widget_.setAccessibleName(title_ + QStringLiteral(": ") + caption);
}

void PanelAdaptor::Write(Aspect aspect) {
    auto* frame = qobject_cast<QGroupBox*>(&widget_);
    const Text& caption = control_.Caption;
    // A frame without a caption of its own keeps the title from its look.
    if (aspect == Aspect::Caption && frame != nullptr && !caption.empty())
        frame->setTitle(ToQString(caption));
    if (aspect == Aspect::Colours) WriteBackColour(widget_, control_.BackColor, kWindowSurface);
    AdaptorOf::Write(aspect);
}

void ProgressAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Range) widget_.setMaximum(control_.Max);
    if (aspect == Aspect::Value && IsSeen()) {
        // The bar would paint itself at once and not when events run.
        widget_.setUpdatesEnabled(false);
        widget_.setValue(control_.Value);
        widget_.setUpdatesEnabled(true);
    }
    AdaptorOf::Write(aspect);
}

/// A long work counts each of its steps, and to tell the widget of one can cost more than the step itself.
bool ProgressAdaptor::IsSeen() const {
    const std::int64_t value = control_.Value;
    const std::int64_t max = control_.Max;
    return value <= 0 || value >= max || std::abs(value - widget_.value()) * kStepsOfBar >= max;
}

SliderAdaptor::SliderAdaptor(Slider& slider, QAbstractSlider& widget) : AdaptorOf(slider, widget) {
    connect(&widget, &QAbstractSlider::valueChanged, this, [this](int value) {
        control_.MoveTo(value);
        // A key, the wheel or a click on the groove moves the slider without holding it, so the move is
        // finished at once.
        if (!widget_.isSliderDown()) control_.Release();
    });
    connect(&widget, &QAbstractSlider::sliderReleased, this, [this] { control_.Release(); });
}

void SliderAdaptor::Write(Aspect aspect) {
    // The widget pulls a value into its range. The signals are blocked so that the control doesn't take this
    // for a move of the user and keeps its own value.
    const QSignalBlocker quiet(widget_);
    if (aspect == Aspect::Range) widget_.setRange(control_.Min, control_.Max);
    if (aspect == Aspect::Range && control_.LargeChange > 0) widget_.setPageStep(control_.LargeChange);
    if (aspect == Aspect::Range || aspect == Aspect::Value) widget_.setValue(control_.Value);
    AdaptorOf::Write(aspect);
}

TimerAdaptor::TimerAdaptor(Timer& timer, QTimer& shown) : AdaptorOf(timer, shown) {
    shown.setInterval(timer.Interval());
    connect(&shown, &QTimer::timeout, this, [this] { control_.Elapse(); });
}

void TimerAdaptor::Write(Aspect aspect) {
    if (aspect != Aspect::Enabled) return;
    if (control_.Enabled) {
        widget_.start();
    } else {
        widget_.stop();
    }
}

} // namespace korvane
