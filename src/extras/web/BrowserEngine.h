#pragma once

#include "extras/web/PageEngine.h"

#include <memory>

namespace korvane {

/// Shows pages with an engine of the platform, which is made when the first page is wanted. Where there is
/// none, the program's own page view shows them.
class BrowserEngine final : public WebEngine {
public:
    /// All outlive the engine. `text` is where the page view shows the pages of `view`.
    BrowserEngine(App& app, WebView& view, TextControl& text);

    void Navigate(TextView address) override;
    void GoBack() override { Engine().GoBack(); }
    void GoForward() override { Engine().GoForward(); }
    void Refresh() override { Engine().Refresh(); }
    void Stop() override { Engine().Stop(); }

    /// Gives the keyboard to the page.
    void TakeKeyboard();
    /// The view goes away. What is loading is stopped.
    void Close();

private:
    WebEngine& Engine();
    void Choose();

    App& app_;
    WebView& view_;
    TextControl& text_;
    PageEngine pages_;
    bool chosen_ = false;
    std::unique_ptr<WebEngine> ofPlatform_;
};

} // namespace korvane
