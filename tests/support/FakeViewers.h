#pragma once

#include "context/App.h"
#include "context/ports/PageViewer.h"
#include "context/ports/TextFileViewer.h"

#include <functional>
#include <vector>

namespace korvane {

/// Remembers which files were to be shown as texts.
class FakeTextFileViewer final : public TextFileViewer {
public:
    explicit FakeTextFileViewer(App& app) { app.SetPort<TextFileViewer>(this); }
    std::vector<Text> viewed;
    /// Runs while the window is open.
    std::function<void()> whileOpen = [] {};

    void View(TextView path) override {
        viewed.emplace_back(path);
        whileOpen();
    }
};

/// Remembers which pages were to be shown in the browser.
class FakePageViewer final : public PageViewer {
public:
    explicit FakePageViewer(App& app) { app.SetPort<PageViewer>(this); }
    std::vector<Text> viewed;

    void View(TextView address) override { viewed.emplace_back(address); }
};

} // namespace korvane
