#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// A window of any program; 0 is none.
using WindowHandle = std::uintptr_t;

inline constexpr WindowHandle kNoWindow = 0;

inline constexpr unsigned kWmSetText = 12;
inline constexpr unsigned kWmGetTextLength = 14;

/// The windows of the desktop, as the system tells of them. Texts are bytes of its code page.
class WindowList {
public:
    virtual ~WindowList() = default;

    /// Whether another process runs the same executable.
    virtual bool AnotherCopyRuns() = 0;

    /// Top-level windows, in the system's order.
    virtual std::vector<WindowHandle> TopLevel() const = 0;
    virtual bool IsOwn(WindowHandle window) const = 0;
    /// `kNoWindow` when there is none.
    virtual WindowHandle FirstChild(WindowHandle parent) const = 0;
    virtual WindowHandle NextSibling(WindowHandle window) const = 0;
    /// At most `room` - 1 bytes of the name or text, as the system fills a buffer of that size.
    virtual std::string ClassName(WindowHandle window, std::size_t room) const = 0;
    virtual std::string WindowText(WindowHandle window, std::size_t room) const = 0;
    /// Sends a message and returns its result, 0 also when the window is gone.
    virtual std::intptr_t Send(WindowHandle window, unsigned message, const char* text) = 0;

    virtual void Activate(WindowHandle window) = 0;
    /// Leaves the processor to others for a moment.
    virtual void Rest() = 0;
};

/// A top-level window and its title.
struct ListedWindow {
    WindowHandle handle;
    std::string title;
};

/// The top-level windows of other processes: a window of this one is never the running copy.
std::vector<ListedWindow> EnumerateWindows(const WindowList& windows);

/// The first direct child whose class name starts with `classPrefix` and ends with `classSuffix`, or
/// `kNoWindow`.
WindowHandle FindChildWindow(const WindowList& windows, WindowHandle parent, std::string_view classPrefix,
                             std::string_view classSuffix);

/// The window's text; empty when there is no window.
std::string ReadWindowText(WindowList& windows, WindowHandle window);

} // namespace korvane
