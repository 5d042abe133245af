#include "app/SystemParts.h"
#include "platform/native/process/ChildProcess.h"
#include "platform/native/process/EndSignals.h"
#include "platform/native/process/NativeDocumentConverter.h"
#include "platform/qt/desktop/QtShell.h"
#include "platform/qt/instance/LocalSocketChannel.h"
#include "platform/qt/services/QtPatience.h"
#include "platform/qt/services/QtSystemFolders.h"

#include <QSocketNotifier>
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
    DocumentConverter* Converter() override { return &converter_; }
    void WatchEnd(const std::function<void()>& end) override {
        signals_.emplace();
        if (signals_->File() < 0) return;
        notifier_ = std::make_unique<QSocketNotifier>(signals_->File(), QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this, end] {
            notifier_->setEnabled(false);
            end();
        });
    }

private:
    std::optional<EndSignals> signals_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::optional<LocalSocketChannel> channel_;
    QtShell shell_;
    QtSystemFolders folders_;
    NativeDocumentConverter converter_{FindProgram, BeginPatience};
};

} // namespace

std::unique_ptr<SystemParts> OwnSystemParts() {
    return std::make_unique<PosixParts>();
}

} // namespace korvane
