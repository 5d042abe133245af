#pragma once

namespace korvane {

/// What a text control shows at the upper edge of its view.
struct TextTop {
    /// A place in the text, counted from 0.
    int place = 0;
    /// How many pixels of its line are above the edge.
    int above = 0;
};

/// The part of a text that is seen.
class TextScroll {
public:
    virtual ~TextScroll() = default;
    virtual TextTop Top() = 0;
    virtual void SetTop(const TextTop& top) = 0;
};

} // namespace korvane
