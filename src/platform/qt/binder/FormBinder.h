#pragma once

#include "controls/Form.h"
#include "platform/qt/base/ControlAdaptor.h"
#include "platform/qt/base/PageSource.h"
#include "platform/qt/binder/WindowAdaptor.h"

#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

namespace korvane {

/// Ties a window's controls to the widgets of the same names, both ways, until it is destroyed.
class FormBinder {
public:
    /// `form` outlives the binder or its `Detach`; the widgets may go first.
    FormBinder(Form& form, QWidget& window, PageSource& pages);
    ~FormBinder();
    FormBinder(const FormBinder&) = delete;
    FormBinder& operator=(const FormBinder&) = delete;

    /// Lets go of the form: what the widgets do from now on reaches nobody.
    void Detach();
    /// Gives the keyboard to the control that the form wants to have it.
    void FocusWanted();

private:
    QPointer<WindowAdaptor> window_;
    std::vector<QPointer<ControlAdaptor>> controls_;
    Form* form_;
};

/// What doesn't fit between a window and its look, one line each: a control without a widget, a widget named
/// like a control without one, a widget for the keyboard that a screen reader couldn't name. Names of widgets
/// that are no controls begin with "plain".
std::vector<std::string> FormProblems(const Form& form, QWidget& window);

} // namespace korvane
