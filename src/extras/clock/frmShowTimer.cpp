#include "extras/clock/frmShowTimer.h"

#include "context/App.h"
#include "platform/Clock.h"
#include "platform/Screen.h"

namespace korvane {

namespace {

/// The part of the work area that the window takes, so that it can be read from afar.
constexpr int kShareInPercent = 70;

Twips Share(Twips length) {
    return Twips(length.Number() / 100 * kShareInPercent);
}

void PutInTheMiddle(Form& form, const Rect& workArea) {
    form.Width = Share(workArea.width);
    form.Height = Share(workArea.height);
    form.Left = workArea.left + (workArea.width - form.Width) / 2;
    form.Top = workArea.top + (workArea.height - form.Height) / 2;
}

} // namespace

frmShowTimer::frmShowTimer(App& app)
    : Form(app.Forms(), "frmShowTimer", u"Time & Date;  press any key to continue..."), app_(app) {
    frmTimer.Tick = [this] { frmTimer_Timer(); };
}

void frmShowTimer::Load() {
    PutInTheMiddle(*this, app_.Screen().WorkArea());
    // The date stays when midnight passes. Kept for compatibility: clock-date-at-midnight.
    Label1.Caption = FormatDate(app_.Clock().Now(), u"dddd, d mmmm yyyy", app_.Locale().Names());
    frmTimer_Timer();
}

void frmShowTimer::KeyDown(KeyEvent& key) {
    key.consumed = true;
    // Alt alone must not close the window, because the rest of Alt+F4 would then reach the one below. Kept
    // for compatibility: modifiers-alone-are-no-keys.
    if (!key.IsModifier()) Close();
}

void frmShowTimer::frmTimer_Timer() {
    const DateTime now = app_.Clock().Now();
    Text time = FormatDate(now, u"hh:mm:ss");
    if (time == shown_) return;
    shown_ = std::move(time);
    Label2.Caption = FormatDate(now, u"hh:mm");
    Label3.Caption = u"[ " + FormatDate(now, u"ss") + u" ]";
}

} // namespace korvane
