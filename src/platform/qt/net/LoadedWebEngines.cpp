#include "platform/qt/net/LoadedWebEngines.h"

#include "controls/views/WebView.h"

#include <QCoreApplication>
#include <QLibrary>
#include <utility>

namespace korvane {

LoadedWebEngines::LoadedWebEngines(FindPlace find, bool allowed, QString library)
    : find_(std::move(find)), allowed_(allowed), library_(std::move(library)) {}

MakeWebEngine LoadedWebEngines::Load() {
    if (!make_) {
        const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/korvane_web");
        // The library stays loaded to the end, because it can't be started twice.
        QLibrary library(library_.isEmpty() ? beside : library_);
        make_ = reinterpret_cast<MakeWebEngine>(library.resolve(kMakeWebEngine));
    }
    return *make_;
}

std::unique_ptr<WebEngine> LoadedWebEngines::EngineFor(WebView& view) {
    const MakeWebEngine make = allowed_ ? Load() : nullptr;
    if (make == nullptr) return nullptr;
    const auto tell = [&view](std::function<void()> WebView::*event) {
        return [&view, event] {
            if (view.*event) (view.*event)();
        };
    };
    return std::unique_ptr<WebEngine>(make({.place = [this, &view] { return find_(view); },
                                            .begins = tell(&WebView::DownloadBegin),
                                            .completes = tell(&WebView::DownloadComplete)}));
}

} // namespace korvane
