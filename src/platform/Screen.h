#pragma once

#include "common/number/Units.h"

#include <cstdint>

namespace korvane {

/// A place on the screen in twips.
struct Rect {
    Twips left, top, width, height;
    bool operator==(const Rect&) const = default;
};

enum class Pointer : std::uint8_t { Default, Hourglass, Hand };

class Screen {
public:
    virtual ~Screen() = default;
    /// The primary screen without task bars.
    virtual Rect WorkArea() const = 0;
    /// Whether the desktop's windows have light text on dark.
    virtual bool IsDark() const { return false; }
    virtual void SetPointer(Pointer pointer) = 0;
    /// Lets pending messages run once.
    virtual void ProcessMessages() = 0;
    /// Lets messages run now and then in a long work. It can be called at each small step, because nothing
    /// happens when messages ran a moment ago.
    virtual void Yield() { ProcessMessages(); }
};

/// Shows the hourglass as long as it lives, then the normal pointer.
class Hourglass {
public:
    /// The screen outlives the object.
    explicit Hourglass(Screen& screen) : screen_(screen) { screen_.SetPointer(Pointer::Hourglass); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { screen_.SetPointer(Pointer::Default); }

private:
    Screen& screen_;
};

} // namespace korvane
