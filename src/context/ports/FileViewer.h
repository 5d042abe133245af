#pragma once

#include "common/text/Text.h"

namespace korvane {

/// Shows files by their type.
class FileViewer {
public:
    virtual ~FileViewer() = default;
    /// Shows an existing file in the window for its type, mostly the text window, and returns when that has
    /// closed.
    virtual void View(TextView path) = 0;
    /// Lets the user choose a program, which then opens the file.
    virtual void OpenWith(TextView path) = 0;
};

} // namespace korvane
