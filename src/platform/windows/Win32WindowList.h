#pragma once

#include "platform/windows/WindowList.h"

#include <memory>

namespace korvane {

/// The windows of the real desktop.
class Win32WindowList final : public WindowList {
public:
    Win32WindowList();
    ~Win32WindowList() override;

    /// After the first call, programs that start later count this process as a running copy until it ends.
    bool AnotherCopyRuns() override;
    std::vector<WindowHandle> TopLevel() const override;
    bool IsOwn(WindowHandle window) const override;
    WindowHandle FirstChild(WindowHandle parent) const override;
    WindowHandle NextSibling(WindowHandle window) const override;
    std::string ClassName(WindowHandle window, std::size_t room) const override;
    Text WindowText(WindowHandle window, std::size_t room) const override;
    std::size_t TextLength(WindowHandle window) const override;
    bool SetText(WindowHandle window, TextView text) override;
    void Activate(WindowHandle window) override;
    void Rest() override;

private:
    class InstanceMark;
    std::unique_ptr<InstanceMark> mark_;
};

} // namespace korvane
