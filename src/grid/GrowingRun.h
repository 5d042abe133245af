#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

namespace korvane {

/// Characters that are only added at the end and never changed. Copies share them: the first one goes on
/// adding in the same memory, and what the copies see of it stays as it is. Another thread may read a copy
/// while this one adds to the original.
template <class Unit>
class GrowingRun {
public:
    using View = std::basic_string_view<Unit>;

    GrowingRun() = default;
    GrowingRun(const GrowingRun& other) : units_(other.units_), size_(other.size_), room_(other.size_) {}
    GrowingRun(GrowingRun&& other) noexcept { Swap(other); }
    GrowingRun& operator=(GrowingRun other) noexcept {
        Swap(other);
        return *this;
    }
    ~GrowingRun() = default;

    std::size_t Size() const { return size_; }
    View Part(std::size_t offset, std::size_t length) const { return {units_.get() + offset, length}; }

    /// The units may be a part of this.
    void Append(View units) {
        const auto before = units_;
        std::ranges::copy(units, Room(units.size()));
        Added(units.size());
    }
    /// Room for so many units at the end. They count only when `Added` is called.
    Unit* Room(std::size_t units) {
        if (units > room_ - size_) Move(std::max(size_ + units, 2 * room_));
        return units_.get() + size_;
    }
    void Added(std::size_t units) { size_ += units; }

private:
    void Move(std::size_t room) {
        auto moved = std::make_unique_for_overwrite<Unit[]>(room);
        std::copy_n(units_.get(), size_, moved.get());
        units_ = std::move(moved);
        room_ = room;
    }
    void Swap(GrowingRun& other) noexcept {
        std::swap(units_, other.units_);
        std::swap(size_, other.size_);
        std::swap(room_, other.room_);
    }

    std::shared_ptr<Unit[]> units_;
    std::size_t size_ = 0;
    std::size_t room_ = 0;
};

} // namespace korvane
