#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"
#include "controls/FormHost.h"
#include "controls/KeyEvent.h"
#include "controls/Observed.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

class Control;

enum class FormState : std::uint8_t { Normal, Minimised, Maximised };

/// A window: a set of named controls and the handlers of a subclass. It knows nothing of how it is drawn.
class Form : public Observed {
public:
    /// `name` is the window's class name, by which its look is found. The host outlives the form.
    Form(FormHost& host, std::string_view name, TextView caption);
    /// A form that is still shown leaves the screen without running its closing handlers.
    ~Form() override;

    const std::string& Name() const { return name_; }
    FormHost& Host() const { return host_; }

    Property<Text> Caption{*this, Aspect::Caption};
    // The window's place on the screen. All zero until it is shown or placed.
    Property<Twips> Left{*this, Aspect::Place};
    Property<Twips> Top{*this, Aspect::Place};
    Property<Twips> Width{*this, Aspect::Place};
    Property<Twips> Height{*this, Aspect::Place};
    Property<FormState> State{*this, Aspect::State, FormState::Normal};
    Text Tag;

    /// The controls in the order of their declaration. They live as long as the form.
    const std::vector<Control*>& Controls() const { return controls_; }
    /// nullptr when there is no such control.
    Control* Find(std::string_view name) const;
    /// The control that has the keyboard, or will have it when the window is shown; nullptr when none was
    /// given it yet.
    Control* Focused() const { return focused_; }
    /// Tells the form that the keyboard has moved to the control.
    void FocusMoved(Control& control) { focused_ = &control; }

    /// Runs `Load` unless it has run. Showing the window does so too; a window inside another one is only
    /// loaded.
    void EnsureLoaded();
    /// Returns when the window has closed.
    void ShowModal();
    void Show();
    bool Shown() const { return shown_; }
    /// Asks `QueryUnload`; when it agrees, runs `Unload` and takes the window from the screen. False when
    /// refused. When the window is shown later, it loads again.
    bool Close();

    // Handlers.

    /// Once, before the window is shown first.
    virtual void Load() {}
    /// Whether something would be lost if the window went away without a question.
    virtual bool HasChanges() const { return false; }
    /// False keeps the window open.
    virtual bool QueryUnload() { return true; }
    virtual void Unload() {}
    virtual void Activate() {}
    virtual void Resize() {}
    /// The user dropped files on the window.
    virtual void FilesDropped(const std::vector<Text>&) {}
    /// Sees each key before the control that has the focus.
    virtual void KeyDown(KeyEvent&) {}
    /// A mouse button was released over the window, where no control uses the mouse.
    virtual void Clicked() {}

private:
    friend class Control;
    void Adopt(Control& control) { controls_.push_back(&control); }
    void LeaveLoaded();

    FormHost& host_;
    std::string name_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    bool loaded_ = false;
    bool shown_ = false;
};

} // namespace korvane
