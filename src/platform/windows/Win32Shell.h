#pragma once

#include "platform/Shell.h"

namespace korvane {

/// The desktop of Windows.
class Win32Shell final : public Shell {
public:
    /// Returns the process number. Windows searches for a program that is given without a folder.
    int Run(TextView program, const std::vector<Text>& arguments, WindowState window) override;
    void Open(const OpenRequest& request) override;
    void Browse(TextView address) override;
    void Explore(TextView folder) override;
    bool Recycle(TextView path, RecycleTalk talk) override;
    void ToggleDesktop() override;
    void Beep() override;
};

} // namespace korvane
