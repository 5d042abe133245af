#pragma once

#include "platform/Network.h"

#include <QString>

namespace korvane {

/// The net, whose part of the program is loaded at the first fetch. Until then it takes neither time nor
/// memory.
class LoadedNetwork final : public Network {
public:
    /// The library without its ending. Without a path it is the one beside the program.
    explicit LoadedNetwork(QString library = {});

    std::unique_ptr<Fetch> Get(const FetchRequest& request, std::function<void(Fetched)> then) override;

private:
    void Load();

    QString library_;
    bool tried_ = false;
    std::unique_ptr<Network> network_;
};

} // namespace korvane
