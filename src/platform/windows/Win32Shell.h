#pragma once

#include "platform/Shell.h"

namespace korvane {

/// The desktop of Windows.
class Win32Shell final : public Shell {
public:
    /// The task number is that of the process. A program without a folder is looked for as the system does.
    int Run(TextView program, const std::vector<Text>& arguments, WindowState window) override;
    void Open(const OpenRequest& request) override;
    void Explore(TextView folder) override;
    void ToggleDesktop() override;
    void Beep() override;
};

} // namespace korvane
