#include "text/ClipboardWindow.h"

#include "context/App.h"
#include "text/frmViewAndPaste.h"

#include <utility>

namespace korvane {

ClipboardWindow::ClipboardWindow(App& app) : app_(app) {
    app_.ClipboardView = this;
}

ClipboardWindow::~ClipboardWindow() {
    if (app_.ClipboardView == this) app_.ClipboardView = nullptr;
}

void ClipboardWindow::Show() {
    frmViewAndPaste(app_).ShowModal();
}

bool ClipboardWindow::Choose() {
    // The window takes a text window that isn't open for a caller who collects the contents himself.
    const std::int16_t open = std::exchange(app_.TextWindowOpen, std::int16_t{0});
    app_.DialogResult = 0;
    Show();
    app_.TextWindowOpen = open;
    return app_.DialogResult == 1;
}

} // namespace korvane
