#pragma once

#include <cstdint>
#include <functional>

namespace korvane {

/// 1 when a table has changes that aren't on disk, otherwise 0.
class AlteredFlag {
public:
    AlteredFlag() = default;
    AlteredFlag(const AlteredFlag&) = delete;

    operator std::int16_t() const { return value_; } // NOLINT: it reads like its value
    AlteredFlag& operator=(std::int16_t value) {
        const bool changes = value != value_;
        value_ = value;
        if (changes && Changed) Changed();
        return *this;
    }
    AlteredFlag& operator=(const AlteredFlag& other) { return *this = other.value_; }

    std::function<void()> Changed;

private:
    std::int16_t value_ = 0;
};

} // namespace korvane
