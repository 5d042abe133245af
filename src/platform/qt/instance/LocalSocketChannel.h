#pragma once

#include "platform/InstanceChannel.h"
#include "platform/native/instance/InstancePlace.h"
#include "platform/native/instance/LocalSocket.h"

#include <QSocketNotifier>
#include <chrono>
#include <memory>
#include <optional>

namespace korvane {

/// Connects a second start of the program with the running copy, through a local socket that no other user
/// can reach.
class LocalSocketChannel final : public InstanceChannel {
public:
    struct Limits {
        /// How many connections are served at a time. The others wait.
        int conversations = 16;
        /// How long a connection may keep this copy waiting, all its lines together.
        std::chrono::milliseconds patience{2'000};
        /// How long a start waits for others that look for the running copy.
        std::chrono::milliseconds startPatience = StartLock::kPatience;
    };

    /// Without a place no other copy is ever found.
    explicit LocalSocketChannel(std::optional<InstancePlace> place);
    LocalSocketChannel(std::optional<InstancePlace> place, const Limits& limits);
    LocalSocketChannel(const LocalSocketChannel&) = delete;
    LocalSocketChannel& operator=(const LocalSocketChannel&) = delete;
    ~LocalSocketChannel() override;

    /// If no other copy runs, this call also makes this copy the running one. Later starts wait until it
    /// listens. A socket that is left from a crash is ignored. A copy that has waited too long for other
    /// starts is on its own from then on. Needs no event loop, and may be called again.
    bool PreviousInstanceRuns() override;
    bool FindReceiver() override;
    bool WaitUntilSlotEmpty() override;
    bool Deliver(TextView path) override;
    void ActivateRunning() override;

    /// Does nothing unless this is the running copy. The callbacks are called from the event loop.
    void Listen(Reception reception) override;

private:
    bool Connect();
    bool Ask(std::string_view request, std::string_view expectedAnswer);
    void TakeConnections();
    void Serve(LocalSocket connection);

    std::optional<InstancePlace> place_;
    Limits limits_;
    /// The connection of a second start.
    LocalSocket running_;
    /// Where second starts connect with the running copy.
    LocalSocket server_;
    /// Tells of new connections while this copy listens. The conversations are its children.
    std::unique_ptr<QSocketNotifier> arrivals_;
    std::shared_ptr<const Reception> reception_;
    int conversations_ = 0;
};

} // namespace korvane
