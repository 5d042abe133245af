#include "platform/qt/instance/LocalSocketChannel.h"

#include "platform/native/instance/HandOverProtocol.h"
#include "platform/qt/instance/SocketConversation.h"

namespace korvane {

namespace {

/// This is larger than the longest answer.
constexpr std::size_t kAnswerLimit = 64;

} // namespace

LocalSocketChannel::LocalSocketChannel(std::optional<InstancePlace> place)
    : LocalSocketChannel(std::move(place), Limits{}) {}

LocalSocketChannel::LocalSocketChannel(std::optional<InstancePlace> place, const Limits& limits)
    : place_(std::move(place)), limits_(limits) {}

LocalSocketChannel::~LocalSocketChannel() {
    if (!server_.IsOpen()) return;
    // The lock makes sure that the file isn't that of a program that is starting now.
    const StartLock lock(place_->lock);
    arrivals_.reset();
    server_.Close();
    std::error_code ignored;
    std::filesystem::remove(place_->socket, ignored);
}

bool LocalSocketChannel::PreviousInstanceRuns() {
    if (running_.IsOpen()) return true;
    if (!place_ || server_.IsOpen()) return false;
    const StartLock lock(place_->lock, limits_.startPatience);
    if (!lock.Held()) {
        // The start asks again later, and must not wait twice.
        place_.reset();
        return false;
    }
    if (Connect()) return true;
    server_ = LocalSocket::ListenAt(place_->socket);
    return false;
}

bool LocalSocketChannel::Connect() {
    running_ = LocalSocket::ConnectTo(place_->socket);
    if (running_.IsOpen() && !IsOwnPeer(running_.Descriptor())) running_.Close();
    return running_.IsOpen();
}

bool LocalSocketChannel::FindReceiver() {
    return running_.IsOpen();
}

bool LocalSocketChannel::WaitUntilSlotEmpty() {
    return Ask(hand_over::kSlotRequest, hand_over::kSlotEmpty);
}

bool LocalSocketChannel::Deliver(TextView path) {
    const auto request = hand_over::PathRequest(path);
    return request && Ask(*request, hand_over::kPathTaken);
}

void LocalSocketChannel::ActivateRunning() {
    Ask(hand_over::kActivateRequest, hand_over::kActivated);
}

/// Sends a request and waits for the answer. There is no time limit while the other program lives.
bool LocalSocketChannel::Ask(std::string_view request, std::string_view expectedAnswer) {
    if (!FindReceiver()) return false;
    const std::string answer = running_.Send(request) ? running_.ReadLine(kAnswerLimit) : std::string();
    if (answer.empty()) running_.Close();
    return answer == expectedAnswer;
}

void LocalSocketChannel::Listen(Reception reception) {
    if (!server_.IsOpen()) return;
    reception_ = std::make_shared<const Reception>(std::move(reception));
    arrivals_ = std::make_unique<QSocketNotifier>(server_.Descriptor(), QSocketNotifier::Read);
    QObject::connect(arrivals_.get(), &QSocketNotifier::activated, arrivals_.get(),
                     [this] { TakeConnections(); });
}

void LocalSocketChannel::TakeConnections() {
    bool more = true;
    while (more && conversations_ < limits_.conversations) {
        LocalSocket connection = server_.Accept();
        more = connection.IsOpen();
        if (more && IsOwnPeer(connection.Descriptor())) Serve(std::move(connection));
    }
    arrivals_->setEnabled(conversations_ < limits_.conversations);
}

void LocalSocketChannel::Serve(LocalSocket connection) {
    auto* conversation =
        new SocketConversation(*arrivals_, std::move(connection), reception_, limits_.patience);
    ++conversations_;
    QObject::connect(conversation, &QObject::destroyed, arrivals_.get(), [this] {
        --conversations_;
        TakeConnections();
    });
    conversation->Start();
}

} // namespace korvane
