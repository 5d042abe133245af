#pragma once

#include "context/ports/ClipboardView.h"

namespace korvane {

class App;

/// Shows the clipboard in its window. `DialogResult` is 1 afterwards when the user retrieved the contents,
/// which went into the text window if that was open.
class ClipboardWindow final : public ClipboardView {
public:
    /// The App outlives the object, and from now on shows the clipboard through it.
    explicit ClipboardWindow(App& app);
    ClipboardWindow(const ClipboardWindow&) = delete;
    ClipboardWindow& operator=(const ClipboardWindow&) = delete;
    ~ClipboardWindow() override;

    void Show() override;
    bool Choose() override;

private:
    App& app_;
};

} // namespace korvane
