#pragma once

#include "context/ports/FileViewer.h"

namespace korvane {

class App;

/// Opens the files that windows below this folder list: by their type, and in programs of the user's own.
class FileHandling final : public FileViewer {
public:
    /// The App outlives this.
    explicit FileHandling(App& app) : app_(app) {}

    void View(TextView path) override;
    void OpenWith(TextView path) override;

private:
    App& app_;
};

} // namespace korvane
