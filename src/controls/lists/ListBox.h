#pragma once

#include "controls/lists/RowsControl.h"

#include <optional>
#include <vector>

namespace korvane {

/// A list of lines of which one is current. Rows count from 0, as list indexes do; -1 is none.
class ListBox : public RowsControl {
public:
    using RowsControl::RowsControl;

    /// `kNoColour` leaves it to the look of the window.
    Property<Colour> BackColor{*this, Aspect::Colours, kNoColour};
    /// Whether the lines are names of fonts, each of which is shown in the font itself.
    Property<bool> NamesFonts{*this, Aspect::Font};

    int ListCount() const { return static_cast<int>(items_.size()); }
    /// Empty outside the list.
    Text List(int index) const;
    void SetList(int index, TextView text);
    void AddItem(TextView text);
    void InsertItem(int index, TextView text);
    void RemoveItem(int index);
    void Clear();

    /// Shows these colours before the line. `kNoColour` leaves one to the look of the list.
    void SetSample(int index, Colour back, Colour text);
    struct Sample {
        Colour back = kNoColour;
        Colour text = kNoColour;
    };
    /// Nothing for a line without colours.
    std::optional<Sample> SampleAt(int index) const;

    /// Fires `Click` when the current line changes. An index outside the list has no effect.
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);

    // The check marks of a list with check boxes, and the picked lines of a list that allows several.
    bool Selected(int index) const;
    void SetSelected(int index, bool selected);

    std::function<void()> Click;
    std::function<void()> DblClick;
    /// A check mark or pick changed.
    std::function<void(int index)> ItemCheck;

    // What the user does.
    void Select(int index) { SetListIndex(index); }
    void DoubleClick(int index);

private:
    struct Item {
        Text text;
        bool selected = false;
        std::optional<Sample> sample{};
    };
    bool Holds(int index) const { return index >= 0 && index < ListCount(); }

    std::vector<Item> items_;
    int listIndex_ = -1;
};

/// A list that drops down from a field with the chosen line.
class ComboBox : public ListBox {
public:
    using ListBox::ListBox;
    /// The chosen line; empty when none is.
    Text Chosen() const { return List(ListIndex()); }
};

} // namespace korvane
