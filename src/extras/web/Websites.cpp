#include "extras/web/Websites.h"

#include "context/App.h"
#include "context/ports/MainWindow.h"
#include "extras/web/frmWebList.h"

namespace korvane {

Websites::Websites(App& app) : app_(app) {
    app_.SetPort<WebsiteList>(this);
}

Websites::~Websites() {
    if (app_.Port<WebsiteList>() == this) app_.SetPort<WebsiteList>(nullptr);
}

void Websites::Show() {
    if (window_ != nullptr && window_->Shown()) return app_.Forms().Raise(*window_);
    auto* main = app_.Port<MainWindow>();
    if (main == nullptr) return;
    window_ = std::make_unique<frmWebList>(app_, main->Window());
    window_->Show();
}

} // namespace korvane
