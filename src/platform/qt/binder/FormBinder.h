#pragma once

#include "controls/Form.h"
#include "platform/qt/adaptors/WindowAdaptor.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/base/PageSource.h"

#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

namespace korvane {

/// Connects the controls of a window with the widgets of the same names until the binder is destroyed.
class FormBinder {
public:
    /// `form` must live until the binder is destroyed or `Detach` is called. The widgets may be destroyed
    /// earlier.
    FormBinder(Form& form, QWidget& window, PageSource& pages);
    ~FormBinder();
    FormBinder(const FormBinder&) = delete;
    FormBinder& operator=(const FormBinder&) = delete;

    /// Cuts the connection to the form: it isn't told any more of what the user does.
    void Detach();
    /// Gives the keyboard to the control that the form wants to have it.
    void FocusWanted();

private:
    QPointer<WindowAdaptor> window_;
    std::vector<QPointer<ControlAdaptor>> controls_;
    Form* form_;
};

/// Lists what doesn't fit between a window and its look, one line each: a control without a widget, a widget
/// that isn't a control of the window, and a widget that takes the keyboard but has no name for a screen
/// reader. Widgets that are no controls have names that begin with "plain".
std::vector<std::string> FormProblems(const Form& form, QWidget& window);

} // namespace korvane
