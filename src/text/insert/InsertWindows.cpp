#include "text/insert/InsertWindows.h"

#include "context/App.h"
#include "context/exchange/InsertChoices.h"
#include "text/insert/InsertTarget.h"
#include "text/insert/frmASCIIBox.h"
#include "text/insert/frmDateType.h"
#include "text/insert/frmElements.h"
#include "text/insert/frmSymbolTables.h"

namespace korvane {

namespace {

template <class Window>
void ShowOn(App& app, TextControl* target) {
    std::optional<ControlTarget> into;
    if (target != nullptr) into.emplace(*target);
    Window(app, into ? &*into : nullptr).ShowModal();
}

} // namespace

void ShowElements(App& app, TextControl* target) {
    ShowOn<frmElements>(app, target);
}

void ShowCharacters(App& app, TextControl* target) {
    ShowOn<frmASCIIBox>(app, target);
}

void ShowSymbolTables(App& app, TextControl* target) {
    ShowOn<frmSymbolTables>(app, target);
}

InsertWindows::InsertWindows(App& app) : app_(app) {
    app_.SetPort<InsertTools>(this);
}

InsertWindows::~InsertWindows() {
    if (app_.Port<InsertTools>() == this) app_.SetPort<InsertTools>(nullptr);
}

std::optional<Text> InsertWindows::ChooseDateTime() {
    app_.DialogResult = 0;
    frmDateType(app_).ShowModal();
    if (app_.DialogResult != 1) return std::nullopt;
    return app_.Exchange<InsertChoices>().DateResult;
}

void InsertWindows::ShowCharacters(TextBox& target) {
    BoxTarget into(target);
    frmASCIIBox(app_, &into).ShowModal();
}

void InsertWindows::ShowElements(TextBox& target) {
    BoxTarget into(target);
    frmElements(app_, &into).ShowModal();
}

} // namespace korvane
