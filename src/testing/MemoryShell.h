#pragma once

#include "platform/Shell.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace korvane {

/// One call that the desktop got.
struct ShellCall {
    enum class Kind : std::uint8_t { Explore, ToggleDesktop, Beep };

    Kind kind;
    /// The folder of `Explore`; empty for the others.
    Text argument;

    bool operator==(const ShellCall&) const = default;
};

/// One program that was to be started.
struct ProgramStart {
    Text program;
    std::vector<Text> arguments{};
    WindowState window = WindowState::Normal;

    bool operator==(const ProgramStart&) const = default;
};

/// Something that was to go to the recycle store.
struct Recycling {
    Text path;
    RecycleTalk talk;

    bool operator==(const Recycling&) const = default;
};

/// A desktop that only remembers what it was asked for.
class MemoryShell final : public Shell {
public:
    int Run(TextView program, const std::vector<Text>& arguments, WindowState window) override {
        starts_.push_back({Text(program), arguments, window});
        const bool started = !program.empty() && (!startable_ || startable_(program));
        return started ? static_cast<int>(starts_.size()) : 0;
    }
    void Open(const OpenRequest& request) override { opened_.push_back(request); }
    void Browse(TextView address) override { browsed_.emplace_back(address); }
    void Explore(TextView folder) override { calls_.push_back({ShellCall::Kind::Explore, Text(folder)}); }
    bool Recycle(TextView path, RecycleTalk talk) override {
        recycled_.push_back({Text(path), talk});
        return recycler_ && recycler_(path);
    }
    void ToggleDesktop() override { calls_.push_back({ShellCall::Kind::ToggleDesktop, {}}); }
    void Beep() override { calls_.push_back({ShellCall::Kind::Beep, {}}); }

    /// Sets which programs can be started; all can be until then.
    void SetStartable(std::function<bool(TextView program)> startable) { startable_ = std::move(startable); }

    /// Sets what takes things away to the recycle store, and says whether it did. There is no store until
    /// then.
    void SetRecycler(std::function<bool(TextView path)> recycler) { recycler_ = std::move(recycler); }

    /// All calls so far except those of the kinds below, in order.
    const std::vector<ShellCall>& Calls() const { return calls_; }
    /// All starts so far, also those that failed, in order.
    const std::vector<ProgramStart>& Starts() const { return starts_; }
    /// All that was to be opened so far, in order.
    const std::vector<OpenRequest>& Opened() const { return opened_; }

    /// All addresses that the desktop's browser was to show so far, in order.
    const std::vector<Text>& Browsed() const { return browsed_; }

    /// All that was to go to the recycle store so far, also what stayed, in order.
    const std::vector<Recycling>& Recycled() const { return recycled_; }

private:
    std::vector<ShellCall> calls_;
    std::vector<ProgramStart> starts_;
    std::vector<OpenRequest> opened_;
    std::vector<Text> browsed_;
    std::vector<Recycling> recycled_;
    std::function<bool(TextView program)> startable_;
    std::function<bool(TextView path)> recycler_;
};

} // namespace korvane
