#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

class TextBox;
class TextControl;

/// A piece of a text whose characters have one font.
struct FontStretch {
    Text font{};
    Text text{};
};

/// The text into which the windows put their characters, at its selection.
class InsertTarget {
public:
    virtual ~InsertTarget() = default;
    /// Writes in a font, which stays. A size of 0 leaves the size as it is.
    virtual void WriteIn(TextView font, int size, TextView text) = 0;
    /// Writes in a font. What is written afterwards has the font and size of before.
    virtual void WriteOnceIn(TextView font, int size, TextView text) = 0;
};

/// A formatted text. Each writing is one step to undo.
class ControlTarget final : public InsertTarget {
public:
    /// The control outlives the target.
    explicit ControlTarget(TextControl& control) : control_(control) {}
    void WriteIn(TextView font, int size, TextView text) override;
    void WriteOnceIn(TextView font, int size, TextView text) override;
    /// Writes each in its font. The last font stays.
    void WriteStretches(const std::vector<FontStretch>& stretches);

private:
    TextControl& control_;
};

/// A plain text, whose font is that of the whole box.
class BoxTarget final : public InsertTarget {
public:
    /// The box outlives the target.
    explicit BoxTarget(TextBox& box) : box_(box) {}
    void WriteIn(TextView font, int size, TextView text) override;
    void WriteOnceIn(TextView font, int size, TextView text) override;

private:
    TextBox& box_;
};

} // namespace korvane
