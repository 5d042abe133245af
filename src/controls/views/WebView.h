#pragma once

#include "controls/Control.h"
#include "platform/WebEngine.h"

#include <functional>

namespace korvane {

/// The place of a page in a window.
class WebView : public Control {
public:
    using Control::Control;

    /// Outlives the control. Without it, no page is shown.
    WebEngine* Engine = nullptr;

    void Navigate(TextView address) {
        if (Engine != nullptr) Engine->Navigate(address);
    }
    void GoBack() {
        if (Engine != nullptr) Engine->GoBack();
    }
    void GoForward() {
        if (Engine != nullptr) Engine->GoForward();
    }
    void Refresh() {
        if (Engine != nullptr) Engine->Refresh();
    }
    void Stop() {
        if (Engine != nullptr) Engine->Stop();
    }

    /// A page begins to be loaded.
    std::function<void()> DownloadBegin;
    /// All of the page is there, or no more of it will come.
    std::function<void()> DownloadComplete;
};

} // namespace korvane
