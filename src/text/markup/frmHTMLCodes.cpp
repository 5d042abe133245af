#include "text/markup/frmHTMLCodes.h"

#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/ports/FontPicker.h"
#include "context/ports/OpenText.h"
#include "controls/text/TextControl.h"
#include "text/markup/MarkupConversion.h"
#include "text/markup/MarkupTags.h"

namespace korvane {

namespace {

constexpr StoredCorner kPlace{&Settings::HtmlLeft, &Settings::HtmlTop};
constexpr int kHeaderFontSize = 12;

} // namespace

frmHTMLCodes::frmHTMLCodes(App& app) : Form(app.Forms(), "frmHTMLCodes", u"HTML codes"), app_(app) {
    cmdOk.Click = [this] { Finish(1); };
    cmdOk.Default = true;
    cmdCancel.Click = [this] { Finish(0); };
    cmdCancel.Cancel = true;
    lstClient.DblClick = [this] { cmdOk.Press(); };
    cmdConvert.Click = [this] { cmdConvert_Click(); };
    cmdSetHTMLHeaderFont.Click = [this] { cmdSetHTMLHeaderFont_Click(); };
}

void frmHTMLCodes::Load() {
    RestoreCorner(app_, *this, kPlace);
    lstClient.Clear();
    for (const MarkupTag& tag : MarkupTags())
        lstClient.AddItem(tag.label);
    lstClient.SetListIndex(app_.Settings.HtmlOptionA);
    chkHTMLHeaderBold.Value = app_.Settings.HtmlOptionB == 1 ? 1 : 0;
    chkConfirmEachInstance.Value = 0;
    ShowHeaderFont();
    lstClient.SetFocus();
    app_.DialogResult = 0;
}

void frmHTMLCodes::Unload() {
    if (lstClient.ListIndex() >= 0)
        app_.Settings.HtmlOptionA = static_cast<std::int16_t>(lstClient.ListIndex());
    app_.Settings.HtmlOptionB = chkHTMLHeaderBold.Value;
    StoreCorner(app_, *this, kPlace);
}

void frmHTMLCodes::Finish(std::int16_t result) {
    app_.DialogResult = result;
    Close();
}

void frmHTMLCodes::ShowHeaderFont() {
    lblHTMLHeaderFont.Caption = app_.Settings.HtmlText;
    lblHTMLHeaderFont.Font = FontSpec{app_.Settings.HtmlText, kHeaderFontSize};
}

void frmHTMLCodes::cmdConvert_Click() {
    const auto* open = app_.Port<OpenText>();
    if (open == nullptr) return;
    // The conversion uses the box as it is now.
    app_.Settings.HtmlOptionB = chkHTMLHeaderBold.Value;
    ConvertMarkupByTag(app_, open->ThisTextCtrl, chkConfirmEachInstance.Value == 1, lstClient.ListIndex());
    open->ThisTextCtrl.SetFocus();
}

void frmHTMLCodes::cmdSetHTMLHeaderFont_Click() {
    auto* picker = app_.Port<FontPicker>();
    if (picker == nullptr) return;
    const auto font = picker->Choose({app_.Settings.HtmlText, kHeaderFontSize});
    if (!font) return;
    app_.Settings.HtmlText = font->name;
    ShowHeaderFont();
}

} // namespace korvane
