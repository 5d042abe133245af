#include "platform/qt/instance/SocketConversation.h"

#include "platform/native/InstancePlace.h"

#include <QLocalSocket>
#include <QPointer>

namespace korvane {

namespace {

constexpr std::chrono::milliseconds kSlotInterval{20};
constexpr qint64 kMostBytes = hand_over::kLongestLine + 1;

void Run(QTimer& timer, bool on) {
    if (!on) timer.stop();
    if (on && !timer.isActive()) timer.start();
}

} // namespace

SocketConversation::SocketConversation(QObject& parent, QLocalSocket& socket,
                                       std::shared_ptr<const InstanceChannel::Reception> reception,
                                       std::chrono::milliseconds silence)
    : QObject(&parent), socket_(socket), reception_(std::move(reception)) {
    socket_.setParent(this);
    socket_.setReadBufferSize(kMostBytes);
    slotTimer_.setInterval(kSlotInterval);
    silenceTimer_.setInterval(silence);
    silenceTimer_.setSingleShot(true);
}

void SocketConversation::Start() {
    if (!IsOwnPeer(static_cast<int>(socket_.socketDescriptor()))) return End();
    connect(&socket_, &QLocalSocket::disconnected, this, [this] { End(); });
    // The slot is queued because Qt doesn't emit this signal again before its handlers return. `Proceed` may
    // run an event loop that waits for the next bytes of this very connection.
    connect(
        &socket_, &QLocalSocket::readyRead, this, [this] { Proceed(); }, Qt::QueuedConnection);
    connect(&slotTimer_, &QTimer::timeout, this, [this] { Proceed(); });
    connect(&silenceTimer_, &QTimer::timeout, this, [this] { EndSilence(); });
    silenceTimer_.start();
    Proceed();
}

void SocketConversation::Proceed() {
    if (ended_) return;
    for (bool more = true; more;) {
        more = TakeIn();
        const auto step = conversation_.Next(reception_->slotEmpty());
        if (step && !Perform(*step)) return;
        more = more || step;
    }
    // A program that waits for this copy may keep silent.
    Run(slotTimer_, conversation_.WaitsForSlot());
    Run(silenceTimer_, !conversation_.WaitsForSlot());
}

/// Reads as much as the conversation has room for. Returns whether anything came.
bool SocketConversation::TakeIn() {
    const QByteArray bytes = socket_.peek(kMostBytes);
    const std::size_t taken = conversation_.Receive({bytes.data(), static_cast<std::size_t>(bytes.size())});
    socket_.skip(static_cast<qint64>(taken));
    if (taken > 0) silenceTimer_.start();
    return taken > 0;
}

/// Returns false when the conversation is over. It may even be deleted then.
bool SocketConversation::Perform(const hand_over::Step& step) {
    using Kind = hand_over::Step::Kind;
    if (step.kind == Kind::Drop) {
        End();
        return false;
    }
    socket_.write(step.answer.data(), static_cast<qint64>(step.answer.size()));
    socket_.flush();
    // The callbacks may run an event loop in which this conversation is deleted.
    const QPointer<SocketConversation> self(this);
    const auto reception = reception_;
    if (step.kind == Kind::TakePath) reception->received(step.path);
    if (step.kind == Kind::Activate) reception->activate();
    if (self && step.kind == Kind::Activate) socket_.disconnectFromServer();
    return self && !ended_;
}

void SocketConversation::EndSilence() {
    // If this program was busy without an event loop, the other side may have sent something that wasn't read
    // yet.
    if (!socket_.waitForReadyRead(0)) End();
}

void SocketConversation::End() {
    ended_ = true;
    socket_.disconnect(this);
    socket_.abort();
    slotTimer_.stop();
    silenceTimer_.stop();
    deleteLater();
}

} // namespace korvane
