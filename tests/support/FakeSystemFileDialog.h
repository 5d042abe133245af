#pragma once

#include "context/App.h"
#include "context/ports/SystemFileDialog.h"

#include <functional>
#include <optional>
#include <vector>

namespace korvane {

/// Chooses a prepared file, or none, and records the requests.
class FakeSystemFileDialog final : public SystemFileDialog {
public:
    explicit FakeSystemFileDialog(App& app) { app.SetPort<SystemFileDialog>(this); }
    std::optional<Text> answer;
    std::vector<Request> requests;
    /// Called while the dialog is open.
    std::function<void()> whileOpen = [] {};

    std::optional<Text> Choose(const Request& request) override {
        requests.push_back(request);
        whileOpen();
        return answer;
    }
};

} // namespace korvane
