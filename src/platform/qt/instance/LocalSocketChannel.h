#pragma once

#include "platform/InstanceChannel.h"
#include "platform/native/InstancePlace.h"

#include <chrono>
#include <memory>
#include <optional>

class QLocalServer;
class QLocalSocket;

namespace korvane {

/// The way from a second start to the running copy, through a local socket that no other user reaches.
class LocalSocketChannel final : public InstanceChannel {
public:
    struct Limits {
        /// How many connections are listened to at a time; others wait for their turn.
        int conversations = 16;
        /// How long a connection may keep silent while it is its turn to speak.
        std::chrono::milliseconds silence{10'000};
    };

    /// Without a place every start is a first one.
    explicit LocalSocketChannel(std::optional<InstancePlace> place);
    LocalSocketChannel(std::optional<InstancePlace> place, const Limits& limits);
    LocalSocketChannel(const LocalSocketChannel&) = delete;
    LocalSocketChannel& operator=(const LocalSocketChannel&) = delete;
    ~LocalSocketChannel() override;

    /// When none does, this copy takes the place in the same step; later starts wait until it listens. A
    /// socket that a crash left behind doesn't count.
    bool PreviousInstanceRuns() override;
    bool FindReceiver() override;
    bool WaitUntilSlotEmpty() override;
    bool Deliver(TextView path) override;
    void ActivateRunning() override;

    /// Has an effect in a first start only. The callbacks come from the event loop.
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
