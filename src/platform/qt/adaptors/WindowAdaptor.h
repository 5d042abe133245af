#pragma once

#include "controls/Form.h"
#include "platform/qt/adaptors/KeyHold.h"

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace korvane {

/// Whether the widget is a window of its own. Otherwise it is a page on a tab.
bool StandsAlone(const QWidget& widget);

/// Connects a window with its widget: caption, place, closing, activation, and the keys that press its
/// default button and its cancel button. The widget owns the adaptor. After `Detach` it does nothing any
/// more.
class WindowAdaptor : public QObject, public View {
public:
    WindowAdaptor(Form& form, QWidget& window);
    ~WindowAdaptor() override;

    void WriteAll();
    /// Cuts the connection to the window, which may then be destroyed.
    void Detach();
    void Follow(Observed& observed, Aspect aspect) override;
    void Gone() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Does what belongs to events that go on to the window.
    void Follow(QEvent::Type event);
    void TellActivated();
    void Activate();
    bool CloseWanted(QEvent& event);
    void TakeDrop(QEvent& event);
    bool KeyPressed(const QKeyEvent& event);
    bool PressButtonFor(int code);
    void MakeRoom();
    void WritePlace();
    void WriteState();
    void ReadState();
    void ReadPlace();

    Form* form_;
    QWidget& window_;
    KeyHold hold_{window_};
};

} // namespace korvane
