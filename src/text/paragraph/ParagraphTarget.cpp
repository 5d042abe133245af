#include "text/paragraph/ParagraphTarget.h"

#include "context/App.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/OpenText.h"
#include "controls/text/TextControl.h"

namespace korvane {

TextControl* ParagraphTarget(const App& app) {
    const auto* open = app.Port<OpenText>();
    const bool isOpen = open != nullptr && app.Exchange<TextWindowState>().TextWindowOpen == 1;
    return isOpen ? &open->ThisTextCtrl : nullptr;
}

void ChangeParagraphs(const App& app, const std::function<void(TextControl&)>& change) {
    TextControl* const control = ParagraphTarget(app);
    if (control == nullptr) return;
    const doc::Step together(control->Store());
    change(*control);
}

void ClearIndents(TextControl& control) {
    control.SetTabCurrent(1);
    control.SetIndentR(0);
    control.SetIndentFL(0);
    control.SetIndentL(0);
}

void ClearTabs(TextControl& control) {
    for (int tab = TextControl::kTabs; tab >= 1; --tab) {
        control.SetTabCurrent(tab);
        control.SetTabPos(0);
    }
}

void SetTabs(TextControl& control, int step) {
    for (int tab = 1; tab <= TextControl::kTabs; ++tab) {
        control.SetTabCurrent(tab);
        control.SetTabPos(tab * step);
    }
}

bool IsMetric(const App& app) {
    return app.Settings.TabUnitKind == 1;
}

void ApplyUnits(const App& app, TextControl& control) {
    control.ScaleUnits = IsMetric(app) ? TextControl::kMillimetres : TextControl::kInches;
}

} // namespace korvane
