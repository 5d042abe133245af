#include "text/paragraph/frmFramesDlg.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "controls/KeyTable.h"
#include "controls/text/TextControl.h"
#include "text/paragraph/ParagraphTarget.h"

#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

constexpr int kTwipsPerPoint = 20;
constexpr int kLeastPoints = 1;
constexpr int kMostPoints = 12;

constexpr int kSingleLines = 32;
constexpr int kDoubleLines = 64;
constexpr int kConnected = 128;

struct FramePart {
    CheckBox frmFramesDlg::*box;
    int on;
    int off;
};

constexpr FramePart kParts[] = {
    {&frmFramesDlg::chkLeft, 1, 256},       {&frmFramesDlg::chkRight, 2, 512},
    {&frmFramesDlg::chkTop, 4, 1024},       {&frmFramesDlg::chkBottom, 8, 2048},
    {&frmFramesDlg::chkTabLines, 16, 4096},
};

Text Points(double points) {
    return NumberText(points) + u" pt";
}

/// Shows a length of the paragraph, which is put first if it is none of the list.
void ShowLength(DropDown& list, int twips) {
    const Text shown = Points(static_cast<double>(twips) / kTwipsPerPoint);
    std::vector<Text> items;
    for (int points = kLeastPoints; points <= kMostPoints; ++points)
        items.push_back(Points(points));
    if (std::ranges::find(items, shown) == items.end()) items.insert(items.begin(), shown);
    list.Items = items;
    list.Text = shown;
}

int InTwips(const DropDown& list) {
    const double points =
        std::clamp(Val(TextView(list.Text.Get())), double{kLeastPoints}, double{kMostPoints});
    return static_cast<int>(std::lround(points * kTwipsPerPoint));
}

} // namespace

struct frmFramesDlg::Tables {
    static constexpr WindowKey<frmFramesDlg> kKeys[] = {{"Esc", &frmFramesDlg::Close}};
};

frmFramesDlg::frmFramesDlg(App& app) : Form(app.Forms(), "frmFramesDlg", u"Paragraph frames"), app_(app) {
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdOK.Default = true;
    cmdBox.Click = [this] { cmdBox_Click(); };
}

void frmFramesDlg::Load() {
    const TextControl* const control = ParagraphTarget(app_);
    const int style = control == nullptr ? 0 : control->FrameStyle();
    const auto tick = [style](CheckBox& box, int bit) { box.Value = (style & bit) != 0 ? 1 : 0; };
    for (const FramePart& part : kParts)
        tick(this->*part.box, part.on);
    tick(chkDoubleLines, kDoubleLines);
    tick(chkConnectedFrames, kConnected);
    ShowLength(cboLineWidth, control == nullptr ? 0 : control->FrameLineWidth());
    ShowLength(cboDistance, control == nullptr ? 0 : control->FrameDistance());
}

void frmFramesDlg::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

int frmFramesDlg::Style() const {
    int style = chkDoubleLines.Value == 1 ? kDoubleLines : kSingleLines;
    if (chkConnectedFrames.Value == 1) style += kConnected;
    for (const FramePart& part : kParts)
        style += (this->*part.box).Value == 1 ? part.on : part.off;
    return style;
}

void frmFramesDlg::cmdOK_Click() {
    ChangeParagraphs(app_, [this](TextControl& control) {
        control.SetFrameStyle(Style());
        control.SetFrameLineWidth(InTwips(cboLineWidth));
        control.SetFrameDistance(InTwips(cboDistance));
    });
    Close();
}

void frmFramesDlg::cmdBox_Click() {
    for (CheckBox* const side : {&chkLeft, &chkRight, &chkTop, &chkBottom})
        side->Value = 1;
}

} // namespace korvane
