#include "text/ClipboardWindow.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/ClipboardView.h"
#include "text/frmViewAndPaste.h"

namespace korvane {

ClipboardWindow::ClipboardWindow(App& app) : app_(app) {
    app_.SetPort<ClipboardView>(this);
}

ClipboardWindow::~ClipboardWindow() {
    if (app_.Port<ClipboardView>() == this) app_.SetPort<ClipboardView>(nullptr);
}

void ClipboardWindow::Show() {
    frmViewAndPaste(app_).ShowModal();
}

bool ClipboardWindow::Choose() {
    TextWindowState& textWindow = app_.Exchange<TextWindowState>();
    // The text window counts as closed meanwhile, so that the contents don't go there but are left to the
    // caller.
    const ScopedValue open(textWindow.TextWindowOpen, 0);
    app_.DialogResult = 0;
    Show();
    return app_.DialogResult == 1;
}

} // namespace korvane
