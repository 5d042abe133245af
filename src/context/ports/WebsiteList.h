#pragma once

namespace korvane {

/// The list of websites, for those that open it.
class WebsiteList {
public:
    virtual ~WebsiteList() = default;
    /// Opens the window; one that is open comes to the front. Not modal.
    virtual void Show() = 0;
};

} // namespace korvane
