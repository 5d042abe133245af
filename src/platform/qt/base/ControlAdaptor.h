#pragma once

#include "controls/Control.h"

#include <QAction>
#include <QObject>
#include <QSignalBlocker>
#include <QWidget>

namespace korvane {

/// Connects one control with its widget: what the program sets is shown in the widget, and what the user does
/// is told to the control. The widget owns the adaptor. After `Detach` it does nothing any more.
class ControlAdaptor : public QObject, public View {
public:
    ControlAdaptor(Control& control, QObject& shown);
    ~ControlAdaptor() override;

    /// Shows the whole state of the control in the widget.
    void WriteAll();
    /// Cuts the connection to the control, which may then be destroyed.
    void Detach();
    void Follow(Observed& observed, Aspect aspect) final;
    void Gone() final;

    /// nullptr when the control is shown by something that isn't a widget, such as an action.
    QWidget* Shown() const { return widget_; }

protected:
    /// Shows one aspect of the control in the widget. A derived class handles the aspects of its own kind of
    /// control and passes the others on to this one.
    virtual void Write(Aspect aspect);
    /// Disconnects what listens to the user. The control may be destroyed already.
    virtual void Deafen();
    /// Disconnects what listens to the control in other ways than as its view.
    virtual void LetGo() {}
    bool Attached() const { return subject_ != nullptr; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WriteSize();
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
