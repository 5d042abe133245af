#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The rich-text window, for those who write into it.
class TextWindow {
public:
    virtual ~TextWindow() = default;
    /// Puts the text in place of the window's selection and shows the window. One that wasn't open is opened
    /// before the text goes in, and this returns when it has closed; one that stands comes to the front.
    virtual void TextWindowInsert(TextView text) = 0;
};

} // namespace korvane
