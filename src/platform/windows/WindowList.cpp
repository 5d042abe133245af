#include "platform/windows/WindowList.h"

namespace korvane {

namespace {

constexpr std::size_t kClassNameRoom = 1024;
constexpr std::size_t kTitleRoom = 1024;

} // namespace

std::vector<ListedWindow> EnumerateWindows(const WindowList& windows) {
    std::vector<ListedWindow> listed;
    for (const WindowHandle window : windows.TopLevel()) {
        if (!windows.IsOwn(window)) listed.push_back({window, windows.WindowText(window, kTitleRoom)});
    }
    return listed;
}

WindowHandle FindChildWindow(const WindowList& windows, WindowHandle parent, std::string_view classPrefix,
                             std::string_view classSuffix) {
    for (WindowHandle child = windows.FirstChild(parent); child != kNoWindow;
         child = windows.NextSibling(child)) {
        const std::string name = windows.ClassName(child, kClassNameRoom);
        if (name.starts_with(classPrefix) && name.ends_with(classSuffix)) return child;
    }
    return kNoWindow;
}

Text ReadWindowText(const WindowList& windows, WindowHandle window) {
    if (window == kNoWindow) return {};
    const std::size_t length = windows.TextLength(window);
    return length == 0 ? Text() : windows.WindowText(window, length + 1);
}

} // namespace korvane
