#pragma once

#include "controls/Control.h"

#include <cstdint>

namespace korvane {

/// A box that holds 1 (ticked) or 0. `Click` fires whenever the value changes, also when the program sets it.
class CheckBox : public Control {
public:
    /// The value of a box for several things of which only some are ticked. A press ticks it, and no press
    /// leads back.
    static constexpr std::int16_t kMixed = 2;

    CheckBox(Form& owner, std::string_view name, TextView caption = {}, TextView toolTip = {});

    /// "&" marks the mnemonic.
    Property<Text> Caption{*this, Aspect::Caption};
    Property<std::int16_t> Value{*this, Aspect::Value};

    std::function<void()> Click;

    /// The user presses the box. Nothing happens while it is disabled or hidden.
    void Press();

protected:
    void Changed(Aspect aspect) override;
};

/// One of several buttons of which only one is on: the buttons of a window with the same group name.
class OptionButton : public Control {
public:
    OptionButton(Form& owner, std::string_view name, std::string_view group, TextView caption = {});

    Property<Text> Caption{*this, Aspect::Caption};
    /// Turning a button on turns the others of its group off, and `Click` fires for the one that was turned
    /// on.
    Property<bool> Value{*this, Aspect::Value};

    const std::string& Group() const { return group_; }

    std::function<void()> Click;

    void Press();

protected:
    void Changed(Aspect aspect) override;

private:
    std::string group_;
};

} // namespace korvane
