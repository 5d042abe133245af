#include "platform/qt/net/LoadedNetwork.h"

#include "platform/qt/net/NetworkPart.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace korvane {

namespace {

/// Tells, when messages run, that nothing can be fetched.
class NoFetch final : public Fetch {
public:
    NoFetch(const Text& address, std::function<void(Fetched)> then) {
        QTimer::singleShot(0, &context_, [address, then = std::move(then)] {
            then({.address = address, .reason = u"The part of the program for the net isn't installed."});
        });
    }

private:
    QObject context_;
};

} // namespace

LoadedNetwork::LoadedNetwork(QString library) : library_(std::move(library)) {}

void LoadedNetwork::Load() {
    if (std::exchange(tried_, true)) return;
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/korvane_net");
    if (const MakeNetwork make = FindNetworkPart(library_.isEmpty() ? beside : library_))
        network_.reset(make());
}

std::unique_ptr<Fetch> LoadedNetwork::Get(const FetchRequest& request, std::function<void(Fetched)> then) {
    Load();
    if (network_ != nullptr) return network_->Get(request, std::move(then));
    return std::make_unique<NoFetch>(request.address, std::move(then));
}

} // namespace korvane
