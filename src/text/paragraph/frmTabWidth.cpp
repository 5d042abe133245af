#include "text/paragraph/frmTabWidth.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "controls/KeyTable.h"
#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"
#include "text/paragraph/ParagraphTarget.h"

#include <algorithm>
#include <span>

namespace korvane {

namespace {

struct TabWidth {
    TextView text;
    int twips;
};

constexpr TabWidth kCentimetres[] = {
    {u" \u00BD cm", 284},   {u" 1 cm", 567},  {u" 1\u00BD cm", 851},  {u" 2 cm", 1134},
    {u" 2\u00BD cm", 1418}, {u" 3 cm", 1701}, {u" 3\u00BD cm", 1985}, {u" 4 cm", 2268},
};
constexpr TabWidth kInches[] = {
    {u" \u00BC ins", 360},   {u" \u00BD ins", 720},   {u" \u00BE ins", 1080},  {u" 1 ins", 1440},
    {u" 1\u00BC ins", 1800}, {u" 1\u00BD ins", 2160}, {u" 1\u00BE ins", 2520}, {u" 2 ins", 2880},
};
constexpr TextView kTypes[] = {u" 1  Left tab", u" 2  Right tab", u" 3  Centered tab", u" 4  Decimal tab"};

void Fill(ListBox& list, std::span<const TabWidth> widths, TextBox& field) {
    list.Click = [&list, widths, &field] {
        const int index = list.ListIndex();
        if (index >= 0) field.Text = NumberText(widths[static_cast<std::size_t>(index)].twips);
    };
    list.Clear();
    for (const TabWidth& width : widths)
        list.AddItem(width.text);
}

} // namespace

struct frmTabWidth::Tables {
    static constexpr WindowKey<frmTabWidth> kKeys[] = {{"Esc", &frmTabWidth::Close}};
};

frmTabWidth::frmTabWidth(App& app) : Form(app.Forms(), "frmTabWidth", u"Set tab width"), app_(app) {
    cmdApply.Click = [this] { cmdApply_Click(); };
    cmdApply.Default = true;
    cmdUnits.Click = [this] { cmdUnits_Click(); };
    cmdShow.Click = [this] { cmdShow_Click(); };
}

void frmTabWidth::ShowUnits() {
    lstTabsCm.Visible = IsMetric(app_);
    lstTabsIns.Visible = !IsMetric(app_);
}

void frmTabWidth::Load() {
    const Settings& settings = app_.Settings;
    Fill(lstTabsCm, kCentimetres, txtTabWidth);
    Fill(lstTabsIns, kInches, txtTabWidth);
    lstTabType.Clear();
    for (const TextView type : kTypes)
        lstTabType.AddItem(type);
    lstTabType.SetListIndex(0);
    ShowUnits();
    (IsMetric(app_) ? lstTabsCm : lstTabsIns).SetListIndex(settings.TabWidthValue);
    txtTabWidth.Text =
        NumberText(settings.TabWidthCustom > 0 ? settings.TabWidthCustom : settings.TabUnitTwips);
    chkUndoIndents.Value = settings.TabWidthOptionA == 1 ? 1 : 0;
    chkDefault.Value = settings.TabWidthOptionB == 1 ? 1 : 0;
    if (const TextControl* control = ParagraphTarget(app_)) controlChars_ = control->ControlChars;
}

void frmTabWidth::StoreChoices() {
    Settings& settings = app_.Settings;
    settings.TabWidthOptionA = chkUndoIndents.Value;
    settings.TabWidthOptionB = chkDefault.Value;
    const int index = (IsMetric(app_) ? lstTabsCm : lstTabsIns).ListIndex();
    settings.TabWidthValue = static_cast<std::int16_t>(std::max(index, 0));
    ReadNumber(TextView(txtTabWidth.Text.Get()), settings.TabWidthCustom);
}

void frmTabWidth::Unload() {
    StoreChoices();
    if (TextControl* control = ParagraphTarget(app_)) control->ControlChars = controlChars_;
}

void frmTabWidth::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

void frmTabWidth::cmdApply_Click() {
    ReadNumber(TextView(txtTabWidth.Text.Get()), app_.Settings.TabUnitTwips);
    StoreChoices();
    ChangeParagraphs(app_, [this](TextControl& control) {
        control.Visible = false;
        if (chkDeleteTabs.Value == 1) ClearTabs(control);
        const int type = lstTabType.ListIndex() + 1;
        for (int tab = 1; tab <= TextControl::kTabs; ++tab) {
            control.SetTabCurrent(tab);
            control.SetTabPos(tab * app_.Settings.TabUnitTwips);
            control.SetTabType(type);
        }
        if (app_.Settings.TabWidthOptionA == 1) ClearIndents(control);
        control.SetTabCurrent(1);
        control.Visible = true;
        control.SetDataChanged(true);
    });
}

void frmTabWidth::cmdUnits_Click() {
    Text question = u"Use metric units of measurement?\r\n(\"No\" = Imperial system)\r\nCurrent value = ";
    question += IsMetric(app_) ? u"YES" : u"NO";
    app_.Settings.TabUnitKind = AskYesNo(app_, question) ? 1 : 2;
    ShowUnits();
    if (TextControl* control = ParagraphTarget(app_)) ApplyUnits(app_, *control);
}

void frmTabWidth::cmdShow_Click() {
    if (TextControl* control = ParagraphTarget(app_)) control->ControlChars = !control->ControlChars;
}

} // namespace korvane
