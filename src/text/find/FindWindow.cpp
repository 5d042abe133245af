#include "text/find/FindWindow.h"

#include "context/App.h"
#include "text/find/frmFindString.h"

namespace korvane {

FindWindow::FindWindow(App& app) : app_(app) {
    app_.SetPort<TextFinder>(this);
}

FindWindow::~FindWindow() {
    if (app_.Port<TextFinder>() == this) app_.SetPort<TextFinder>(nullptr);
}

void FindWindow::FindString(TextControl& target) {
    frmFindString(app_, target).ShowModal();
}

} // namespace korvane
