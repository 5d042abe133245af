#include "platform/qt/instance/LocalSocketChannel.h"

#include "platform/native/HandOverProtocol.h"
#include "platform/qt/instance/SocketConversation.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

namespace korvane {

namespace {

constexpr int kNoTimeOut = -1;
/// This is larger than the longest answer.
constexpr qint64 kAnswerBuffer = 64;

QString SocketName(const InstancePlace& place) {
    return QFile::decodeName(place.socket.c_str());
}

} // namespace

LocalSocketChannel::LocalSocketChannel(std::optional<InstancePlace> place)
    : LocalSocketChannel(std::move(place), Limits{}) {}

LocalSocketChannel::LocalSocketChannel(std::optional<InstancePlace> place, const Limits& limits)
    : place_(std::move(place)), limits_(limits) {}

LocalSocketChannel::~LocalSocketChannel() {
    if (!server_) return;
    // Closing removes the socket's file. The lock makes sure that it isn't the file of a program that is
    // starting now.
    const StartLock lock(place_->lock);
    server_.reset();
}

bool LocalSocketChannel::PreviousInstanceRuns() {
    if (!place_ || server_) return false;
    const StartLock lock(place_->lock);
    if (!lock.Held()) return false;
    if (Connect()) return true;
    TakePlace();
    return false;
}

bool LocalSocketChannel::Connect() {
    running_ = std::make_unique<QLocalSocket>();
    running_->setReadBufferSize(kAnswerBuffer);
    running_->connectToServer(SocketName(*place_));
    const bool connected =
        running_->waitForConnected(kNoTimeOut) && IsOwnPeer(static_cast<int>(running_->socketDescriptor()));
    if (!connected) running_.reset();
    return connected;
}

void LocalSocketChannel::TakePlace() {
    QFile::remove(SocketName(*place_));
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    if (!server_->listen(SocketName(*place_))) server_.reset();
}

bool LocalSocketChannel::FindReceiver() {
    return running_ && running_->state() == QLocalSocket::ConnectedState;
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
    running_->write(request.data(), static_cast<qint64>(request.size()));
    while (!running_->canReadLine()) {
        const bool tooMuch = running_->bytesAvailable() >= kAnswerBuffer;
        if (tooMuch || !running_->waitForReadyRead(kNoTimeOut)) return false;
    }
    return running_->readLine().toStdString() == expectedAnswer;
}

void LocalSocketChannel::Listen(Reception reception) {
    if (!server_) return;
    reception_ = std::make_shared<const Reception>(std::move(reception));
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(),
                     [this] { TakeConnections(); });
    TakeConnections();
}

void LocalSocketChannel::TakeConnections() {
    while (conversations_ < limits_.conversations && server_->hasPendingConnections()) {
        auto* conversation =
            new SocketConversation(*server_, *server_->nextPendingConnection(), reception_, limits_.silence);
        ++conversations_;
        QObject::connect(conversation, &QObject::destroyed, server_.get(), [this] {
            --conversations_;
            TakeConnections();
        });
        conversation->Start();
    }
}

} // namespace korvane
