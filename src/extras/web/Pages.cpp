#include "extras/web/Pages.h"

#include "context/App.h"
#include "controls/FormHost.h"
#include "extras/web/frmBrowser.h"

namespace korvane {

Pages::Pages(App& app) : app_(app) {
    app_.SetPort<PageViewer>(this);
}

Pages::~Pages() {
    if (app_.Port<PageViewer>() == this) app_.SetPort<PageViewer>(nullptr);
}

void Pages::View(TextView address) {
    if (app_.Forms().ShowsModal()) return frmBrowser(app_, address).ShowModal();
    if (window_ != nullptr && window_->Shown()) {
        window_->Open(address);
        return app_.Forms().Raise(*window_);
    }
    window_ = std::make_unique<frmBrowser>(app_, address);
    window_->Show();
}

} // namespace korvane
