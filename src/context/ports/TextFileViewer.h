#pragma once

#include "common/text/Text.h"

namespace korvane {

/// Shows a file as a text.
class TextFileViewer {
public:
    virtual ~TextFileViewer() = default;
    /// Opens a rich-text window on a file that is there and returns when that has closed.
    virtual void View(TextView path) = 0;
};

} // namespace korvane
