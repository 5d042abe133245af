#pragma once

#include "platform/Network.h"

#include <memory>

class QNetworkAccessManager;

namespace korvane {

/// The net through Qt, which is set up at the first fetch.
class QtNetwork final : public Network {
public:
    QtNetwork();
    QtNetwork(const QtNetwork&) = delete;
    QtNetwork& operator=(const QtNetwork&) = delete;
    ~QtNetwork() override;

    std::unique_ptr<Fetch> Get(const FetchRequest& request, std::function<void(Fetched)> then) override;

private:
    std::unique_ptr<QNetworkAccessManager> manager_;
};

} // namespace korvane
