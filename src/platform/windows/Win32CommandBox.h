#pragma once

#include "platform/windows/WindowHandOver.h"

#include <functional>

namespace korvane {

/// The text box as a real, invisible window, in a picture box as second starts look for it. Until the main
/// window is there, it stands in an invisible window of the same title, so that no second start comes in vain
/// while the first file loads. All calls come from one thread, whose messages bring the texts.
class Win32CommandBox final : public CommandBox {
public:
    Win32CommandBox() = default;
    Win32CommandBox(const Win32CommandBox&) = delete;
    Win32CommandBox& operator=(const Win32CommandBox&) = delete;
    ~Win32CommandBox() override;

    void Open(std::function<void(TextView text)> changed) override;
    /// The open box stands in the main window from now on, and goes with it.
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
