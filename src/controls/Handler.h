#pragma once

#include "controls/CommandButton.h"
#include "controls/KeyEvent.h"

#include <variant>

namespace korvane {

/// What a key or an entry of a menu starts in a window: one of the window's routines, or one of its buttons
/// as if it were pressed. It is a pointer to the member, so that an editor leads from the row of a table to
/// the code.
template <class Window>
class Handler {
public:
    /// Starts nothing.
    constexpr Handler() = default;
    constexpr Handler(void (Window::*routine)()) : member_(routine) {}
    /// What the routine returns is passed over: `&Form::Close` is such a one.
    constexpr Handler(bool (Window::*routine)()) : member_(routine) {}
    /// A routine that looks at the key, or decides whether it is consumed. Another start shows it no key.
    constexpr Handler(void (Window::*routine)(KeyEvent&)) : member_(routine) {}
    constexpr Handler(CommandButton Window::*button) : member_(button) {}

    void Run(Window& window, KeyEvent& key) const {
        std::visit([&](auto member) { Start(window, key, member); }, member_);
    }
    void Run(Window& window) const {
        KeyEvent none;
        Run(window, none);
    }

private:
    template <class Result, class... Arguments>
    using Routine = Result (Window::*)(Arguments...);

    static void Start(Window&, KeyEvent&, std::monostate) {}
    static void Start(Window& window, KeyEvent&, Routine<void> routine) { (window.*routine)(); }
    static void Start(Window& window, KeyEvent&, Routine<bool> routine) { (window.*routine)(); }
    static void Start(Window& window, KeyEvent& key, Routine<void, KeyEvent&> routine) {
        (window.*routine)(key);
    }
    static void Start(Window& window, KeyEvent&, CommandButton Window::*button) { (window.*button).Press(); }

    std::variant<std::monostate, Routine<void>, Routine<bool>, Routine<void, KeyEvent&>,
                 CommandButton Window::*>
        member_;
};

} // namespace korvane
