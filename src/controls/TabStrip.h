#pragma once

#include "controls/Control.h"

#include <vector>

namespace korvane {

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
