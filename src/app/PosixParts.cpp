#include "app/SystemParts.h"
#include "platform/qt/desktop/QtShell.h"
#include "platform/qt/instance/LocalSocketChannel.h"
#include "platform/qt/services/QtSystemFolders.h"

#include <optional>

namespace korvane {

namespace {

class PosixParts final : public SystemParts {
public:
    InstanceChannel& Channel() override {
        // The channel is made only when it is needed, because finding its place may create a folder.
        if (!channel_) channel_.emplace(FindInstancePlace(OwnInstanceSurroundings()));
        return *channel_;
    }
    Shell& Desktop() override { return shell_; }
    const SystemFolders& Folders() const override { return folders_; }

private:
    std::optional<LocalSocketChannel> channel_;
    QtShell shell_;
    QtSystemFolders folders_;
};

} // namespace

std::unique_ptr<SystemParts> OwnSystemParts() {
    return std::make_unique<PosixParts>();
}

} // namespace korvane
