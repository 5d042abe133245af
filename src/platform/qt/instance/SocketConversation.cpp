#include "platform/qt/instance/SocketConversation.h"

#include <QPointer>

namespace korvane {

namespace {

constexpr std::chrono::milliseconds kSlotInterval{20};
constexpr std::size_t kMostBytes = hand_over::kLongestLine + 1;

} // namespace

SocketConversation::SocketConversation(QObject& parent, LocalSocket socket,
                                       std::shared_ptr<const InstanceChannel::Reception> reception,
                                       std::chrono::milliseconds patience)
    : QObject(&parent),
      socket_(std::move(socket)),
      reception_(std::move(reception)),
      arrivals_(socket_.Descriptor(), QSocketNotifier::Read) {
    slotTimer_.setInterval(kSlotInterval);
    patienceTimer_.setInterval(patience);
    patienceTimer_.setSingleShot(true);
}

void SocketConversation::Start() {
    connect(&arrivals_, &QSocketNotifier::activated, this, [this] { Proceed(); });
    connect(&slotTimer_, &QTimer::timeout, this, [this] { Proceed(); });
    connect(&patienceTimer_, &QTimer::timeout, this, [this] { EndPatience(); });
    patienceTimer_.start();
    Proceed();
}

void SocketConversation::Proceed() {
    using Arrival = LocalSocket::Arrival;
    if (ended_) return;
    Arrival arrival = Arrival::Nothing;
    for (bool more = true; more;) {
        arrival = TakeIn();
        const auto step = conversation_.Next(reception_->slotEmpty());
        if (step && !Perform(*step)) return;
        more = arrival == Arrival::Bytes || step;
    }
    if (arrival == Arrival::End) return End();
    WaitForSlot(conversation_.WaitsForSlot());
}

/// Reads as much as the conversation has room for.
LocalSocket::Arrival SocketConversation::TakeIn() {
    std::string bytes(kMostBytes, '\0');
    const LocalSocket::Arrival arrival = socket_.Peek(bytes);
    const std::size_t taken = conversation_.Receive(bytes);
    socket_.Skip(taken);
    return arrival == LocalSocket::Arrival::Bytes && taken == 0 ? LocalSocket::Arrival::Nothing : arrival;
}

/// Returns false when the conversation is over. It may even be deleted then.
bool SocketConversation::Perform(const hand_over::Step& step) {
    using Kind = hand_over::Step::Kind;
    if (step.kind == Kind::Drop || !socket_.Send(step.answer)) {
        End();
        return false;
    }
    // The callbacks may run an event loop in which this conversation is deleted.
    const QPointer<SocketConversation> self(this);
    const auto reception = reception_;
    if (step.kind == Kind::TakePath) reception->received(step.path);
    if (step.kind == Kind::Activate) reception->activate();
    if (self && step.kind == Kind::Activate) End();
    return self && !ended_;
}

/// A program that waits for this copy may keep silent, and what it sends meanwhile is left unread.
void SocketConversation::WaitForSlot(bool waits) {
    if (waits == slotTimer_.isActive()) return;
    arrivals_.setEnabled(!waits);
    waits ? slotTimer_.start() : slotTimer_.stop();
    waits ? patienceTimer_.stop() : patienceTimer_.start();
}

void SocketConversation::EndPatience() {
    // If this program was busy without an event loop, the other side may have sent something that wasn't read
    // yet.
    const QPointer<SocketConversation> self(this);
    Proceed();
    if (self && !slotTimer_.isActive()) End();
}

void SocketConversation::End() {
    if (ended_) return;
    ended_ = true;
    arrivals_.setEnabled(false);
    slotTimer_.stop();
    patienceTimer_.stop();
    socket_.Close();
    deleteLater();
}

} // namespace korvane
