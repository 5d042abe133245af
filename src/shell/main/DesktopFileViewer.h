#pragma once

#include "context/ports/FileViewer.h"

namespace korvane {

class App;

/// Shows files in the desktop's own programs, without waiting for these to close.
class DesktopFileViewer final : public FileViewer {
public:
    /// The App outlives the viewer.
    explicit DesktopFileViewer(App& app) : app_(app) {}

    void View(TextView path) override;
    void OpenWith(TextView path) override;

private:
    App& app_;
};

} // namespace korvane
