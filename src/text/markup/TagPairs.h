#pragma once

#include "context/ports/MarkupPicker.h"

namespace korvane {

class App;
class TextBox;
class TextControl;

/// Offers the tags and puts the chosen pair round the selection. Nothing is put round an empty selection.
void InsertTagPair(App& app, TextControl& control);

/// Does the same in the text boxes of other windows.
class TagPairs final : public MarkupPicker {
public:
    /// The App outlives the object, and from now on asks it.
    explicit TagPairs(App& app);
    TagPairs(const TagPairs&) = delete;
    TagPairs& operator=(const TagPairs&) = delete;
    ~TagPairs() override;

    void InsertTagPair(TextBox& target) override;

private:
    App& app_;
};

} // namespace korvane
