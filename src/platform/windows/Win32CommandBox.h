#pragma once

#include "platform/windows/WindowHandOver.h"

#include <functional>

namespace korvane {

/// The text box as a real, invisible window inside the main window, in a picture box as second starts look
/// for it.
class Win32CommandBox final : public CommandBox {
public:
    /// `mainWindow` is the first window of the program that has the box, and outlives it.
    explicit Win32CommandBox(WindowHandle mainWindow, const CodePage& page);
    Win32CommandBox(const Win32CommandBox&) = delete;
    Win32CommandBox& operator=(const Win32CommandBox&) = delete;
    ~Win32CommandBox() override;

    void Open(std::function<void(TextView text)> changed) override;

private:
    struct Procedure;
    void TextArrived();

    WindowHandle mainWindow_;
    CodePage page_;
    WindowHandle pictureBox_ = kNoWindow;
    WindowHandle textBox_ = kNoWindow;
    std::function<void(TextView text)> changed_;
};

} // namespace korvane
