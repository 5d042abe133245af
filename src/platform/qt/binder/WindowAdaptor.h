#pragma once

#include "controls/Form.h"

#include <QObject>
#include <QWidget>

namespace korvane {

/// Whether the widget is a window; else it is a page of its window's tab strip.
bool StandsAlone(const QWidget& widget);

/// Ties a window to its widget: caption and place both ways, closing, activation and the keys that press its
/// default and cancel buttons. It belongs to the widget, and is deaf once detached.
class WindowAdaptor : public QObject, public View {
public:
    WindowAdaptor(Form& form, QWidget& window);
    ~WindowAdaptor() override;

    void WriteAll();
    /// Lets go of the window, which may go away then.
    void Detach();
    void Follow(Observed& observed, Aspect aspect) override;
    void Gone() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TellActivated();
    bool CloseWanted(QEvent& event);
    void TakeDrop(QEvent& event);
    bool KeyPressed(const QKeyEvent& event);
    bool PressButtonFor(int code);
    void WritePlace();
    void WriteState();
    void ReadState();
    void ReadPlace();

    Form* form_;
    QWidget& window_;
};

} // namespace korvane
