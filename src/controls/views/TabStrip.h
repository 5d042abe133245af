#pragma once

#include "controls/Control.h"

#include <functional>
#include <vector>

namespace korvane {

/// What a tab tells beside its caption.
struct TabNote {
    /// The child has changes that aren't on disk.
    bool altered = false;
    Text toolTip{};
};

/// The child windows of a main window, one tab each, in the order of their creation, with their captions.
class TabStrip : public Control {
public:
    using Control::Control;

    /// False stops the painting of the strip.
    Property<bool> AllowDrawing{*this, Aspect::Visible, true};
    /// The switch that start-up turns on and the end of the program turns off.
    Property<bool> On{*this, Aspect::Enabled};
    /// A number of `TabStyles`.
    Property<int> Style{*this, Aspect::Colours};
    /// Whether a line is drawn around the strip.
    Property<bool> Framed{*this, Aspect::Colours};

    /// Appends the child's tab and makes it the active one.
    void Add(Form& child);
    void Remove(Form& child);
    const std::vector<Form*>& Children() const { return children_; }
    /// nullptr when there is no tab.
    Form* ActiveChild() const { return active_; }
    /// Shows the child and runs its `Activate`, as a click of the user does.
    void Select(Form& child);

    /// The view asks for the notes of all children when it is told that one changed.
    std::function<TabNote(const Form&)> NoteOf;
    void TellNotes() { Notify(Aspect::State); }
    /// What is told of the active child where the strip has room, the most important part first. The view
    /// asks when it is told of a change.
    std::function<std::vector<Text>()> StatusParts;
    void TellStatus() { Notify(Aspect::Value); }

    /// The last child went.
    std::function<void()> Emptied;
    /// A click with the context button on a tab.
    std::function<void()> TabContextClick;
    /// The same on the part of the strip without tabs.
    std::function<void()> ContextMenu;
    /// The user wants the tab closed.
    std::function<void(Form&)> CloseWanted;

private:
    std::vector<Form*> children_;
    Form* active_ = nullptr;
};

} // namespace korvane
