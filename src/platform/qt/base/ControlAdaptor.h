#pragma once

#include "controls/Control.h"

#include <QAction>
#include <QObject>
#include <QSignalBlocker>
#include <QWidget>

namespace korvane {

/// Ties one control to its widget: what the program sets reaches the widget, what the user does reaches the
/// control. It belongs to the widget, and is deaf once detached.
class ControlAdaptor : public QObject, public View {
public:
    ControlAdaptor(Control& control, QObject& shown);
    ~ControlAdaptor() override;

    /// Brings the widget to the control's state.
    void WriteAll();
    /// Lets go of the control, which may go away then.
    void Detach();
    void Follow(Observed& observed, Aspect aspect) final;
    void Gone() final;

    /// nullptr when the control is shown by something else than a widget.
    QWidget* Shown() const { return widget_; }

protected:
    /// Brings one aspect to the widget. A kind of control handles its own and leaves the rest to this one.
    virtual void Write(Aspect aspect);
    /// Disconnects what hears the user. The control may have gone already.
    virtual void Deafen();
    /// Disconnects what hears the control by other ways than its view.
    virtual void LetGo() {}
    bool Attached() const { return subject_ != nullptr; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WriteWidth();
    bool KeyPressed(const QKeyEvent& event);

    Control* subject_;
    QObject* shown_;
    QWidget* widget_;
};

/// The base of the adaptors of one kind of control and one kind of widget.
template <class ControlT, class WidgetT>
class AdaptorOf : public ControlAdaptor {
public:
    AdaptorOf(ControlT& control, WidgetT& widget)
        : ControlAdaptor(control, widget), control_(control), widget_(widget) {}

protected:
    ControlT& control_;
    WidgetT& widget_;
};

} // namespace korvane
