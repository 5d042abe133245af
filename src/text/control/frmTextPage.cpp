#include "text/control/frmTextPage.h"

#include "common/text/ScopedValue.h"
#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace korvane {

namespace {

struct Paper {
    TextView name;
    int width;
    int height;
};
constexpr Paper kPapers[] = {
    {u"A3", 16838, 23811},     {u"A4", 11906, 16838},    {u"A5", 8391, 11906},
    {u"Letter", 12240, 15840}, {u"Legal", 12240, 20160},
};
constexpr int kOwnSize = static_cast<int>(std::size(kPapers));
/// Sizes of papers in inches and in millimetres are rounded.
constexpr int kAlmost = 30;
/// What a page must leave for the text.
constexpr int kLeastText = 567;

bool IsPaper(const Paper& paper, int width, int height) {
    return std::abs(paper.width - std::min(width, height)) <= kAlmost &&
           std::abs(paper.height - std::max(width, height)) <= kAlmost;
}

int PaperOf(int width, int height) {
    const auto found =
        std::ranges::find_if(kPapers, [=](const Paper& paper) { return IsPaper(paper, width, height); });
    return static_cast<int>(std::distance(std::begin(kPapers), found));
}

struct Size {
    LengthBox frmTextPage::*box;
    doc::Page::Size size;
};
constexpr Size kSizes[] = {
    {&frmTextPage::txtWidth, doc::Page::Width},
    {&frmTextPage::txtHeight, doc::Page::Height},
    {&frmTextPage::txtMarginLeft, doc::Page::MarginLeft},
    {&frmTextPage::txtMarginTop, doc::Page::MarginTop},
    {&frmTextPage::txtMarginRight, doc::Page::MarginRight},
    {&frmTextPage::txtMarginBottom, doc::Page::MarginBottom},
};

} // namespace

frmTextPage::frmTextPage(App& app, TextControl& target)
    : ControlForm(app, target, "frmTextPage", u"Page setup") {
    cboPaper.Click = [this] { TakePaper(); };
    optPortrait.Click = [this] { TakeOrientation(); };
    optLandscape.Click = [this] { TakeOrientation(); };
    txtWidth.Change = [this] { SizeTyped(); };
    txtHeight.Change = [this] { SizeTyped(); };
}

void frmTextPage::Load() {
    for (const Paper& paper : kPapers)
        cboPaper.AddItem(paper.name);
    cboPaper.AddItem(u"Own size");
    const ScopedValue showing(showing_, true);
    for (const Size& size : kSizes)
        (this->*size.box).ShowLength(Target().PageSize(size.size), Unit());
    const int width = Target().PageSize(doc::Page::Width);
    const int height = Target().PageSize(doc::Page::Height);
    cboPaper.SetListIndex(PaperOf(width, height));
    (width > height ? optLandscape : optPortrait).Value = true;
    cboPaper.SetFocus();
}

void frmTextPage::ShowSize(int width, int height) {
    const ScopedValue showing(showing_, true);
    txtWidth.ShowLength(width, Unit());
    txtHeight.ShowLength(height, Unit());
}

void frmTextPage::TakePaper() {
    if (showing_ || cboPaper.ListIndex() >= kOwnSize) return;
    const Paper& paper = kPapers[cboPaper.ListIndex()];
    optLandscape.Value ? ShowSize(paper.height, paper.width) : ShowSize(paper.width, paper.height);
}

void frmTextPage::TakeOrientation() {
    if (showing_) return;
    const int width = txtWidth.Length().value_or(0);
    const int height = txtHeight.Length().value_or(0);
    const auto [shorter, longer] = std::minmax(width, height);
    optLandscape.Value ? ShowSize(longer, shorter) : ShowSize(shorter, longer);
}

void frmTextPage::SizeTyped() {
    if (showing_) return;
    const ScopedValue showing(showing_, true);
    cboPaper.SetListIndex(PaperOf(txtWidth.Length().value_or(0), txtHeight.Length().value_or(0)));
}

bool frmTextPage::Accept() {
    const auto length = [](const LengthBox& box) { return box.Length().value_or(0); };
    if (length(txtWidth) - length(txtMarginLeft) - length(txtMarginRight) < kLeastText ||
        length(txtHeight) - length(txtMarginTop) - length(txtMarginBottom) < kLeastText) {
        Warn(Context(), u"The margins leave no room for the text.");
        return false;
    }
    for (const Size& size : kSizes)
        Target().SetPageSize(size.size, length(this->*size.box));
    return true;
}

} // namespace korvane
