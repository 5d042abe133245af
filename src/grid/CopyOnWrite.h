#pragma once

#include <memory>
#include <utility>

namespace korvane {

/// A value, or nothing. Copies share the value until one of them is to be changed, so a copy costs next to
/// nothing. Another thread may read a copy while this one changes the original.
template <class Value>
class CopyOnWrite {
public:
    CopyOnWrite() = default;
    explicit CopyOnWrite(Value value) : value_(std::make_shared<Value>(std::move(value))) {}
    CopyOnWrite(const CopyOnWrite& other) : value_(other.value_), shared_(true) { other.shared_ = true; }
    CopyOnWrite(CopyOnWrite&& other) noexcept = default;
    CopyOnWrite& operator=(CopyOnWrite other) noexcept {
        std::swap(value_, other.value_);
        std::swap(shared_, other.shared_);
        return *this;
    }
    ~CopyOnWrite() = default;

    explicit operator bool() const { return value_ != nullptr; }
    const Value& operator*() const { return *value_; }
    const Value* operator->() const { return value_.get(); }

    /// The value, to be changed. Nothing becomes an empty value.
    Value& Own() {
        if (shared_ || value_ == nullptr) [[unlikely]]
            MakeOwn();
        return *value_;
    }

private:
    void MakeOwn() {
        value_ = value_ != nullptr ? std::make_shared<Value>(*value_) : std::make_shared<Value>();
        shared_ = false;
    }

    std::shared_ptr<Value> value_;
    // How many holders there are can't tell this: another thread may still be reading when its copy goes.
    mutable bool shared_ = false;
};

} // namespace korvane
