#pragma once

#include "platform/Shell.h"

namespace korvane {

/// The desktop that the program runs on.
class QtShell final : public Shell {
public:
    /// Returns 1 if the program was started. The system decides how its window is shown.
    int Run(TextView program, const std::vector<Text>& arguments, WindowState window) override;
    void Open(const OpenRequest& request) override;
    void Browse(TextView address) override;
    void Explore(TextView folder) override;
    bool Recycle(TextView path, RecycleTalk talk) override;
    void ToggleDesktop() override;
    void Beep() override;
};

} // namespace korvane
