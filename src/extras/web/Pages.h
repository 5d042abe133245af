#pragma once

#include "context/ports/PageViewer.h"

#include <memory>

namespace korvane {

class App;
class frmBrowser;

/// The program's own browser.
class Pages final : public PageViewer {
public:
    /// The App outlives the object, and from now on shows pages with it.
    explicit Pages(App& app);
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;
    ~Pages() override;

    /// Over a modal window the browser is modal too, since no other window could be used there. Otherwise
    /// there is one window, which stays open.
    void View(TextView address) override;

private:
    App& app_;
    std::unique_ptr<frmBrowser> window_;
};

} // namespace korvane
