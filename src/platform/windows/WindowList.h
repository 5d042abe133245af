#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// A window of any program; 0 is none.
using WindowHandle = std::uintptr_t;

inline constexpr WindowHandle kNoWindow = 0;

/// The windows of the desktop, as the system tells of them. Texts go from program to program in its code
/// page: what has no place there arrives as "?".
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
    /// At most `room` - 1 bytes of the name, as the system fills a buffer of that size.
    virtual std::string ClassName(WindowHandle window, std::size_t room) const = 0;
    /// In the same way.
    virtual Text WindowText(WindowHandle window, std::size_t room) const = 0;

    // Both wait until the window answers, whatever its program does meanwhile.

    /// The number of bytes of the window's text; 0 also when the window is gone.
    virtual std::size_t TextLength(WindowHandle window) const = 0;
    /// False when the window doesn't take the text, as none does that is gone.
    virtual bool SetText(WindowHandle window, TextView text) = 0;

    virtual void Activate(WindowHandle window) = 0;
    /// Leaves the processor to others for a moment.
    virtual void Rest() = 0;
};

/// A top-level window and its title.
struct ListedWindow {
    WindowHandle handle;
    Text title;
};

/// The top-level windows of other processes: a window of this one is never the running copy.
std::vector<ListedWindow> EnumerateWindows(const WindowList& windows);

/// The first direct child whose class name starts with `classPrefix` and ends with `classSuffix`, or
/// `kNoWindow`.
WindowHandle FindChildWindow(const WindowList& windows, WindowHandle parent, std::string_view classPrefix,
                             std::string_view classSuffix);

/// The window's text; empty when there is no window.
Text ReadWindowText(const WindowList& windows, WindowHandle window);

} // namespace korvane
