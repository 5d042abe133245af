#pragma once

#include "platform/windows/WindowHandOver.h"

#include <functional>

namespace korvane {

/// The text box as an invisible window inside a picture box, where a second start looks for it. Until the
/// main window exists, both are in an invisible window with the same title, so that a second start finds them
/// while the first file is loading. All calls must come from one thread, and its messages bring the texts.
class Win32CommandBox final : public CommandBox {
public:
    Win32CommandBox() = default;
    Win32CommandBox(const Win32CommandBox&) = delete;
    Win32CommandBox& operator=(const Win32CommandBox&) = delete;
    ~Win32CommandBox() override;

    void Open(std::function<void(TextView text)> changed) override;
    /// Moves the open box into the main window. It is destroyed with that window.
    void MoveTo(WindowHandle mainWindow);

private:
    struct Procedure;
    void TextArrived();
    void CloseStandIn();

    WindowHandle standIn_ = kNoWindow;
    WindowHandle pictureBox_ = kNoWindow;
    WindowHandle textBox_ = kNoWindow;
    std::function<void(TextView text)> changed_;
};

} // namespace korvane
