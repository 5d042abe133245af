#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/Timer.h"
#include "controls/views/Splitter.h"
#include "platform/qt/binder/FormBinder.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMenu>

namespace korvane {

namespace {

bool IsShown(const Control& control, const QWidget& window) {
    // A menu that isn't on the menu bar pops up and has no widget in the window, and a timer is never seen.
    if (dynamic_cast<const Menu*>(&control) != nullptr || dynamic_cast<const Timer*>(&control) != nullptr)
        return true;
    const auto name = QString::fromStdString(control.Name());
    return window.findChild<QWidget*>(name) != nullptr || window.findChild<QAction*>(name) != nullptr;
}

/// Whether the name marks a part that Qt adds to its widgets, or a part that is meant to have no control.
bool StandsForNoControl(const QObject& part) {
    const QString name = part.objectName();
    return name.isEmpty() || name.startsWith(QLatin1String("qt_")) || name.startsWith(QLatin1String("plain"));
}

/// Whether `part` belongs to the inside of another control's widget and isn't a part of the window's look.
bool IsInnerPart(const QWidget& part, const Form& form) {
    for (const QWidget* around = part.parentWidget(); around != nullptr; around = around->parentWidget()) {
        const Control* control = form.Find(around->objectName().toStdString());
        const bool holdsOthers = dynamic_cast<const Panel*>(control) != nullptr ||
                                 dynamic_cast<const Splitter*>(control) != nullptr;
        if (control != nullptr && !holdsOthers) return true;
    }
    return false;
}

bool CanBeNamed(const QWidget& widget) {
    if (!widget.accessibleName().isEmpty()) return true;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return !button->text().isEmpty();
    const QWidget* window = widget.window();
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (label->buddy() == &widget) return true;
    }
    return false;
}

std::string Line(std::string_view what, const Form& form, const QString& name) {
    return form.Name() + ": " + std::string(what) + " " + name.toStdString();
}

} // namespace

std::vector<std::string> FormProblems(const Form& form, QWidget& window) {
    std::vector<std::string> problems;
    for (const Control* control : form.Controls()) {
        if (IsShown(*control, window)) continue;
        problems.push_back(Line("no widget for the control", form, QString::fromStdString(control->Name())));
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (qobject_cast<const QMenu*>(widget) != nullptr || IsInnerPart(*widget, form)) continue;
        const QString name = widget->objectName();
        const bool known = form.Find(name.toStdString()) != nullptr;
        if (!known && !StandsForNoControl(*widget)) {
            problems.push_back(Line("no control for the widget", form, name));
        }
        const bool takesKeyboard = (widget->focusPolicy() & Qt::TabFocus) != 0;
        if (known && takesKeyboard && !CanBeNamed(*widget)) {
            problems.push_back(Line("a screen reader can't name", form, name));
        }
    }
    return problems;
}

} // namespace korvane
