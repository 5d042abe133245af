#pragma once

namespace korvane {

/// The window that shows what the clipboard holds. Modal.
class ClipboardView {
public:
    virtual ~ClipboardView() = default;
    virtual void Show() = 0;
    /// Leaves the use of the contents to the caller; true when the user retrieved them.
    virtual bool Choose() = 0;
};

} // namespace korvane
