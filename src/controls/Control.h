#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"
#include "controls/FontSpec.h"
#include "controls/KeyEvent.h"
#include "controls/Observed.h"

#include <functional>
#include <string>
#include <string_view>

namespace korvane {

class Form;

/// A named part of a window. It joins its window's list of controls when it is made, in the order of
/// declaration.
class Control : public Observed {
public:
    Control(Form& owner, std::string_view name);

    const std::string& Name() const { return name_; }
    Form& Owner() const { return owner_; }

    Property<bool> Enabled{*this, Aspect::Enabled, true};
    Property<bool> Visible{*this, Aspect::Visible, true};
    Property<Text> ToolTipText{*this, Aspect::ToolTip};
    Property<FontSpec> Font{*this, Aspect::Font};
    /// 0 leaves the width or the height to the layout of the window.
    Property<Twips> Width{*this, Aspect::Place};
    Property<Twips> Height{*this, Aspect::Place};
    /// This is for the window's own use and isn't shown.
    Text Tag;

    /// In a window that isn't shown yet, this takes effect when it is.
    void SetFocus();

    std::function<void(KeyEvent&)> KeyDown;
    std::function<void()> GotFocus;

private:
    Form& owner_;
    std::string name_;
};

} // namespace korvane
