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
    // The window takes a text window that isn't open for a caller who collects the contents himself.
    const ScopedValue open(textWindow.TextWindowOpen, 0);
    app_.DialogResult = 0;
    Show();
    return app_.DialogResult == 1;
}

} // namespace korvane
