#pragma once

#include "context/ports/WebsiteList.h"

#include <memory>

namespace korvane {

class App;
class frmWebList;

/// The one window of websites.
class Websites final : public WebsiteList {
public:
    /// The App outlives the object, and from now on has its list of websites.
    explicit Websites(App& app);
    Websites(const Websites&) = delete;
    Websites& operator=(const Websites&) = delete;
    ~Websites() override;

    void Show() override;

private:
    App& app_;
    std::unique_ptr<frmWebList> window_;
};

} // namespace korvane
