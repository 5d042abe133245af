#pragma once

#include "controls/Form.h"
#include "controls/FormHost.h"

#include <functional>
#include <utility>

namespace korvane::bench {

/// A user who does one thing in modal windows of one class, and closes all other windows at once.
class ProceedingUser final : public FormHost {
public:
    template <class Window, class Act>
    void On(Act act) {
        act_ = [act = std::move(act)](Form& form) {
            if (auto* window = dynamic_cast<Window*>(&form)) act(*window);
        };
    }

    void RunModal(Form& form) override {
        if (act_) act_(form);
    }
    void Show(Form&) override {}
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}

private:
    std::function<void(Form&)> act_;
};

} // namespace korvane::bench
