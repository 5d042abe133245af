#pragma once

#include "context/ports/PageViewer.h"
#include "context/ports/TextFileViewer.h"

namespace korvane {

class App;

/// Shows texts and pages in the desktop's own programs, without waiting for these to close.
class DesktopFileViewer final : public TextFileViewer, public PageViewer {
public:
    /// The App outlives the viewer.
    explicit DesktopFileViewer(App& app) : app_(app) {}

    void View(TextView path) override;

private:
    App& app_;
};

} // namespace korvane
