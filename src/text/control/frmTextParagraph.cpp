#include "text/control/frmTextParagraph.h"

#include "common/number/Number.h"
#include "controls/text/TextControl.h"

#include <algorithm>
#include <iterator>

namespace korvane {

namespace {

/// In the order of `doc::Alignment`.
constexpr TextView kAlignments[] = {u"Left", u"Right", u"Centred", u"Justified"};

struct Spacing {
    TextView name;
    int percent;
};
constexpr Spacing kSpacings[] = {{u"Single", 100}, {u"1.5 lines", 150}, {u"Double", 200}};
constexpr int kMultiple = static_cast<int>(std::size(kSpacings));
constexpr int kExactly = kMultiple + 1;
constexpr int kUsualHeight = 240;

int SpacingOf(const TextControl& control) {
    if (control.LineSpacingT() > 0) return kExactly;
    const auto found = std::ranges::find(kSpacings, control.LineSpacing(), &Spacing::percent);
    return static_cast<int>(std::distance(std::begin(kSpacings), found));
}

struct Length {
    LengthBox frmTextParagraph::*box;
    std::int32_t doc::ParaFormat::*length;
};
constexpr Length kLengths[] = {
    {&frmTextParagraph::txtLeft, &doc::ParaFormat::left},
    {&frmTextParagraph::txtRight, &doc::ParaFormat::right},
    {&frmTextParagraph::txtFirst, &doc::ParaFormat::first},
    {&frmTextParagraph::txtBefore, &doc::ParaFormat::before},
    {&frmTextParagraph::txtAfter, &doc::ParaFormat::after},
};

} // namespace

frmTextParagraph::frmTextParagraph(App& app, TextControl& target)
    : ControlForm(app, target, "frmTextParagraph", u"Paragraph") {
    cboSpacing.Click = [this] { ShowSpacing(); };
    cmdTabs.Click = [this] { Target().TabDialog(); };
}

void frmTextParagraph::Load() {
    for (const TextView name : kAlignments)
        cboAlignment.AddItem(name);
    for (const Spacing& spacing : kSpacings)
        cboSpacing.AddItem(spacing.name);
    cboSpacing.AddItem(u"Multiple");
    cboSpacing.AddItem(u"Exactly");

    const doc::ParaFormat format = Target().ParagraphFormat();
    cboAlignment.SetListIndex(static_cast<int>(format.alignment));
    for (const Length& length : kLengths)
        (this->*length.box).ShowLength(format.*length.length, Unit());
    cboSpacing.SetListIndex(SpacingOf(Target()));
    shownSpacing_ = cboSpacing.ListIndex();
    shownDistance_ = txtSpacing.Text;
    chkPageBreak.Value = format.pageBreakBefore ? 1 : 0;
    cboAlignment.SetFocus();
}

void frmTextParagraph::ShowSpacing() {
    const int kind = cboSpacing.ListIndex();
    txtSpacing.Enabled = kind >= kMultiple;
    const doc::ParaFormat format = Target().ParagraphFormat();
    if (kind == kMultiple)
        txtSpacing.Text = NumberText(format.spacingPercent) + u" %";
    else if (kind == kExactly)
        txtSpacing.Text =
            LengthText(format.spacingExact > 0 ? format.spacingExact : kUsualHeight, LengthUnit::Points);
    else
        txtSpacing.Text = Text();
}

void frmTextParagraph::AcceptSpacing() {
    const int kind = cboSpacing.ListIndex();
    const Text& distance = txtSpacing.Text;
    if (kind == shownSpacing_ && distance == shownDistance_) return;
    if (kind == kExactly)
        Target().SetLineSpacingT(LengthIn(distance, LengthUnit::Points).value_or(0));
    else if (kind == kMultiple)
        Target().SetLineSpacing(static_cast<int>(std::clamp(Val(TextView(distance)), 0.0, 10'000.0)));
    else
        Target().SetLineSpacing(kSpacings[kind].percent);
}

bool frmTextParagraph::Accept() {
    const doc::ParaFormat before = Target().ParagraphFormat();
    const auto alignment = static_cast<doc::Alignment>(cboAlignment.ListIndex());
    const bool pageBreak = chkPageBreak.Value == 1;
    const auto change = [&](doc::ParaFormat& format) {
        if (alignment != before.alignment) format.alignment = alignment;
        if (pageBreak != before.pageBreakBefore) format.pageBreakBefore = pageBreak;
        for (const Length& length : kLengths)
            format.*length.length = (this->*length.box).NewLength().value_or(format.*length.length);
    };
    doc::ParaFormat after = before;
    change(after);
    if (after != before) Target().FormatParagraphs(change);
    AcceptSpacing();
    return true;
}

} // namespace korvane
