#pragma once

#include "context/ports/WebEngines.h"
#include "platform/qt/net/WebEnginePart.h"

#include <QString>
#include <optional>

namespace korvane {

/// The engine that runs pages as a browser does. Its part of the program is loaded when the first one is
/// wanted, and isn't there in every installation.
class LoadedWebEngines final : public WebEngines {
public:
    /// Finds the widget of a view; nullptr while it isn't on the screen.
    using FindPlace = std::function<QWidget*(const WebView&)>;

    /// `allowed` is false for a user for whom the engine couldn't lock its pages in. The library is without
    /// its ending; without a path it is the one beside the program.
    LoadedWebEngines(FindPlace find, bool allowed, QString library = {});

    std::unique_ptr<WebEngine> EngineFor(WebView& view) override;

private:
    MakeWebEngine Load();

    FindPlace find_;
    bool allowed_;
    QString library_;
    std::optional<MakeWebEngine> make_;
};

} // namespace korvane
