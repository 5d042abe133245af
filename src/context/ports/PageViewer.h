#pragma once

#include "common/text/Text.h"

namespace korvane {

/// Shows pages of the web in the program's own browser.
class PageViewer {
public:
    virtual ~PageViewer() = default;
    /// Shows the file or address; empty for a browser without a page.
    virtual void View(TextView address) = 0;
};

} // namespace korvane
