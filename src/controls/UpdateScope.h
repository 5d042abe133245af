#pragma once

namespace korvane {

/// As long as it lives, the view of a list or tree hears nothing of what changes; then it follows in one go.
template <class ControlT>
class UpdateScope {
public:
    explicit UpdateScope(ControlT& control) : control_(control) { control_.BeginUpdate(); }
    UpdateScope(const UpdateScope&) = delete;
    UpdateScope& operator=(const UpdateScope&) = delete;
    ~UpdateScope() { control_.EndUpdate(); }

private:
    ControlT& control_;
};

} // namespace korvane
