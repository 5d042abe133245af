#pragma once

#include "platform/InstanceChannel.h"
#include "platform/native/InstancePlace.h"

#include <chrono>
#include <memory>
#include <optional>

class QLocalServer;
class QLocalSocket;

namespace korvane {

/// Connects a second start of the program with the running copy, through a local socket that no other user
/// can reach.
class LocalSocketChannel final : public InstanceChannel {
public:
    struct Limits {
        /// How many connections are served at a time. The others wait.
        int conversations = 16;
        /// How long a connection may send nothing when it is expected to.
        std::chrono::milliseconds silence{10'000};
    };

    /// Without a place no other copy is ever found.
    explicit LocalSocketChannel(std::optional<InstancePlace> place);
    LocalSocketChannel(std::optional<InstancePlace> place, const Limits& limits);
    LocalSocketChannel(const LocalSocketChannel&) = delete;
    LocalSocketChannel& operator=(const LocalSocketChannel&) = delete;
    ~LocalSocketChannel() override;

    /// If no other copy runs, this call also makes this copy the running one. Later starts wait until it
    /// listens. A socket that is left from a crash is ignored.
    bool PreviousInstanceRuns() override;
    bool FindReceiver() override;
    bool WaitUntilSlotEmpty() override;
    bool Deliver(TextView path) override;
    void ActivateRunning() override;

    /// Does nothing unless this is the running copy. The callbacks are called from the event loop.
    void Listen(Reception reception) override;

private:
    bool Connect();
    void TakePlace();
    bool Ask(std::string_view request, std::string_view expectedAnswer);
    void TakeConnections();

    std::optional<InstancePlace> place_;
    Limits limits_;
    std::unique_ptr<QLocalSocket> running_;
    std::unique_ptr<QLocalServer> server_;
    std::shared_ptr<const Reception> reception_;
    int conversations_ = 0;
};

} // namespace korvane
