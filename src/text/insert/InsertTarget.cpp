#include "text/insert/InsertTarget.h"

#include "controls/TextBox.h"
#include "controls/text/TextControl.h"

namespace korvane {

void ControlTarget::WriteIn(TextView font, int size, TextView text) {
    const doc::Step together(control_.Store());
    if (size > 0) control_.SetFontSize(size);
    control_.SetFontName(font);
    control_.SetSelText(text);
}

void ControlTarget::WriteOnceIn(TextView font, int size, TextView text) {
    const doc::Step together(control_.Store());
    const Text nameBefore = control_.FontName();
    const int sizeBefore = control_.FontHalfPoints();
    WriteIn(font, size, text);
    control_.SetFontName(nameBefore);
    control_.SetFontHalfPoints(sizeBefore);
}

void ControlTarget::WriteStretches(const std::vector<FontStretch>& stretches) {
    const doc::Step together(control_.Store());
    for (const auto& [font, text] : stretches)
        WriteIn(font, 0, text);
}

void BoxTarget::WriteIn(TextView font, int size, TextView text) {
    FontSpec spec = box_.Font;
    spec.name = Text(font);
    if (size > 0) spec.size = size;
    box_.Font = spec;
    box_.SetSelText(text);
}

void BoxTarget::WriteOnceIn(TextView font, int size, TextView text) {
    const FontSpec before = box_.Font;
    WriteIn(font, size, text);
    box_.Font = before;
}

} // namespace korvane
