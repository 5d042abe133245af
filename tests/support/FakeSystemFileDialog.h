#pragma once

#include "context/App.h"
#include "context/ports/SystemFileDialog.h"

#include <functional>
#include <optional>
#include <vector>

namespace korvane {

/// Chooses a file, or nothing, and remembers what it was asked.
class FakeSystemFileDialog final : public SystemFileDialog {
public:
    explicit FakeSystemFileDialog(App& app) { app.SetPort<SystemFileDialog>(this); }
    std::optional<Text> answer;
    std::vector<Request> requests;
    /// Runs while the dialog is open.
    std::function<void()> whileOpen = [] {};

    std::optional<Text> Choose(const Request& request) override {
        requests.push_back(request);
        whileOpen();
        return answer;
    }
};

} // namespace korvane
