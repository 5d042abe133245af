#pragma once

class QWidget;

namespace korvane {

class Form;

/// Makes the widget of a window that is shown on a tab of another window.
class PageSource {
public:
    virtual ~PageSource() = default;
    /// Makes the widget at the first call. The source keeps it. nullptr when the window has no look.
    virtual QWidget* PageOf(Form& form) = 0;
    /// Tells that the tab of the window was removed, so that its widget can be removed too.
    virtual void Release(Form& form) = 0;
};

} // namespace korvane
