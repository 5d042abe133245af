#pragma once

#include "controls/Control.h"

#include <functional>

namespace korvane {

/// What loads and shows the pages of a web view.
class WebEngine {
public:
    virtual ~WebEngine() = default;
    /// As the user types an address: one without a scheme is on the web, and one that names a file is that.
    virtual void Navigate(TextView address) = 0;
    // To the page before and after in the order of visiting; nothing happens where there is none.
    virtual void GoBack() = 0;
    virtual void GoForward() = 0;
    virtual void Refresh() = 0;
    virtual void Stop() = 0;
};

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
