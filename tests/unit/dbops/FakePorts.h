#pragma once

#include "context/App.h"
#include "context/Ports.h"

#include <optional>
#include <vector>

namespace korvane {

/// Takes down what was put into the text window.
class FakeTextWindow final : public TextWindow {
public:
    explicit FakeTextWindow(App& app) { app.TextWindow = this; }
    std::vector<Text> inserted;

    void TextWindowInsert(TextView text) override { inserted.emplace_back(text); }
};

/// Counts its openings, and retrieves the contents when told.
class FakeClipboardView final : public ClipboardView {
public:
    explicit FakeClipboardView(App& app) { app.ClipboardView = this; }
    int shown = 0;
    int offered = 0;
    bool retrieves = false;

    void Show() override { ++shown; }
    bool Choose() override {
        ++offered;
        return retrieves;
    }
};

} // namespace korvane
