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
    /// Takes a window from the screen that has closed or whose object is going away. Nothing happens when it
    /// isn't shown.
    virtual void Hide(Form& form) = 0;
    /// Shows the menu at the mouse pointer and lets the user choose from it.
    virtual void PopUp(Menu& menu) = 0;
    /// Brings the window to the front and gives it the keyboard.
    virtual void Raise(Form& form) = 0;

    /// Whether a modal window is shown, below which no other one can be used.
    virtual bool ShowsModal() const { return false; }

    /// The windows that have run their `Load` and haven't closed yet, in the order of loading.
    const std::vector<Form*>& LoadedForms() const { return loaded_; }

private:
    friend class Form;
    std::vector<Form*> loaded_;
};

} // namespace korvane
