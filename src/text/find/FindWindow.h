#pragma once

#include "context/ports/TextFinder.h"

namespace korvane {

class App;

/// Searches in a text with its window.
class FindWindow final : public TextFinder {
public:
    /// The App outlives the object, and from now on searches through it.
    explicit FindWindow(App& app);
    FindWindow(const FindWindow&) = delete;
    FindWindow& operator=(const FindWindow&) = delete;
    ~FindWindow() override;

    void FindString(TextControl& target) override;

private:
    App& app_;
};

} // namespace korvane
