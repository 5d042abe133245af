#pragma once

#include "controls/TextBox.h"

#include <vector>

namespace korvane {

/// A field of text, and texts that drop down from it to be chosen.
class DropDown : public TextBox {
public:
    using TextBox::TextBox;

    /// What drops down.
    Property<std::vector<korvane::Text>> Items{*this, Aspect::Items};

    /// The user chose one of them, which is the text of the field now.
    std::function<void()> Click;

    /// What the user does. Nothing happens for an index outside the items, which count from 0.
    void Choose(int index);
};

} // namespace korvane
