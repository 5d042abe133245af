#pragma once

namespace korvane {

/// The window that has the keyboard.
class FrontWindow {
public:
    virtual ~FrontWindow() = default;
    /// Does there what the key Down does.
    virtual void PressDown() = 0;
};

} // namespace korvane
