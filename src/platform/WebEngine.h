#pragma once

#include "common/text/Text.h"

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

} // namespace korvane
