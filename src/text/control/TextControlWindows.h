#pragma once

#include "controls/text/TextDialogs.h"
#include "text/control/TextSearch.h"

namespace korvane {

class App;

/// Shows the windows that belong to a text control itself.
class TextControlWindows final : public TextDialogs {
public:
    /// The App outlives the object, which answers its port as long as it lives.
    explicit TextControlWindows(App& app);
    TextControlWindows(const TextControlWindows&) = delete;
    TextControlWindows& operator=(const TextControlWindows&) = delete;
    ~TextControlWindows() override;

    void Show(TextDialog dialog, TextControl& control) override;

private:
    App& app_;
    /// What was looked for last, which the next search begins with.
    TextSearch search_;
};

} // namespace korvane
