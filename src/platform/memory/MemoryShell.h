#pragma once

#include "platform/Shell.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// One call that the desktop got.
struct ShellCall {
    enum class Kind : std::uint8_t { Explore, ToggleDesktop };

    Kind kind;
    /// The folder of `Explore`; empty for the others.
    Text argument;

    bool operator==(const ShellCall&) const = default;
};

/// A desktop that does nothing but remember what it was asked for.
class MemoryShell final : public Shell {
public:
    void Explore(TextView folder) override { calls_.push_back({ShellCall::Kind::Explore, Text(folder)}); }
    void ToggleDesktop() override { calls_.push_back({ShellCall::Kind::ToggleDesktop, {}}); }

    /// All calls so far, in order.
    const std::vector<ShellCall>& Calls() const { return calls_; }

private:
    std::vector<ShellCall> calls_;
};

} // namespace korvane
