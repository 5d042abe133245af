#pragma once

#include "platform/Shell.h"

namespace korvane {

/// The user's desktop.
class QtShell final : public Shell {
public:
    int Run(TextView program, const std::vector<Text>& arguments, WindowState window) override;
    void Open(const OpenRequest& request) override;
    void Explore(TextView folder) override;
    void ToggleDesktop() override;
    void Beep() override;
};

} // namespace korvane
