#pragma once

namespace korvane {

class TextControl;

/// The window that searches a formatted text. `target` outlives the call.
class TextFinder {
public:
    virtual ~TextFinder() = default;
    virtual void FindString(TextControl& target) = 0;
};

} // namespace korvane
