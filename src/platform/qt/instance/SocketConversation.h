#pragma once

#include "platform/InstanceChannel.h"
#include "platform/native/HandOverProtocol.h"

#include <QObject>
#include <QTimer>
#include <chrono>
#include <memory>

class QLocalSocket;

namespace korvane {

/// One connection from a second start to this copy. It deletes itself and its socket when it is over.
class SocketConversation final : public QObject {
public:
    SocketConversation(QObject& parent, QLocalSocket& socket,
                       std::shared_ptr<const InstanceChannel::Reception> reception,
                       std::chrono::milliseconds silence);

    /// Handles what has arrived already and what will arrive.
    void Start();

private:
    void Proceed();
    bool TakeIn();
    bool Perform(const hand_over::Step& step);
    void EndSilence();
    void End();

    QLocalSocket& socket_;
    std::shared_ptr<const InstanceChannel::Reception> reception_;
    hand_over::Conversation conversation_;
    /// Checks at intervals whether the slot is empty.
    QTimer slotTimer_;
    QTimer silenceTimer_;
    bool ended_ = false;
};

} // namespace korvane
