#pragma once

#include "common/text/Text.h"

#include <string_view>

namespace korvane {

struct UnsavedText;

/// The rich-text window, for callers that open it or write into it.
class TextWindow {
public:
    virtual ~TextWindow() = default;
    /// Puts the text in place of the window's selection and shows the window. A closed window is opened
    /// before the text goes in, and then this returns when it has closed again. An open one comes to the
    /// front.
    virtual void TextWindowInsert(TextView text) = 0;
    /// The same with formatted text.
    virtual void TextWindowInsertRtf(std::string_view rtf) = 0;
    /// Shows the window, an empty one if it was closed, and returns at once.
    virtual void TextWindowShow() = 0;
    /// Shows a text that was kept as an altered one of its name. An open window asks for its own text before.
    virtual void TextWindowShowUnsaved(const UnsavedText& text) = 0;
};

} // namespace korvane
