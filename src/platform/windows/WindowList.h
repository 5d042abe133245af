#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// A window of any program. The value 0 means none.
using WindowHandle = std::uintptr_t;

inline constexpr WindowHandle kNoWindow = 0;

/// The windows of the desktop as the system reports them. Texts are passed between programs in the system's
/// code page, and a character that isn't in it arrives as "?".
class WindowList {
public:
    virtual ~WindowList() = default;

    /// Whether another process runs the same executable.
    virtual bool AnotherCopyRuns() = 0;

    /// The top-level windows in the system's order.
    virtual std::vector<WindowHandle> TopLevel() const = 0;
    virtual bool IsOwn(WindowHandle window) const = 0;
    /// Returns `kNoWindow` when there is no child.
    virtual WindowHandle FirstChild(WindowHandle parent) const = 0;
    virtual WindowHandle NextSibling(WindowHandle window) const = 0;
    /// Returns at most `room` - 1 bytes of the name, as if the system filled a buffer of `room` bytes.
    virtual std::string ClassName(WindowHandle window, std::size_t room) const = 0;
    /// Returns at most `room` - 1 bytes of the text, in the same way.
    virtual Text WindowText(WindowHandle window, std::size_t room) const = 0;

    // The next two calls wait until the window answers, whatever its program is doing.

    /// The number of bytes of the window's text, or 0 when the window is gone.
    virtual std::size_t TextLength(WindowHandle window) const = 0;
    /// Returns false when the window doesn't take the text, for example because it is gone.
    virtual bool SetText(WindowHandle window, TextView text) = 0;

    virtual void Activate(WindowHandle window) = 0;
    /// Gives other processes a moment to run.
    virtual void Rest() = 0;
};

/// A top-level window and its title.
struct ListedWindow {
    WindowHandle handle;
    Text title;
};

/// The top-level windows of other processes. A window of this process is never the running copy.
std::vector<ListedWindow> EnumerateWindows(const WindowList& windows);

/// The first direct child whose class name starts with `classPrefix` and ends with `classSuffix`, or
/// `kNoWindow`.
WindowHandle FindChildWindow(const WindowList& windows, WindowHandle parent, std::string_view classPrefix,
                             std::string_view classSuffix);

/// The window's text, which is empty when there is no window.
Text ReadWindowText(const WindowList& windows, WindowHandle window);

} // namespace korvane
