#include "text/paragraph/frmParaSpacing.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/ParagraphChoices.h"
#include "controls/KeyTable.h"
#include "controls/text/TextControl.h"
#include "text/paragraph/ParagraphTarget.h"

#include <cmath>

namespace korvane {

namespace {

constexpr StoredCorner kPlace{&Settings::ParaSpacingLeft, &Settings::ParaSpacingTop};
constexpr int kTwips = 50;
constexpr int kSingleSpacing = 100;

constexpr TextView kSpacings[] = {u"  0.0", u"  0.5", u"  1.0", u"  1.5", u"  2.0", u"  2.5",
                                  u"  3.0", u"  4.0", u"  5.0", u"  6.0", u"  7.0", u"  8.0"};

void Fill(ListBox& list, float chosen) {
    list.Font = FontSpec{u"Courier New"};
    list.Clear();
    for (const TextView spacing : kSpacings) {
        list.AddItem(spacing);
        if (Val(spacing) == static_cast<double>(chosen)) list.SetListIndex(list.ListCount() - 1);
    }
}

float Chosen(const ListBox& list) {
    return static_cast<float>(Val(TextView(list.List(list.ListIndex()))));
}

int InTwips(float spacing) {
    return static_cast<int>(std::lround(spacing * kTwips));
}

} // namespace

struct frmParaSpacing::Tables {
    static constexpr WindowKey<frmParaSpacing> kKeys[] = {{"Esc", &frmParaSpacing::Close}};
};

frmParaSpacing::frmParaSpacing(App& app)
    : Form(app.Forms(), "frmParaSpacing", u"Paragraph spacing"), app_(app) {
    cmdOk.Click = [this] { cmdOk_Click(); };
    cmdOk.Default = true;
    cmdRemoveSpacing.Click = [this] { cmdRemoveSpacing_Click(); };
}

void frmParaSpacing::Load() {
    const auto& choices = app_.Exchange<ParagraphChoices>();
    RestoreCorner(app_, *this, kPlace);
    Fill(lstSpacingTop, choices.ParaSpaceBefore);
    Fill(lstSpacingBottom, choices.ParaSpaceAfter);
    chkSingleLineSpacing.Value = choices.SingleSpacingOnRemove;
}

void frmParaSpacing::Unload() {
    app_.Exchange<ParagraphChoices>().SingleSpacingOnRemove = chkSingleLineSpacing.Value;
    StoreCorner(app_, *this, kPlace);
}

void frmParaSpacing::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

void frmParaSpacing::cmdOk_Click() {
    auto& choices = app_.Exchange<ParagraphChoices>();
    choices.ParaSpaceBefore = Chosen(lstSpacingTop);
    choices.ParaSpaceAfter = Chosen(lstSpacingBottom);
    ChangeParagraphs(app_, [&choices](TextControl& control) {
        control.SetIndentT(InTwips(choices.ParaSpaceBefore));
        control.SetIndentB(InTwips(choices.ParaSpaceAfter));
    });
    Close();
}

void frmParaSpacing::cmdRemoveSpacing_Click() {
    ChangeParagraphs(app_, [this](TextControl& control) {
        control.SetIndentT(0);
        control.SetIndentB(0);
        if (chkSingleLineSpacing.Value == 1) control.SetLineSpacing(kSingleSpacing);
    });
}

} // namespace korvane
