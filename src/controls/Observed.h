#pragma once

#include <cstdint>
#include <utility>

namespace korvane {

class Observed;

/// The property of a control or window that changed, so that its widget can follow.
enum class Aspect : std::uint8_t {
    Text,
    Caption,
    Enabled,
    Visible,
    ToolTip,
    Place,
    State,
    Font,
    Colours,
    Items,
    Selection,
    Value,
    Range,
    Pointer,
    /// The keyboard focus is wanted. Nothing is stored for it.
    Focus,
};

/// The view of a control or window on the screen.
class View {
public:
    virtual ~View() = default;
    virtual void Follow(Observed& observed, Aspect aspect) = 0;
    /// The object that the view follows is going away. Its derived part is gone already.
    virtual void Gone() {}
};

/// An object whose properties are shown on the screen. At most one view follows it.
class Observed {
public:
    Observed(const Observed&) = delete;
    Observed& operator=(const Observed&) = delete;
    virtual ~Observed();

    /// nullptr takes the view away. The caller owns it.
    void SetView(View* view) { view_ = view; }
    /// Called by the properties: the view follows, then the control's own rules run.
    void Notify(Aspect aspect);

protected:
    Observed() = default;
    /// The control's own consequences of a change, such as its `Change` event.
    virtual void Changed(Aspect) {}

private:
    View* view_ = nullptr;
};

/// A value of a control. Writing another value tells the control and its view.
template <class T>
class Property {
public:
    Property(Observed& owner, Aspect aspect, T value = {})
        : owner_(owner), aspect_(aspect), value_(std::move(value)) {}
    Property(const Property&) = delete;

    const T& Get() const { return value_; }
    operator const T&() const { return value_; } // NOLINT: a property reads like its value
    Property& operator=(T value) {
        if (value == value_) return *this;
        value_ = std::move(value);
        owner_.Notify(aspect_);
        return *this;
    }
    Property& operator=(const Property& other) { return *this = other.value_; }

private:
    Observed& owner_;
    Aspect aspect_;
    T value_;
};

} // namespace korvane
