#pragma once

#include <type_traits>
#include <utility>

namespace korvane {

/// Gives a variable another value as long as it lives, however the scope is left.
template <class Value>
class [[nodiscard]] ScopedValue {
public:
    /// Afterwards the variable, which outlives the object, has the value of before again.
    ScopedValue(Value& variable, std::type_identity_t<Value> during)
        : variable_(variable), after_(std::exchange(variable, std::move(during))) {}
    /// Afterwards the variable has the value `after`, whatever it was before.
    ScopedValue(Value& variable, std::type_identity_t<Value> during, std::type_identity_t<Value> after)
        : variable_(variable), after_(std::move(after)) {
        variable = std::move(during);
    }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;
    ~ScopedValue() { variable_ = std::move(after_); }

private:
    Value& variable_;
    Value after_;
};

} // namespace korvane
