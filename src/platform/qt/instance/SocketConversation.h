#pragma once

#include "platform/InstanceChannel.h"
#include "platform/native/instance/HandOverProtocol.h"
#include "platform/native/instance/LocalSocket.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <memory>

namespace korvane {

/// One connection from a second start to this copy. It deletes itself when it is over.
class SocketConversation final : public QObject {
public:
    SocketConversation(QObject& parent, LocalSocket socket,
                       std::shared_ptr<const InstanceChannel::Reception> reception,
                       std::chrono::milliseconds patience);

    /// Handles what has arrived already and what will arrive.
    void Start();

private:
    void Proceed();
    LocalSocket::Arrival TakeIn();
    bool Perform(const hand_over::Step& step);
    void WaitForSlot(bool waits);
    void EndPatience();
    void End();

    LocalSocket socket_;
    std::shared_ptr<const InstanceChannel::Reception> reception_;
    hand_over::Conversation conversation_;
    QSocketNotifier arrivals_;
    /// Checks at intervals whether the slot is empty.
    QTimer slotTimer_;
    /// Runs while this copy waits for the other side.
    QTimer patienceTimer_;
    bool ended_ = false;
};

} // namespace korvane
