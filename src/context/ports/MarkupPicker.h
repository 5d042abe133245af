#pragma once

namespace korvane {

class TextBox;

/// Offers the markup tags.
class MarkupPicker {
public:
    virtual ~MarkupPicker() = default;
    /// Puts the chosen pair of tags round the selection of `target`, which outlives the call.
    virtual void InsertTagPair(TextBox& target) = 0;
};

} // namespace korvane
