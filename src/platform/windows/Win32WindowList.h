#pragma once

#include "platform/windows/WindowList.h"

#include <memory>

namespace korvane {

/// The windows of the real desktop.
class Win32WindowList final : public WindowList {
public:
    Win32WindowList();
    ~Win32WindowList() override;

    bool AnotherCopyRuns() override;
    std::vector<WindowHandle> TopLevel() const override;
    bool IsOwn(WindowHandle window) const override;
    WindowHandle FirstChild(WindowHandle parent) const override;
    WindowHandle NextSibling(WindowHandle window) const override;
    std::string ClassName(WindowHandle window, std::size_t room) const override;
    std::string WindowText(WindowHandle window, std::size_t room) const override;
    std::intptr_t Send(WindowHandle window, unsigned message, const char* text) override;
    void Activate(WindowHandle window) override;
    void Rest() override;

private:
    class InstanceMark;
    std::unique_ptr<InstanceMark> mark_;
};

} // namespace korvane
