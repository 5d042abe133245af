#pragma once

class QWidget;

namespace korvane {

class Form;

/// Makes the widget of a window that stands on a tab of another one.
class PageSource {
public:
    virtual ~PageSource() = default;
    /// nullptr when the window has no look. Made once; it stays the source's.
    virtual QWidget* PageOf(Form& form) = 0;
    /// The window's tab has gone: so does its widget.
    virtual void Release(Form& form) = 0;
};

} // namespace korvane
