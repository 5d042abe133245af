#pragma once

#include "controls/views/WebView.h"

#include <memory>

namespace korvane {

/// Makes engines that can do more than the program's own page view.
class WebEngines {
public:
    virtual ~WebEngines() = default;
    /// An engine that shows its pages in the place of the view, which outlives it. It gets whole addresses.
    /// nullptr where there is none.
    virtual std::unique_ptr<WebEngine> EngineFor(WebView& view) = 0;
};

} // namespace korvane
