#pragma once

#include <vector>

namespace korvane {

class Form;
class Menu;

/// Puts windows on the screen. Under test a script takes its place.
class FormHost {
public:
    virtual ~FormHost() = default;
    /// Shows the window and returns when it has closed.
    virtual void RunModal(Form& form) = 0;
    virtual void Show(Form& form) = 0;
    /// The window has closed, or its object is going away: it leaves the screen. Nothing happens for one that
    /// isn't there.
    virtual void Hide(Form& form) = 0;
    /// Shows the menu at the mouse pointer; its entries are chosen as the user does.
    virtual void PopUp(Menu& menu) = 0;
    /// Brings the window to the front with the keyboard.
    virtual void Raise(Form& form) = 0;

    /// The windows that have run their `Load` and not yet closed, in this order.
    const std::vector<Form*>& LoadedForms() const { return loaded_; }

private:
    friend class Form;
    std::vector<Form*> loaded_;
};

} // namespace korvane
