#pragma once

#include <cstdint>

namespace korvane {

class TextControl;

/// The windows that belong to a text control itself. Modal.
enum class TextDialog : std::uint8_t { Find, Replace, Paragraph, List, Page, Tabs, InsertTable, Table };

class TextDialogs {
public:
    virtual ~TextDialogs() = default;
    virtual void Show(TextDialog dialog, TextControl& control) = 0;
};

} // namespace korvane
