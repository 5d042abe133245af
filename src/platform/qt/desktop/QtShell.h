#pragma once

#include "platform/Shell.h"

namespace korvane {

/// The desktop that the program runs on.
class QtShell final : public Shell {
public:
    /// A started program has the task number 1, and its window comes up as the system likes it.
    int Run(TextView program, const std::vector<Text>& arguments, WindowState window) override;
    void Open(const OpenRequest& request) override;
    void Explore(TextView folder) override;
    void ToggleDesktop() override;
    void Beep() override;
};

} // namespace korvane
