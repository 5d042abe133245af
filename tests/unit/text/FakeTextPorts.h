#pragma once

#include "context/App.h"
#include "context/ports/SystemFileDialog.h"
#include "context/ports/TextWindow.h"
#include "support/FakeMainWindow.h"

#include <optional>
#include <string>
#include <vector>

namespace korvane {

/// Records what was put into the text window.
class FakeTextWindow final : public TextWindow {
public:
    explicit FakeTextWindow(App& app) { app.SetPort<TextWindow>(this); }
    std::vector<Text> inserted;
    std::vector<std::string> insertedRtf;
    int shown = 0;

    void TextWindowInsert(TextView text) override { inserted.emplace_back(text); }
    void TextWindowInsertRtf(std::string_view rtf) override { insertedRtf.emplace_back(rtf); }
    void TextWindowShow() override { ++shown; }
};

/// Chooses a file, or nothing, and remembers what it was asked.
class FakeSystemFileDialog final : public SystemFileDialog {
public:
    explicit FakeSystemFileDialog(App& app) { app.SetPort<SystemFileDialog>(this); }
    std::optional<Text> answer;
    std::vector<Request> requests;

    std::optional<Text> Choose(const Request& request) override {
        requests.push_back(request);
        return answer;
    }
};

} // namespace korvane
